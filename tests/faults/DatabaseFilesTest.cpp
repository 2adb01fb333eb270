// Files that are no database of the program, or that cannot be opened: at the start and by the Open command.

#include "FaultSupport.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

#include <sqlite3.h>
#include <sys/stat.h>

#include <memory>
#include <tuple>

using namespace Qt::StringLiterals;

namespace lingomat {
namespace {

struct CloseSqlite {
    void operator()(sqlite3* handle) const { sqlite3_close(handle); }
};
using Sqlite = std::unique_ptr<sqlite3, CloseSqlite>;

/// Another program that works on a file.
Sqlite openElsewhere(const QString& path) {
    sqlite3* handle = nullptr;
    const int code = sqlite3_open(path.toUtf8().constData(), &handle);
    Sqlite result(handle);
    EXPECT_EQ(code, SQLITE_OK);
    return result;
}

void run(const Sqlite& database, const char* sql) {
    EXPECT_EQ(sqlite3_exec(database.get(), sql, nullptr, nullptr, nullptr), SQLITE_OK)
        << sqlite3_errmsg(database.get());
}

class BadFile : public testing::TestWithParam<std::tuple<Way, QString>> {
protected:
    BadFile() : faulty(std::get<0>(GetParam()), std::get<1>(GetParam())) {}

    void openAndExpectRefused() {
        const QByteArray before = readFile(file);
        faulty.open(file);
        faulty.expectRefused();
        EXPECT_EQ(readFile(file), before) << "the file is unchanged";
    }
    [[nodiscard]] QString notALanguageDatabase() const {
        return std::get<1>(GetParam()) == u"En"_s ? u"The file is not a valid language database."_s
                                                  : u"Die Datei ist keine gültige Sprachdatenbank."_s;
    }

