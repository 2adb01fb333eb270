// What befalls the file while a session of the Trainer runs. Each is told, and the session goes on.

#include "FaultSupport.h"

#include "FlexGrid.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QPushButton>

#include <gtest/gtest.h>

#include <sqlite3.h>
#include <sys/stat.h>

#include <memory>

using namespace Qt::StringLiterals;

namespace lingomat {
namespace {

struct CloseSqlite {
    void operator()(sqlite3* handle) const { sqlite3_close(handle); }
};

/// Another program that works on a file.
class OtherProgram {
public:
    explicit OtherProgram(const QString& path) {
        sqlite3* handle = nullptr;
        EXPECT_EQ(sqlite3_open(path.toUtf8().constData(), &handle), SQLITE_OK);
        m_handle.reset(handle);
    }
    void run(const char* sql) {
        EXPECT_EQ(sqlite3_exec(m_handle.get(), sql, nullptr, nullptr, nullptr), SQLITE_OK)
            << sqlite3_errmsg(m_handle.get());
    }

private:
    std::unique_ptr<sqlite3, CloseSqlite> m_handle;
};

/// A self-test over four entries. Every answer is taken as a wrong one, so each score goes from 3 to 4.
class Session : public testing::Test {
protected:
    Session() {
        for (const QString& folder : {QFileInfo(file).path(), program.settingsFolder()}) {
            QDir().mkpath(folder);
            chmod(QFile::encodeName(folder).constData(), 0777);
        }
        writeDatabase(file, {.entries = someEntries()});
        chmod(QFile::encodeName(file).constData(), 0666);
        OtherProgram(file).run("UPDATE Vokabular SET Score = 3");
        program.promptsInPlace = &prompts;
        program.rememberDatabase(file);
    }

    void begin(bool typed = false) {
        program.start();
        program.click("Command1");
        child<QPushButton>(program.app().form2(), "Command4").click();
        trainer().Selbsttest = true;
        trainer().Schreiben = typed;
        trainer().OptionsToUI();
        prompts.texts.clear();
    }

    Trainer& trainer() { return program.app().trainer(); }
    QString question() { return child<FlexGrid>(trainer(), "VokabelnGrid").TextMatrix(1, 0); }
    /// One answer; what the program said about it.
    QStringList answer() {
        prompts.texts.clear();
        trainer().Command3_Click();
        if (!trainer().Schreiben)
            trainer().Command3_Click();
        QStringList told = prompts.texts;
        told.removeIf([](const QString& text) { return text.startsWith(u"form "_s); }); // those that ask
        return told;
    }
    void expectTold(const QStringList& texts) {
        EXPECT_TRUE(texts.join(u'\n').contains(u"The following error occured: "_s))
            << texts.join(u'\n').toStdString();
    }
    QString listed(int row) { return program.app().liste().MSFlexGrid1().TextMatrix(row, Liste::ColScore); }
    QStringList stored() { return readColumn(file, u"Vokabular"_s, u"Score"_s); }

    RecordingPrompts prompts;
    TestProgram program;
    const QString file = program.path(u"lesson.lmt"_s);
};

TEST_F(Session, AFileLockedByAnotherProgramIsToldAndTheNextAnswerIsWritten) {
    for (const bool typed : {false, true}) {
        OtherProgram(file).run("UPDATE Vokabular SET Score = 3");
        begin(typed);
        OtherProgram other(file);
        other.run("BEGIN EXCLUSIVE");
        expectTold(answer());
        EXPECT_EQ(listed(1), u"4") << "the list keeps the new value";
        EXPECT_EQ(trainer().Position, 1);
        other.run("ROLLBACK");
        EXPECT_EQ(answer(), QStringList());
        EXPECT_EQ(trainer().Position, 2);
        EXPECT_EQ(stored().mid(0, 2), (QStringList{u"3"_s, u"4"_s})) << "of the answer after it";
        program.end();
    }
}

TEST_F(Session, AFileThatHasBecomeReadOnlyIsTold) {
    begin();
    chmod(QFile::encodeName(file).constData(), 0444);
    chmod(QFile::encodeName(QFileInfo(file).path()).constData(), 0555);
    {
        const OrdinaryUser user;
        expectTold(answer());
        const QString first = question();
        expectTold(answer());
        EXPECT_NE(question(), first) << "the session goes on";
    }
    chmod(QFile::encodeName(QFileInfo(file).path()).constData(), 0777);
    chmod(QFile::encodeName(file).constData(), 0666);
    EXPECT_EQ(answer(), QStringList());
    EXPECT_EQ(stored().mid(0, 3), (QStringList{u"3"_s, u"3"_s, u"4"_s}));
}

TEST_F(Session, AFileThatIsGoneIsTold) {
    begin();
    ASSERT_TRUE(QFile::rename(file, file + u".away"_s));
    expectTold(answer());
    expectTold(answer());
    EXPECT_EQ(trainer().Position, 2);
    EXPECT_FALSE(QFile::exists(file)) << "nothing is put in its place";
    ASSERT_TRUE(QFile::rename(file + u".away"_s, file));
    EXPECT_EQ(answer(), QStringList());
    EXPECT_EQ(stored().mid(0, 3), (QStringList{u"3"_s, u"3"_s, u"4"_s}));
}

TEST_F(Session, ARowThatAnotherProgramHasDeletedIsTold) {
    begin(true);
    OtherProgram(file).run("DELETE FROM Vokabular WHERE ID = (SELECT min(ID) FROM Vokabular)");
    expectTold(answer());
    EXPECT_EQ(answer(), QStringList());
    EXPECT_EQ(stored(), (QStringList{u"4"_s, u"3"_s, u"3"_s})) << "no other row took its score";
}

} // namespace
} // namespace lingomat
