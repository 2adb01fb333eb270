#pragma once

#include "FlexGrid.h"
#include "Liste.h"
#include "TestContext.h"

#include <QHash>

namespace lingomat {

/// A Vocab List with everything below it: a small file on the disk, an open session.
struct ListBench {
    using Fields = QHash<QString, dao::Value>;

    explicit ListBench(const QString& language = QStringLiteral("En"));

    /// Creates the file "German", "English" and opens it. Without it the list stands without a database.
    void openDatabase();
    /// Adds an entry whose eight parts are empty but for `fields`, and makes it known to all recordsets.
    /// Returns its ID.
    QString addEntry(const Fields& fields);
    /// Adds one row to any other table.
    void addRow(dao::Recordset& table, const Fields& fields);
    /// Makes the result of a statement the selection and goes to its first row.
    void select(const QString& statement);

    /// Appends a row and fills it from the current record, as the run of a selection does.
    bool fillRow(const EntryLookups& lookups = emptyLookups());
    /// Appends a row with that key, without the database.
    void addPlainRow(const QString& key);

    [[nodiscard]] QString cell(int row, int column) { return grid.TextMatrix(row, column); }
    [[nodiscard]] dao::Recordset& selection() { return context.state.DBHandler.RecordsetAuswahl; }
    [[nodiscard]] static EntryLookups emptyLookups();

    TestContext context;
    Liste list;
    FlexGrid& grid;
};

} // namespace lingomat
