#pragma once

#include "CDBCreator.h"
#include "CDBHandler.h"
#include "ErrorOf.h"
#include "RawFile.h"

#include <QTemporaryDir>

namespace lingomat {

/// A new database of German and English, open in a handler; what the handler reports is collected.
class SessionTest : public ::testing::Test {
protected:
    SessionTest();

    [[nodiscard]] QString path(const QString& name) const { return m_folder.filePath(name); }
    [[nodiscard]] QString file() const { return path(QStringLiteral("test.lmt")); }

    /// Changes the closed file behind the program's back, and opens it again, without its recordsets.
    void reopenAfter(const QString& sql);

    /// Adds an entry; the row becomes the current one of `RecordsetVokabular`.
    int addEntry(const QString& text);
    /// Adds a row to any recordset, its fields in order, from the given position on.
    static void addRow(dao::Recordset& recordset, int firstField, const QList<dao::Value>& values);

    /// What a second program reads from the file, as "a | b" per row.
    [[nodiscard]] QStringList stored(const QString& sql) const { return dao::RawFile(file()).lines(sql); }

private:
    QTemporaryDir m_folder;

protected:
    QStringList reports; ///< descriptions of the errors that the user was told
    CDBHandler handler;
};

/// Creates a database with its eleven tables, empty.
dao::Database createDatabase(const QString& path, const QString& language1, const QString& language2);

} // namespace lingomat