    FaultyFile faulty;
    const QString file = faulty.path(u"faulty.lmt"_s);
};

INSTANTIATE_TEST_SUITE_P(Ways, BadFile,
                         testing::Combine(testing::Values(Way::AtStart, Way::ByCommand),
                                          testing::Values(u"En"_s, u"De"_s)),
                         [](const auto& parameter) {
                             return std::string(std::get<0>(parameter.param) == Way::AtStart ? "AtStart"
                                                                                             : "ByCommand") +
                                    std::get<1>(parameter.param).toStdString();
                         });

TEST_P(BadFile, Moved) {
    faulty.open(file);
    faulty.expectTold(file);
    faulty.expectRefused();
    EXPECT_FALSE(QFile::exists(file)) << "opening makes no file";
}

TEST_P(BadFile, InAFolderThatIsGone) {
    faulty.open(faulty.path(u"gone/faulty.lmt"_s));
    faulty.expectRefused();
    EXPECT_FALSE(QFile::exists(faulty.path(u"gone"_s)));
}

TEST_P(BadFile, Folder) {
    ASSERT_TRUE(QDir().mkpath(file));
    faulty.open(file);
    faulty.expectTold(file);
    faulty.expectRefused();
    EXPECT_TRUE(QDir(file).isEmpty());
}

TEST_P(BadFile, LinkToNothing) {
    ASSERT_TRUE(QFile::link(faulty.path(u"gone.lmt"_s), file));
    faulty.open(file);
    faulty.expectRefused();
    EXPECT_FALSE(QFile::exists(faulty.path(u"gone.lmt"_s)));
}

TEST_P(BadFile, Pipe) {
    ASSERT_EQ(mkfifo(QFile::encodeName(file).constData(), 0600), 0);
    faulty.open(file);
    faulty.expectRefused();
}

TEST_P(BadFile, Empty) {
    writeFile(file, {});
    openAndExpectRefused();
    faulty.expectTold(file);
}

TEST_P(BadFile, Text) {
    writeFile(file, "Haus = house\ngehen = go\n");
    openAndExpectRefused();
    faulty.expectTold(file);
}

TEST_P(BadFile, ZeroBytes) {
    writeFile(file, QByteArray(8192, '\0'));
    openAndExpectRefused();
}

TEST_P(BadFile, DatabaseOfAnotherProgram) {
    run(openElsewhere(file), "CREATE TABLE Vokabular(ID INTEGER PRIMARY KEY, Lang1_Main TEXT);"
                             "INSERT INTO Vokabular VALUES(1, 'Haus')");
    openAndExpectRefused();
    faulty.expectTold(file);
}

TEST_P(BadFile, OfALaterLayout) {
    writeDatabase(file, {.entries = someEntries()});
    run(openElsewhere(file), "PRAGMA user_version = 99");
    openAndExpectRefused();
    faulty.expectTold(file);
}

TEST_P(BadFile, LockedByAnotherProgram) {
    writeDatabase(file, {.entries = someEntries()});
    const Sqlite other = openElsewhere(file);
    run(other, "BEGIN EXCLUSIVE");
    openAndExpectRefused();
    faulty.expectTold(file);
}

TEST_P(BadFile, NotReadable) {
    writeDatabase(file, {.entries = someEntries()});
    const QByteArray before = readFile(file);
    // The folder of the test has to let an ordinary user pass, and the settings be written.
    for (const QString& folder : {QFileInfo(file).path(), faulty.program().settingsFolder()}) {
        QDir().mkpath(folder);
        chmod(QFile::encodeName(folder).constData(), 0777);
    }
    chmod(QFile::encodeName(file).constData(), 0000);
    {
        const OrdinaryUser user;
        faulty.open(file);
        EXPECT_FALSE(faulty.isOpen());
        faulty.expectTold(file);
    }
    chmod(QFile::encodeName(file).constData(), 0644);
    EXPECT_EQ(readFile(file), before);
}

TEST_P(BadFile, MalformedLanguages) {
    for (const auto& languages : {u"Deutsch"_s, u"Deutsch@Englisch"_s, u"@"_s, u" "_s, u"@Lang1=a@Lang2=b"_s,
                                  u"Lang1=a@Lang2=b@Lang3=c@"_s}) {
        writeDatabase(file, {.entries = someEntries(), .languages = languages});
        const QByteArray before = readFile(file);
        faulty.open(file);
        EXPECT_FALSE(faulty.isOpen()) << languages.toStdString();
        faulty.expectTold(notALanguageDatabase());
        EXPECT_EQ(readFile(file), before);
    }
    faulty.expectRefused();
}

TEST_P(BadFile, MissingTable) {
    for (const auto& table :
         {u"Referenzen"_s, u"GrammatikalischeAttribute"_s, u"GrammatikalischeAttribute_Zwischen"_s,
          u"FunktionaleAttribute"_s, u"FunktionaleAttribute_Zwischen"_s, u"Synonyme"_s}) {
        writeDatabase(file, {.entries = someEntries(), .missingTables = {table}});
        const QByteArray before = readFile(file);
        faulty.open(file);
        EXPECT_FALSE(faulty.isOpen()) << table.toStdString();
        faulty.expectTold(table);
        EXPECT_EQ(readFile(file), before);
    }
    faulty.expectRefused();
}

TEST_P(BadFile, MissingVokabular) {
    writeDatabase(file, {.missingTables = {u"Vokabular"_s}});
    openAndExpectRefused();
    faulty.expectTold(u"Vokabular"_s);
    faulty.expectTold(notALanguageDatabase());
}

TEST_P(BadFile, OldVersion) {
    for (const int version : {-5, 0, 1, 2}) {
        writeDatabase(file, {.entries = someEntries(), .version = version});
        const QByteArray before = readFile(file);
        faulty.open(file);
        // A negative version cannot be told from a failure to read it, and counts as not old.
        EXPECT_EQ(faulty.isOpen(), version < 0) << version;
        EXPECT_EQ(readFile(file), before);
    }
    faulty.expectTold(file);
    faulty.expectRefused();
}

TEST_P(BadFile, VersionThatIsNoNumber) {
    writeDatabase(file, {.entries = someEntries()});
    run(openElsewhere(file), "UPDATE lmt_properties SET value = 'three' WHERE name = 'DBVersion'");
    openAndExpectRefused();
}

TEST_P(BadFile, ReadOnlyFileOpensAndStaysAsItIs) {
    writeDatabase(file, {.entries = someEntries(), .unusedAreas = {u"nobody's"_s}});
    const QByteArray before = readFile(file);
    for (const QString& folder : {QFileInfo(file).path(), faulty.program().settingsFolder()}) {
        QDir().mkpath(folder);
        chmod(QFile::encodeName(folder).constData(), 0777);
    }
    chmod(QFile::encodeName(file).constData(), 0444);
    chmod(QFile::encodeName(QFileInfo(file).path()).constData(), 0555);
    {
        const OrdinaryUser user;
        faulty.open(file);
        EXPECT_TRUE(faulty.isOpen());
        EXPECT_EQ(faulty.program().label("AnzahlLabel").right(2), u" 4"_s);
        faulty.program().click("Command4"); // wants to clean up, and tells that it cannot
        EXPECT_FALSE(faulty.program().app().form1().isVisible());
        EXPECT_FALSE(faulty.messages().isEmpty());
    }
    chmod(QFile::encodeName(QFileInfo(file).path()).constData(), 0777);
    EXPECT_EQ(readFile(file), before);
}

} // namespace
} // namespace lingomat
