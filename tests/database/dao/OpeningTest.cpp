// Opening, creating and closing files, and what stands in the way.

#include "EngineTest.h"

#include <QDir>
#include <QFile>

#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace dao {

namespace {

/// While it lives the process has nobody's rights: a test that runs as root meets locked doors too.
class WithoutPrivileges {
public:
    WithoutPrivileges() : m_changed(geteuid() == 0) {
        constexpr uid_t Nobody = 65534;
        if (m_changed) {
            EXPECT_EQ(seteuid(Nobody), 0);
        }
    }
    ~WithoutPrivileges() {
        if (m_changed) {
            EXPECT_EQ(seteuid(0), 0);
        }
    }
    Q_DISABLE_COPY_MOVE(WithoutPrivileges)

private:
    bool m_changed;
};

void setMode(const QString& path, mode_t mode) {
    EXPECT_EQ(chmod(QFile::encodeName(path).constData(), mode), 0) << path.toStdString();
}

} // namespace

class Opening : public EngineTest {
protected:
    static std::optional<int> openError(const QString& path) {
        return errorOf([&] { (void)DBEngine::OpenDatabase(path); });
    }
    static std::optional<int> createError(const QString& path) {
        return errorOf([&] { (void)DBEngine::Workspaces(0).CreateDatabase(path, u""_s); });
    }
};

TEST_F(Opening, AFileTellsItsNameAndVersion) {
    EXPECT_EQ(database.Name(), file());
    EXPECT_FALSE(database.Version().isEmpty());
    EXPECT_TRUE(database.isOpen());
    EXPECT_FALSE(database.isReadOnly());
    database.Close();
    EXPECT_FALSE(database.isOpen());
    EXPECT_EQ(files(), QStringList{u"test.lmt"_s}) << "one file, nothing beside it";
    database = DBEngine::OpenDatabase(file());
    EXPECT_TRUE(database.isOpen());
}

TEST_F(Opening, OfWhatIsNotThere) {
    EXPECT_EQ(openError(path(u"nothing.lmt"_s)), 3024);
    EXPECT_EQ(openError(path(u"no/folder.lmt"_s)), 3024);
    EXPECT_TRUE(descriptionOf([&] {
                    (void)DBEngine::OpenDatabase(path(u"nothing.lmt"_s));
                }).contains(path(u"nothing.lmt"_s)));
    EXPECT_EQ(files(), QStringList{u"test.lmt"_s}) << "a failed attempt makes no file";
}

TEST_F(Opening, OfWhatIsNoPath) {
    EXPECT_EQ(openError(QString()), 3044);
    EXPECT_EQ(openError(path(u"."_s)), 3044);
    EXPECT_EQ(openError(u"/"_s), 3044);
    EXPECT_EQ(openError(file() + QChar(0) + u"x"_s), 3044);
    EXPECT_EQ(openError(u"/dev/null"_s), 3051);
}

TEST_F(Opening, OfWhatIsNoDatabaseOfThisProgram) {
    write(u"empty"_s, {});
    write(u"text"_s, "Haus;house\n");
    write(u"short"_s, "SQLite format 3");
    write(u"header"_s, QByteArray("SQLite format 3\0", 16));
    write(u"noise"_s, QByteArray("SQLite format 3\0", 16) + QByteArray(5000, 'x'));
    write(u"zeros"_s, QByteArray(8192, '\0'));
    write(u"other"_s, {});
    RawFile(path(u"other"_s)).run(u"CREATE TABLE Vokabular(ID INTEGER PRIMARY KEY)"_s);
    write(u"void"_s, {});
    RawFile(path(u"void"_s)).run(u"PRAGMA user_version = 1; VACUUM"_s);
    for (const QString& name :
         {u"empty"_s, u"text"_s, u"short"_s, u"header"_s, u"noise"_s, u"zeros"_s, u"other"_s, u"void"_s}) {
        const QByteArray before = bytes(name);
        EXPECT_EQ(openError(path(name)), 3343) << name.toStdString();
        EXPECT_EQ(bytes(name), before) << name.toStdString();
    }
    EXPECT_EQ(files().size(), 9) << files().join(u' ').toStdString();
}

