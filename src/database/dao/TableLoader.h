#pragma once

#include "Database.h"

#include <vector>

namespace dao {

/// Adds rows to a table as they come from elsewhere: keys are set and not given, Null stays Null, and a text
/// field takes the empty text whatever its definition says. Types and sizes are checked as by a recordset.
class TableLoader {
public:
    /// Error 3265 where there is no such table.
    TableLoader(const Database& database, const QString& table);
    ~TableLoader();
    TableLoader(const TableLoader&) = delete;
    TableLoader& operator=(const TableLoader&) = delete;

    [[nodiscard]] QStringList fieldNames() const;
    /// One value a field, in the order of fieldNames(). Errors: 6, 3022, 3163, 3421.
    void add(const std::vector<Value>& row);

private:
    struct Private;
    std::unique_ptr<Private> m_d;
};

} // namespace dao
