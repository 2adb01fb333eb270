#pragma once

#include "Criterion.h"
#include "Value.h"

#include <QByteArray>

#include <functional>
#include <span>
#include <vector>

namespace criteria {

/// A column that a criterion can name.
struct Column {
    QString table;
    QString field;
    bool isText = false;
    QByteArray sql; ///< the column in an SQL statement, quoted
};

/// Finds the columns that a tree names, checks that text meets text and number meets number (error 3421),
/// and notes the columns in the tree. `find` raises the error for an unknown or ambiguous name.
void resolve(Node& tree, std::span<const Column> columns, const std::function<int(const FieldName&)>& find);

/// How a literal is bound to its parameter.
struct Parameter {
    enum class Form {
        AsItIs,
        WholeNumber, ///< see plainWholeNumber()
        Pattern,     ///< one with wildcards
    };
    int literal;
    Form form;
};

struct Sql {
    QByteArray text;
    std::vector<Parameter> parameters; ///< for ?first, ?first+1, ...
};

/// Name of the collation and the function that the SQL relies on.
inline constexpr const char* FoldedCollation = "FOLDED";
inline constexpr const char* PatternFunction = "matches_pattern"; ///< (pattern, value)

/// SQL for a resolved tree. Literals become parameters from number `firstParameter` on: no text that a user
/// typed gets into the statement.
[[nodiscard]] Sql compile(const Node& tree, std::span<const Column> columns, int firstParameter);

/// The value to bind for a parameter. Error 93 for an invalid pattern: here it can still be told as such,
/// and also where there is no row to try it on.
[[nodiscard]] dao::Value boundValue(const Parameter& parameter, std::span<const dao::Value> literals);

/// The number that a text is the plain decimal form of. Any other text ("017", "1 ") gives the empty text,
/// which differs from every number.
[[nodiscard]] dao::Value plainWholeNumber(const QString& text);

} // namespace criteria
