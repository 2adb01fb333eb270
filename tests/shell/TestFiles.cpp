#include "TestFiles.h"

#include "CDBCreator.h"
#include "DBEngine.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QTemporaryDir>

#include <stdexcept>

using namespace Qt::StringLiterals;

namespace lingomat {

namespace {

const QString Locale = u";LANGID=0x0409;CP=1252;COUNTRY=0"_s;

/// Where a file is made before it is copied to its place. The engine waits for the disk with every change,
/// which for a memory that serves as a disk is no time.
QString quickFolder() {
    const QFileInfo memory(u"/dev/shm"_s);
    return memory.isDir() && memory.isWritable() ? memory.filePath() : QDir::tempPath();
}

/// The tables of a new database, as the program itself makes them.
QList<dao::TableDef> makeSoundTables(const QString& path) {
    CDBCreator creator(
        {.fileExists = {},
         .reportError = [](const QString& text) { throw std::runtime_error(text.toStdString()); },
         .internalError = {}});
    LanguageFields languages;
    dao::Database database = creator.CreateNewDatabase(path, false, languages);
    QList<dao::TableDef> tables;
    const QStringList names = database.TableNames();
    for (const QString& name : names)
        tables.append(database.Table(name));
    database.Close();
    return tables;
}

QList<dao::Property> properties(const TestDatabase& wanted) {
    QList<dao::Property> all;
    const QString names = "Lang1="_L1 + wanted.lang1 + "@Lang2="_L1 + wanted.lang2;
    if (!wanted.withoutLanguages)
        all.append({u"Languages"_s, dao::DataType::Text, wanted.languages.value_or(names)});
    if (!wanted.withoutVersion)
        all.append({u"DBVersion"_s, dao::DataType::Integer, wanted.version});
    return all;
}

dao::Recordset open(const dao::Database& database, const QString& table) {
    return database.OpenRecordset("SELECT * FROM "_L1 + table);
}

/// Adds a row and gives its number.
dao::Value addRow(dao::Recordset& table, const QHash<QString, dao::Value>& fields) {
    table.AddNew();
    for (auto field = fields.cbegin(); field != fields.cend(); ++field)
        table.setField(field.key(), field.value());
    table.Update();
    table.setBookmark(table.LastModified());
    return table.field(0);
}

void addEntries(const dao::Database& database, const TestDatabase& wanted) {
    dao::Recordset vokabular = open(database, u"Vokabular"_s);
    dao::Recordset areas = open(database, u"Bereiche"_s);
    dao::Recordset links = open(database, u"Bereiche_Zwischen"_s);
    QHash<QString, dao::Value> keys;
    for (const TestEntry& entry : wanted.entries) {
        QHash<QString, dao::Value> fields{
            {u"Lang1_Main"_s, entry.lang1},     {u"Lang2_Main"_s, entry.lang2},
            {u"Wortart"_s, entry.wortart},      {u"Quelle"_s, entry.quelle},
            {u"Eingabedatum"_s, u"20020301"_s}, {u"Aenderungsdatum"_s, u"20020301"_s}};
        for (const char* empty : {"Lang1_Prefix", "Lang1_Suffix", "Lang1_Kommentar", "Lang2_Prefix",
                                  "Lang2_Suffix", "Lang2_Kommentar", "Beispielsatz", "Zusatzinfo"})
            fields.insert(QString::fromLatin1(empty), QString());
        const dao::Value entryKey = addRow(vokabular, fields);
        for (const QString& area : entry.areas) {
            if (!keys.contains(area))
                keys.insert(area, addRow(areas, {{u"Bereich_Text"_s, area}}));
            addRow(links, {{u"IDV"_s, entryKey}, {u"ID"_s, keys.value(area)}});
        }
    }
    for (const QString& area : wanted.unusedAreas)
        addRow(areas, {{u"Bereich_Text"_s, area}});
}

} // namespace

QList<TestEntry> someEntries() {
    return {{u"ja"_s, u"yes"_s, u"adverb"_s, u"book"_s, {u"talk"_s}},
            {u"Haus"_s, u"house"_s, u"noun"_s, u"book"_s, {u"home"_s, u"talk"_s}},
            {u"gehen"_s, u"go"_s, u"verb"_s, u"film"_s, {}},
            {u"schön"_s, u"beautiful"_s, u"adjective"_s, u"film"_s, {u"home"_s}}};
}

void writeDatabase(const QString& path, const TestDatabase& wanted) {
    const QTemporaryDir folder(quickFolder() + "/lingomat-test-XXXXXX"_L1);
    static const QList<dao::TableDef> tables = makeSoundTables(folder.filePath(u"tables"_s));
    const QString made = folder.filePath(u"made"_s);
    dao::Database database = dao::DBEngine::Workspaces(0).CreateDatabase(made, Locale);
    for (dao::TableDef table : tables) {
        if (wanted.missingTables.contains(table.Name))
            continue;
        if (table.Name == u"Vokabular"_s)
            table.Properties = properties(wanted);
        database.appendTable(table);
    }
    if (!wanted.entries.isEmpty() || !wanted.unusedAreas.isEmpty())
        addEntries(database, wanted);
    database.Close();
    writeFile(path, readFile(made));
}

QStringList readColumn(const QString& path, const QString& table, const QString& field) {
    dao::Database database = dao::DBEngine::OpenDatabase(path);
    dao::Recordset rows = open(database, table);
    QStringList texts;
    for (; !rows.EOF_(); rows.MoveNext())
        texts.append(rows.field(field).toText(QString()));
    rows.Close();
    database.Close();
    return texts;
}

QByteArray readFile(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw std::runtime_error("cannot read " + path.toStdString());
    return file.readAll();
}

void writeFile(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        throw std::runtime_error("cannot write " + path.toStdString());
}

} // namespace lingomat
