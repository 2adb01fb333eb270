#pragma once

#include "DBEngine.h"
#include "ErrorOf.h"
#include "RawFile.h"

#include <QTemporaryDir>

namespace dao {

/// A folder that goes with the test, and small databases in it.
///
/// Table `Wort`: ID (number of its own), Main (10 units, may be empty), Typ (5 units, default "neu", may
/// not), Score (16 bits, default 6), VID (32 bits). Table `Link`: IDV and ID, indexed by IDV, no key of its
/// own.
class EngineTest : public ::testing::Test {
protected:
    EngineTest();

    [[nodiscard]] QString path(const QString& name) const { return m_folder.filePath(name); }
    [[nodiscard]] QString file() const { return path(QStringLiteral("test.lmt")); }
    [[nodiscard]] QByteArray bytes(const QString& name) const;
    void write(const QString& name, const QByteArray& content) const;
    /// Names of the files in the folder.
    [[nodiscard]] QStringList files() const;

    /// Appends rows to `Wort`: one for each text, as its Main.
    void addWords(const QStringList& texts);
    void addLink(int entry, int item);
    [[nodiscard]] Recordset words() const {
        return database.OpenRecordset(QStringLiteral("SELECT * FROM Wort"));
    }
    [[nodiscard]] Recordset links() const {
        return database.OpenRecordset(QStringLiteral("SELECT * FROM Link"));
    }

    /// What a second program reads: column Main of all rows of `Wort`, joined by blanks.
    [[nodiscard]] QString stored() const;

    static TableDef wortTable();
    static TableDef linkTable();

private:
    QTemporaryDir m_folder;

protected:
    Database database; ///< `file()`, with both tables, empty
};

/// Main of the current row.
[[nodiscard]] QString main(const Recordset& recordset);
/// Main of every row, from the first to the last, joined by blanks. Moves the recordset behind its last row.
[[nodiscard]] QString walk(Recordset& recordset);
/// Main of every row that meets the criterion, found by FindFirst and FindNext.
[[nodiscard]] QString findAll(Recordset& recordset, const QString& criterion);

} // namespace dao
