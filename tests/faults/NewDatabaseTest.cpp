// A new database where there is no room for one, no right to make one, or another program on the same file.

#include "FaultSupport.h"

#include "DBEngine.h"
#include "EngineError.h"

#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QPushButton>

#include <gtest/gtest.h>

#include <sys/resource.h>

#include <csignal>

using namespace Qt::StringLiterals;

namespace lingomat {
namespace {

/// While it lives, no file grows beyond so many bytes: the way in which a disk is full for this process.
class FullDisk {
public:
    explicit FullDisk(rlim_t bytes) : m_handler(std::signal(SIGXFSZ, SIG_IGN)) {
        getrlimit(RLIMIT_FSIZE, &m_before);
        rlimit limited = m_before;
        limited.rlim_cur = bytes;
        setrlimit(RLIMIT_FSIZE, &limited);
    }
    ~FullDisk() {
        setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_handler);
    }
    Q_DISABLE_COPY_MOVE(FullDisk)

private:
    rlimit m_before{};
    void (*m_handler)(int);
};

class NewDatabase : public testing::Test {
protected:
    NewDatabase() { program.startWithDatabase(); }

    void announce(const QString& path) {
        program.prompts.expectSaveFile(path);
        program.prompts.expectDialog("SprachenEingabe", [](QDialog& form) {
            child<QLineEdit>(form, "Sprache1").setText(u"Latein"_s);
            child<QLineEdit>(form, "Sprache2").setText(u"Englisch"_s);
            child<QPushButton>(form, "OK").click();
        });
    }
    void announceOverwriting(const QString& path) {
        announce(path);
        program.prompts.expect({.icon = QMessageBox::Question,
                                .text = ExpectedText::containing(u"already exists. Overwrite file?"_s),
                                .answer = QMessageBox::Yes});
    }
    void choose() {
        program.choose("Menu_Datei_Neu");
        program.prompts.verify();
    }
    void expectNothingOpen() {
        EXPECT_FALSE(program.app().state().databaseIsOpen());
        EXPECT_EQ(program.label("DBAnzeige"), u"Database: <none>"_s);
        EXPECT_EQ(program.recentDatabase(), program.path(u"vocab.lmt"_s));
    }

    TestProgram program;
    const QString fresh = program.path(u"fresh.lmt"_s);
};

TEST_F(NewDatabase, OnAFullDiskIsToldAndGivenUp) {
    for (const rlim_t bytes : {0, 1024, 4096, 16384}) {
        const QString path = program.path(u"full%1.lmt"_s.arg(bytes));
        announce(path);
        program.prompts.expectErrorContaining(u"The database file cannot be read or written"_s);
        {
            const FullDisk disk(bytes);
            choose();
        }
        expectNothingOpen();
    }
}

TEST_F(NewDatabase, MadeWhereOneWasLeftHalfMadeIsWhole) {
    announce(fresh);
    program.prompts.expectErrorContaining(u"The database file cannot be read or written"_s);
    {
        const FullDisk disk(16384);
        choose();
    }
    announceOverwriting(fresh);
    choose();
    EXPECT_EQ(program.app().state().CurrentDBPath, fresh);
    EXPECT_EQ(readColumn(fresh, u"Synonyme"_s, u"Main"_s), QStringList());
}

TEST_F(NewDatabase, ThatDoesNotFitInPlaceOfAnotherLeavesNothingOpen) {
    writeFile(fresh, "somebody's own");
    announceOverwriting(fresh);
    program.prompts.expectErrorContaining(u"The database file cannot be read or written"_s);
    {
        const FullDisk disk(4096);
        choose();
    }
    expectNothingOpen();
}

class NewDatabaseInALockedFolder : public NewDatabase {
protected:
    NewDatabaseInALockedFolder() {
        QDir().mkpath(folder);
        writeFile(existing, "somebody's own");
        QFile::setPermissions(folder, QFile::ReadOwner | QFile::ExeOwner | QFile::ReadGroup |
                                          QFile::ExeGroup | QFile::ReadOther | QFile::ExeOther);
        // Nobody has to get here through the folder of the test, and to remember a file there.
        QFile::setPermissions(program.path({}), QFile::Permissions(0x7777));
    }
    ~NewDatabaseInALockedFolder() override {
        QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }
    const QString folder = program.path(u"locked"_s);
    const QString existing = folder + "/existing.lmt"_L1;
};

TEST_F(NewDatabaseInALockedFolder, IsToldAndGivenUp) {
    const QString path = folder + "/fresh.lmt"_L1;
    announce(path);
    program.prompts.expectError("Cannot open the file '"_L1 + path +
                                "'. It is in use by another program, or permission is missing."_L1);
    {
        const OrdinaryUser user;
        choose();
    }
    expectNothingOpen();
    EXPECT_FALSE(QFile::exists(path));
}

TEST_F(NewDatabaseInALockedFolder, CannotReplaceAFile) {
    announceOverwriting(existing);
    program.prompts.expect({.icon = QMessageBox::NoIcon,
                            .text = QString("The file '"_L1 + existing + "' cannot be deleted."_L1)});
    {
        const OrdinaryUser user;
        choose();
    }
    expectNothingOpen();
    EXPECT_EQ(readFile(existing), "somebody's own");
}

TEST_F(NewDatabase, OverAFileThatAnotherProgramHasOpenIsItsOwn) {
    writeDatabase(fresh, {.entries = someEntries()});
    dao::Database other = dao::DBEngine::OpenDatabase(fresh);
    dao::Recordset rows = other.OpenRecordset(u"SELECT * FROM Vokabular"_s);

    announceOverwriting(fresh);
    choose();

    EXPECT_EQ(rows.field(u"Lang1_Main"_s).toText(), u"ja"_s) << "the other still reads what it had opened";
    rows.Edit();
    rows.setField(u"Lang1_Main"_s, u"nein"_s);
    EXPECT_THROW(rows.Update(), dao::Error) << "and is told that what it writes would be lost";
    EXPECT_EQ(readColumn(fresh, u"Vokabular"_s, u"Lang1_Main"_s), QStringList());
}

TEST_F(NewDatabase, DeletedByAnotherProgramIsNoticedBySaving) {
    announce(fresh);
    choose();
    ASSERT_TRUE(QFile::remove(fresh));
    dao::Recordset& rows = program.app().state().DBHandler.RecordsetVokabular;
    rows.AddNew();
    rows.setField(u"Lang1_Main"_s, u"sum"_s);
    EXPECT_THROW(rows.Update(), dao::Error);

    announce(fresh);
    choose();
    EXPECT_EQ(readColumn(fresh, u"Vokabular"_s, u"Lang1_Main"_s), QStringList());
}

} // namespace
} // namespace lingomat