TEST_F(Opening, OfAFileOfALaterVersionSaysSo) {
    database.Close();
    RawFile(file()).run(u"PRAGMA user_version = 2"_s);
    EXPECT_EQ(openError(file()), 3343);
    EXPECT_TRUE(descriptionOf([&] { (void)DBEngine::OpenDatabase(file()); }).contains(u"later version"_s));
}

TEST_F(Opening, UnderAnyNameThatTheSystemAllows) {
    for (const QString& name : {u"Wörter 猫 😀.lmt"_s, u"it's \"odd\".lmt"_s, u"a?b#c%20d.lmt"_s,
                                u"file:x.lmt"_s, u" .lmt"_s, u"ohne"_s}) {
        (void)DBEngine::Workspaces(0).CreateDatabase(path(name), u""_s);
        EXPECT_TRUE(QFile::exists(path(name))) << name.toStdString();
        EXPECT_EQ(openError(path(name)), std::nullopt) << name.toStdString();
    }
}

TEST_F(Opening, ARelativePathIsNoUri) {
    const QString before = QDir::currentPath();
    ASSERT_TRUE(QDir::setCurrent(path(u"."_s)));
    EXPECT_EQ(createError(u"file:y.lmt?mode=memory"_s), std::nullopt);
    EXPECT_TRUE(QFile::exists(path(u"file:y.lmt?mode=memory"_s)));
    EXPECT_NE(createError(u":memory:"_s), std::nullopt) << "a name that the toolkit keeps for itself";
    EXPECT_NE(openError(u":memory:"_s), std::nullopt);
    QDir::setCurrent(before);
}

TEST_F(Opening, CreatingNeverOverwrites) {
    write(u"text"_s, "mine");
    EXPECT_EQ(createError(path(u"text"_s)), 3204);
    EXPECT_EQ(bytes(u"text"_s), "mine");
    EXPECT_EQ(createError(file()), 3204);
    EXPECT_EQ(createError(path(u"."_s)), 3204);
    ASSERT_TRUE(QFile::link(path(u"nowhere"_s), path(u"dangling"_s)));
    EXPECT_EQ(createError(path(u"dangling"_s)), 3204);
    EXPECT_FALSE(QFile::exists(path(u"nowhere"_s)));
    EXPECT_TRUE(
        descriptionOf([&] { (void)DBEngine::Workspaces(0).CreateDatabase(file(), u""_s); }).contains(file()));
}

TEST_F(Opening, CreatingNeedsAFolderThatCanBeWritten) {
    EXPECT_EQ(createError(path(u"no/folder.lmt"_s)), 3044);
    EXPECT_EQ(createError(QString()), 3044);
    EXPECT_EQ(createError(path(u"a"_s) + QChar(0)), 3044);
    setMode(path(u"."_s), 0555);
    {
        const WithoutPrivileges nobody;
        EXPECT_EQ(createError(path(u"new.lmt"_s)), 3051);
    }
    setMode(path(u"."_s), 0755);
}

TEST_F(Opening, OnlyWorkspace0Exists) {
    EXPECT_EQ(errorOf([] { (void)DBEngine::Workspaces(1); }), 3265);
    EXPECT_EQ(errorOf([] { (void)DBEngine::Workspaces(-1); }), 3265);
}

TEST_F(Opening, AFileThatMayNotBeReadIsToldApart) {
    database.Close();
    setMode(path(u"."_s), 0755);
    setMode(file(), 0000);
    {
        const WithoutPrivileges nobody;
        EXPECT_EQ(openError(file()), 3051);
    }
    setMode(file(), 0644);
}

