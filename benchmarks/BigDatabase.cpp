#include "BigDatabase.h"

#include "CDBCreator.h"
#include "DBEngine.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <array>
#include <stdexcept>

using namespace Qt::StringLiterals;

namespace {

using Keys = QList<qint64>;

struct LinkTable {
    dao::Recordset rows;
    Keys keys; ///< of the list that it links to

    LinkTable(const dao::Database& database, const QString& table, Keys listKeys)
        : rows(database.OpenRecordset(u"SELECT * FROM "_s + table)), keys(std::move(listKeys)) {}

    void link(qint64 entry, qsizetype item) {
        rows.AddNew();
        rows.setField(u"IDV"_s, entry);
        rows.setField(u"ID"_s, keys[item % keys.size()]);
        rows.Update();
    }
};

qint64 keyOfLastModified(dao::Recordset& rows) {
    rows.setBookmark(rows.LastModified());
    return rows.field(0).toInteger();
}

Keys fillList(const dao::Database& database, const QString& table, const QString& field, int count) {
    dao::Recordset rows = database.OpenRecordset(u"SELECT * FROM "_s + table);
    Keys keys;
    for (int number = 1; number <= count; ++number) {
        rows.AddNew();
        rows.setField(field, u"%1 %2"_s.arg(field).arg(number));
        rows.Update();
        keys.append(keyOfLastModified(rows));
    }
    return keys;
}

const QString& pick(const auto& values, int number) {
    return values[static_cast<size_t>(number) % values.size()];
}

/// Numbers spread over the alphabet, so that sorting has something to do.
QString word(int number) {
    QString letters;
    for (qint64 rest = qint64{number} * 7919 % 308915776; letters.size() < 6; rest /= 26)
        letters += QChar(u'a' + static_cast<char16_t>(rest % 26));
    return letters;
}

void setEntry(dao::Recordset& entries, int number) {
    static const std::array articles{u"der"_s, u"die"_s, u"das"_s, u""_s};
    static const std::array kinds{u"Substantiv"_s, u"Verb"_s, u"Adjektiv"_s, u"Adverb"_s, u"Phrase"_s};
    const QString text = word(number);
    entries.setField(u"Quelle"_s, u"Source %1"_s.arg(number % 20));
    entries.setField(u"Eingabedatum"_s, u"20%1%2%3"_s.arg(number % 24, 2, 10, '0'_L1)
                                            .arg(number % 12 + 1, 2, 10, '0'_L1)
                                            .arg(number % 28 + 1, 2, 10, '0'_L1));
    entries.setField(u"Aenderungsdatum"_s, u"20240%1%2"_s.arg(number % 9 + 1).arg(number % 19 + 10));
    entries.setField(u"Beispielsatz"_s, u"Hier steht ein Satz mit %1 darin."_s.arg(text));
    entries.setField(u"Lang1_Prefix"_s, pick(articles, number));
    entries.setField(u"Lang1_Main"_s, text + u"ung"_s);
    entries.setField(u"Lang1_Suffix"_s, u""_s);
    entries.setField(u"Lang1_Kommentar"_s, number % 3 == 0 ? u"comment"_s : u""_s);
    entries.setField(u"Lang2_Prefix"_s, u"the"_s);
    entries.setField(u"Lang2_Main"_s, text + u"ing"_s);
    entries.setField(u"Lang2_Suffix"_s, u""_s);
    entries.setField(u"Lang2_Kommentar"_s, u""_s);
    entries.setField(u"Score"_s, number % 6 + 1);
    entries.setField(u"Zusatzinfo"_s, number % 4 == 0 ? u"More about %1"_s.arg(text) : u""_s);
    entries.setField(u"Wortart"_s, pick(kinds, number));
}

dao::Database createDatabase(const QString& path) {
    lingomat::CDBCreator creator(
        {.fileExists = [](const QString&) {},
         .reportError =
             [](const QString& description) { throw std::runtime_error(description.toStdString()); },
         .internalError = [] {}});
    lingomat::LanguageFields languages;
    languages.Lang1Name = u"German"_s;
    languages.Lang2Name = u"English"_s;
    dao::Database database = creator.CreateNewDatabase(path, false, languages);
    if (!database.isOpen())
        throw std::runtime_error("the big database could not be created");
    return database;
}

/// A folder in memory where the system has one: each row is written durably, and here that costs nothing.
QString quickFolder() {
    const QString memory = u"/dev/shm"_s;
    return QDir(memory).exists() ? memory : QDir::tempPath();
}

} // namespace

void writeBigDatabase(const QString& path) {
    dao::Database database = createDatabase(path);
    LinkTable areas(database, u"Bereiche_Zwischen"_s,
                    fillList(database, u"Bereiche"_s, u"Bereich_Text"_s, 40));
    LinkTable grammatical(database, u"GrammatikalischeAttribute_Zwischen"_s,
                          fillList(database, u"GrammatikalischeAttribute"_s, u"Attribut_Text"_s, 12));
    LinkTable functional(database, u"FunktionaleAttribute_Zwischen"_s,
                         fillList(database, u"FunktionaleAttribute"_s, u"Attribut_Text"_s, 8));
    dao::Recordset entries = database.OpenRecordset(u"SELECT * FROM Vokabular"_s);
    for (int number = 1; number <= BigDatabaseEntries; ++number) {
        entries.AddNew();
        setEntry(entries, number);
        entries.Update();
        const qint64 key = keyOfLastModified(entries);
        areas.link(key, number);
        areas.link(key, number + 7);
        grammatical.link(key, number);
        functional.link(key, number);
    }
    database.Close();
}

QString bigDatabase() {
    // The number of the layout in the name: a new one makes a new file.
    const QString path = QStringLiteral(LINGOMAT_BENCHMARK_FOLDER) + u"/big-1.lmt"_s;
    if (QFile::exists(path))
        return path;
    const QTemporaryDir folder(quickFolder() + u"/lingomat-"_s);
    const QString draft = folder.filePath(u"big.lmt"_s);
    writeBigDatabase(draft);
    const QString copy = path + u".part"_s;
    QFile::remove(copy);
    if (!QFile::copy(draft, copy) || !QFile::rename(copy, path))
        throw std::runtime_error("the big database could not be put beside the benchmarks");
    return path;
}
