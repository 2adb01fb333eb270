#pragma once

#include "ListBench.h"
#include "RawFile.h"

#include <QAction>
#include <QPushButton>

#include <gtest/gtest.h>

namespace lingomat {

/// A list of entries that stand in a file, and the file as another program sees it.
struct StoredList : ListBench {
    explicit StoredList(const QString& language = QStringLiteral("En"));

    /// Adds one entry for each text, as its Lang1_Main, and lists all entries of the file.
    void fill(const QStringList& texts);
    void listEverything();
    /// Writes a cell and records its row, as an editor does.
    void change(int row, int column, const QString& text);
    /// Adds a row by the command and writes a cell of it. Its number.
    int addNew(int column, const QString& text);
    void remove(int row);
    void save() { list.Command2_Click(); }

    [[nodiscard]] dao::RawFile file() const { return dao::RawFile(context.path(QStringLiteral("list.lmt"))); }
    /// What stands in the file: the columns of each row joined by " | ".
    [[nodiscard]] QStringList stored(const char* sql) const { return file().lines(QString::fromUtf8(sql)); }
    /// Lang1_Main of all entries in the order of their keys.
    [[nodiscard]] QStringList storedMains() const;
    /// Column 1 of all data rows.
    [[nodiscard]] QStringList keys();
    [[nodiscard]] QPushButton& button(const char* name) { return child<QPushButton>(list, name); }
    [[nodiscard]] QAction& entry(const char* name) { return child<QAction>(list, name); }
};

} // namespace lingomat