TEST_F(Opening, AReadOnlyFileCanBeReadAndRefusesChanges) {
    addWords({u"a"_s});
    database.Close();
    const QByteArray before = bytes(u"test.lmt"_s);
    setMode(path(u"."_s), 0555);
    setMode(file(), 0444);
    {
        const WithoutPrivileges nobody;
        database = DBEngine::OpenDatabase(file());
        EXPECT_TRUE(database.isReadOnly());
        Recordset recordset = words();
        EXPECT_EQ(main(recordset), u"a");
        recordset.Edit();
        recordset.setField(u"Main"_s, u"b"_s);
        EXPECT_EQ(errorOf([&] { recordset.Update(); }), 3027);
        EXPECT_EQ(errorOf([&] { recordset.Delete(); }), 3027);
        EXPECT_EQ(errorOf([&] { addWords({u"c"_s}); }), 3027);
        EXPECT_EQ(errorOf([&] { database.appendProperty(u"Wort"_s, {u"x"_s, DataType::Long, 1}); }), 3027);
        recordset.Requery();
        EXPECT_EQ(walk(recordset), u"a");
        database.Close();
    }
    setMode(path(u"."_s), 0755);
    EXPECT_EQ(bytes(u"test.lmt"_s), before);
}

TEST_F(Opening, AFileInAFolderThatCannotBeWrittenRefusesChanges) {
    addWords({u"a"_s});
    database.Close();
    setMode(file(), 0666);
    setMode(path(u"."_s), 0555);
    {
        const WithoutPrivileges nobody;
        database = DBEngine::OpenDatabase(file());
        Recordset recordset = words();
        recordset.Edit();
        recordset.setField(u"Main"_s, u"b"_s);
        EXPECT_EQ(errorOf([&] { recordset.Update(); }), 3027);
        recordset.Requery();
        EXPECT_EQ(walk(recordset), u"a");
        database.Close();
    }
    setMode(path(u"."_s), 0755);
    EXPECT_EQ(stored(), u"a");
}

TEST_F(Opening, LeavesTheFileByteForByte) {
    addWords({u"a"_s, u"b"_s});
    database.Close();
    const QByteArray before = bytes(u"test.lmt"_s);
    database = DBEngine::OpenDatabase(file());
    Recordset recordset = words();
    recordset.FindFirst(u"Main LIKE '*b'"_s);
    EXPECT_EQ(walk(recordset), u"a b");
    database.Close();
    EXPECT_EQ(bytes(u"test.lmt"_s), before);
    EXPECT_EQ(files(), QStringList{u"test.lmt"_s});
}

TEST_F(Opening, NoDatabaseAndAClosedOneAreToldApart) {
    Database none;
    EXPECT_FALSE(none.isOpen());
    const std::function<void(Database&)> uses[] = {
        [](Database& d) { d.Close(); },
        [](Database& d) { (void)d.Name(); },
        [](Database& d) { (void)d.Version(); },
        [](Database& d) { (void)d.isReadOnly(); },
        [](Database& d) { (void)d.TableNames(); },
        [](Database& d) { (void)d.Table(u"Wort"_s); },
        [](Database& d) { (void)d.Relations(); },
        [](Database& d) { (void)d.OpenRecordset(u"SELECT * FROM Wort"_s); },
        [](Database& d) { d.appendTable({}); },
        [](Database& d) { d.appendProperty(u"Wort"_s, {}); },
        [](Database& d) { d.appendRelation({}); },
        [](Database& d) { const SteadyReading steady(d); },
    };
    for (const auto& use : uses)
        EXPECT_EQ(errorOf([&] { use(none); }), 91);
    Database copy = database;
    database.Close();
    for (const auto& use : uses) {
        EXPECT_EQ(errorOf([&] { use(database); }), 3420);
        EXPECT_EQ(errorOf([&] { use(copy); }), 3420);
    }
}

} // namespace dao
