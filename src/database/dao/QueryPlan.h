#pragma once

// Private to the engine.

#include "Parser.h"
#include "PlanMemo.h"
#include "SqlCompiler.h"

#include <QHash>
#include <QString>

#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

namespace dao {

class Connection;
struct Table;

/// A criterion compiled for the columns of one plan.
struct FindPlan {
    criteria::Node tree; ///< resolved
    QByteArray forward;  ///< SQL: ?1 <= key <= ?2, at most ?3 rows, ascending; empty for a join
    QByteArray backward; ///< the same, descending
    std::vector<criteria::Parameter> parameters; ///< from ?4 on
};

/// A compiled SELECT.
struct SelectPlan {
    std::vector<Table*> tables;
    std::vector<criteria::Column> columns; ///< of the result, in order
    std::vector<int> fields;               ///< per column: its number in the table's definition
    bool isDynaset = false;                ///< one table: a keyset whose rows are read live
    QByteArray sql;                        ///< dynaset: the keys; join: the rows
    QByteArray rowSql;                     ///< dynaset: the row with the key ?1
    std::vector<criteria::Parameter> parameters;

    /// Position of a column of the result by name, `field` or `table.field`; -1 unknown, -2 ambiguous.
    [[nodiscard]] int findColumn(const QString& name) const;
    /// The compiled criterion and its literals; errors 3070, 3077, 3079, 3421.
    [[nodiscard]] PlanMemo<FindPlan>::Hit findPlan(const QString& criterion) const;

private:
    [[nodiscard]] std::shared_ptr<const FindPlan> compileFind(const criteria::LexedText& text) const;

    mutable QHash<QString, int> m_columnNumbers; ///< of the names that were looked up
    mutable PlanMemo<FindPlan> m_memo;
    mutable std::unordered_map<std::u16string, std::shared_ptr<const FindPlan>> m_findPlans; ///< by shape
};

inline constexpr int UnknownColumn = -1;
inline constexpr int AmbiguousColumn = -2;

/// Compiles a statement against the tables of the file; errors 3061, 3075, 3078, 3079, 3421.
[[nodiscard]] std::shared_ptr<const SelectPlan>
compileSelect(Connection& connection, const QString& statement, const criteria::LexedText& text);

[[nodiscard]] criteria::LexedText lexStatement(const QString& statement); ///< error 3075

} // namespace dao
