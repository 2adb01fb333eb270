#pragma once

#include "Database.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

#include <functional>
#include <optional>

namespace lingomat {

/// One row of table `Vokabular`; what is not told is an empty text.
struct TestEntry {
    QString lang1;
    QString lang2;
    QString wortart;
    QString quelle;
    QStringList areas;
};

/// A vocabulary database to be written for a test, sound unless told otherwise.
struct TestDatabase {
    QString lang1 = QStringLiteral("Deutsch");
    QString lang2 = QStringLiteral("Englisch");
    QList<TestEntry> entries = {};
    QStringList unusedAreas = {}; ///< areas that no entry has: the clean-up removes them

    // Oddities.
    std::optional<QString> languages = {}; ///< the whole property "Languages" in place of the two names
    bool withoutLanguages = false;
    int version = 3;
    bool withoutVersion = false;
    QStringList missingTables = {};
};

/// Some entries of German and English, with areas.
[[nodiscard]] QList<TestEntry> someEntries();

/// Writes the file; what stands there is replaced.
void writeDatabase(const QString& path, const TestDatabase& database);

/// What a program of its own reads from the file: the texts of one field of all rows, in order.
[[nodiscard]] QStringList readColumn(const QString& path, const QString& table, const QString& field);

[[nodiscard]] QByteArray readFile(const QString& path);
void writeFile(const QString& path, const QByteArray& bytes);

} // namespace lingomat
