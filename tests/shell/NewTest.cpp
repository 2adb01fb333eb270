#include "TestProgram.h"

#include "DBEngine.h"
#include "FlexGrid.h"
#include "Globals.h"

#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QPushButton>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace lingomat {
namespace {

const QString NoLanguages = u"The database can not be created, if there are no languages specified!"_s;

void enterLanguages(QDialog& form, const QString& first, const QString& second) {
    child<QLineEdit>(form, "Sprache1").setText(first);
    child<QLineEdit>(form, "Sprache2").setText(second);
    child<QPushButton>(form, "OK").click();
}

class New : public testing::Test {
protected:
    explicit New(const QString& language = u"En"_s) : program(language) {
        program.startWithDatabase();
        program.app().form2().AuswahlGeaendert = false;
    }

    void expectLanguages() {
        program.prompts.expectDialog("SprachenEingabe",
                                     [](QDialog& form) { enterLanguages(form, u"Latein"_s, u"Englisch"_s); });
    }
    void expectOverwriteQuestion(const QString& path, QMessageBox::StandardButton answer) {
        program.prompts.expect({.icon = QMessageBox::Question,
                                .text = QString("File "_L1 + path + " already exists. Overwrite file?"_L1),
                                .answer = answer,
                                .buttons = QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel,
                                .defaultButton = QMessageBox::Yes});
    }
    void choose() { program.choose("Menu_Datei_Neu"); }
    void create(const QString& path) {
        program.prompts.expectSaveFile(path);
        expectLanguages();
        choose();
        program.prompts.verify();
    }
    void expectFirstStillOpen() {
        EXPECT_EQ(program.app().state().CurrentDBPath, first);
        EXPECT_EQ(program.app().state().Lang1Name, u"Deutsch"_s);
        EXPECT_EQ(program.app().state().DBHandler.RecordsetAuswahl.RecordCount(), 4);
        EXPECT_EQ(program.recentDatabase(), first);
    }
    void expectNothingOpen() {
        EXPECT_EQ(program.app().state().CurrentDBPath, QString());
        EXPECT_FALSE(program.app().state().DBHandler.Database.isOpen());
        EXPECT_EQ(program.label("DBAnzeige"), u"Database: <none>"_s);
        for (const char* command : {"Command1", "Grid", "Command2"})
            EXPECT_FALSE(program.isEnabled(command)) << command;
        EXPECT_EQ(program.recentDatabase(), first) << "a file that was not made is not remembered";
    }
    void expectFreshDatabase(const QString& path) {
        const SharedState& state = program.app().state();
        EXPECT_EQ(state.CurrentDBPath, path);
        EXPECT_TRUE(state.DBHandler.Database.isOpen());
        EXPECT_EQ(state.DBHandler.RecordsetAuswahl.RecordCount(), 0);
        EXPECT_EQ(program.recentDatabase(), path);
        EXPECT_EQ(readColumn(path, u"Vokabular"_s, u"Lang1_Main"_s), QStringList());
    }

    TestProgram program;
    const QString first = program.path(u"vocab.lmt"_s);
    const QString fresh = program.path(u"fresh.lmt"_s);
};

struct NewInGerman : New {
    NewInGerman() : New(u"De"_s) {}
};

TEST_F(New, AsksForTheFileWithTitleAndFilters) {
    program.prompts.expectSaveFile({});
    choose();
    const FileDialogRequest& request = program.prompts.lastFileRequest();
    EXPECT_EQ(request.title, u"New Database"_s);
    EXPECT_EQ(request.filter, u"LMT-files (*.lmt);;all files (*)"_s);
    EXPECT_FALSE(request.confirmOverwrite) << "the program asks itself";
}

TEST_F(NewInGerman, AsksForTheFileWithTitleAndFilters) {
    program.prompts.expectSaveFile({});
    choose();
    EXPECT_EQ(program.prompts.lastFileRequest().title, u"Neue Datenbank"_s);
    EXPECT_EQ(program.prompts.lastFileRequest().filter, u"LMT-Dateien (*.lmt);;Alle Dateien (*)"_s);
}

TEST_F(New, BeginsAnEmptyDatabaseOfTheTwoLanguages) {
    create(fresh);
    expectFreshDatabase(fresh);
    const SharedState& state = program.app().state();
    EXPECT_EQ(state.Lang1Name, u"Latein"_s);
    EXPECT_EQ(state.Lang2Name, u"Englisch"_s);
    EXPECT_EQ(state.Lang1MainField, u"Lang1_Main"_s);
    EXPECT_EQ(state.Lang2KommentarField, u"Lang2_Kommentar"_s);
    EXPECT_TRUE(state.DBIsEmpty);
    EXPECT_FALSE(state.DBChanged) << "ConditionToUI has cleared it";
    EXPECT_FALSE(state.SelectionValid);
    EXPECT_TRUE(program.app().form2().AuswahlGeaendert);

    CDBHandler other([](const QString& description) { ADD_FAILURE() << description.toStdString(); });
    other.Database = dao::DBEngine::OpenDatabase(fresh);
    EXPECT_TRUE(other.GetLanguages());
    EXPECT_EQ(other.Lang1Name, u"Latein"_s);
    EXPECT_EQ(other.Lang2Name, u"Englisch"_s);
    EXPECT_EQ(other.GetDBVersion(), 3);
}

TEST_F(New, OffersOnlyTheList) {
    create(fresh);
    EXPECT_TRUE(program.isEnabled("Grid"));
    EXPECT_FALSE(program.isEnabled("Command1"));
    EXPECT_FALSE(program.isEnabled("Command2"));
    EXPECT_EQ(program.label("DBAnzeige").left(10), u"Database: "_s);
    EXPECT_EQ(program.label("Lang1Label"), u"Latein"_s);
    EXPECT_EQ(program.label("AnzahlLabel"), u"Number of entries: 0"_s);
}

TEST_F(New, EmptiesTheListDownToItsHeader) {
    program.app().liste().MSFlexGrid1().AddItem(u"\t1\tja"_s);
    program.app().state().SelectionValid = true;
    create(fresh);
    const FlexGrid& grid = program.app().liste().MSFlexGrid1();
    EXPECT_EQ(grid.Rows(), 1);
    EXPECT_EQ(program.app().liste().countRows(), 0);
    EXPECT_EQ(grid.TextMatrix(0, Liste::ColSprache1), u"Latein"_s);
    EXPECT_EQ(grid.TextMatrix(0, Liste::ColSprache2), u"Englisch"_s);
    program.click("Grid");
    EXPECT_TRUE(program.app().liste().isVisible());
}

TEST_F(New, TheNextStartOpensIt) {
    create(fresh);
    program.end();
    program.prompts.expect({.icon = QMessageBox::NoIcon, .text = u"The database is empty!"});
    program.start();
    EXPECT_EQ(program.app().state().CurrentDBPath, fresh);
}

TEST_F(New, ClosesTheFileThatWasOpen) {
    const dao::Database before = program.app().state().DBHandler.Database;
    create(fresh);
    EXPECT_FALSE(before.isOpen());
    EXPECT_EQ(readColumn(first, u"Vokabular"_s, u"Lang2_Main"_s).size(), 4);
}

TEST_F(New, WorksWithNothingOpen) {
    program.prompts.expectOpenFile(program.path(u"gone.lmt"_s));
    program.prompts.expectErrorContaining(u"gone.lmt"_s);
    program.choose("Datei_Open");
    create(fresh);
    expectFreshDatabase(fresh);
    EXPECT_TRUE(program.isEnabled("Grid"));
}

TEST(NewAfterAFailedStart, LoadsTheWindowsThatTheStartLeftOut) {
    TestProgram program;
    program.rememberDatabase(program.path(u"gone.lmt"_s));
    program.prompts.expectErrorContaining(u"gone.lmt"_s);
    program.start();
    program.prompts.expectSaveFile(program.path(u"fresh.lmt"_s));
    program.prompts.expectDialog("SprachenEingabe",
                                 [](QDialog& form) { enterLanguages(form, u"Latein"_s, u"Englisch"_s); });
    program.choose("Menu_Datei_Neu");
    EXPECT_TRUE(program.isEnabled("Grid"));
    EXPECT_EQ(program.app().liste().MSFlexGrid1().TextMatrix(0, Liste::ColSprache1), u"Latein"_s);
}

TEST_F(New, TakesTheNameAsTheDialogGivesIt) {
    create(program.path(u"ohne Endung"_s));
    expectFreshDatabase(program.path(u"ohne Endung"_s));
}

TEST_F(New, CancelledFileDialogKeepsTheDatabase) {
    program.prompts.expectSaveFile({});
    choose();
    expectFirstStillOpen();
    EXPECT_TRUE(program.app().form2().AuswahlGeaendert) << "set before the dialog, and it stays so";
}

TEST_F(New, WithoutLanguagesTheDatabaseStaysOpen) {
    program.prompts.expectSaveFile(fresh);
    program.prompts.expectDialog("SprachenEingabe",
                                 [](QDialog& form) { child<QPushButton>(form, "cmdCancel").click(); });
    program.prompts.expectExclamation(NoLanguages);
    choose();
    expectFirstStillOpen();
    EXPECT_FALSE(QFile::exists(fresh));
}

TEST_F(NewInGerman, WithoutLanguagesTheDatabaseStaysOpen) {
    program.prompts.expectSaveFile(fresh);
    program.prompts.expectDialog("SprachenEingabe", [](QDialog& form) { form.close(); });
    program.prompts.expectExclamation(
        u"Ohne Angabe der Sprachen kann die Datenbank nicht angelegt werden!"_s);
    choose();
    expectFirstStillOpen();
}

TEST_F(New, AnAnswerOfTheLastTimeIsNone) {
    create(fresh);
    program.prompts.expectSaveFile(program.path(u"second.lmt"_s));
    program.prompts.expectDialog("SprachenEingabe",
                                 [](QDialog& form) { child<QPushButton>(form, "cmdCancel").click(); });
    program.prompts.expectExclamation(NoLanguages);
    choose();
    EXPECT_EQ(program.app().state().CurrentDBPath, fresh);
}

TEST_F(New, AnswerNoLeavesEverythingAndShowsTheList) {
    program.app().liste().AnzahlGeaendert = 2;
    program.prompts.expectYesNo(u"Not all changes have been saved! Do you really want to proceed?"_s, false);
    choose();
    expectFirstStillOpen();
    EXPECT_EQ(program.app().liste().AnzahlGeaendert, 2);
    EXPECT_TRUE(program.app().liste().isVisible());
    EXPECT_FALSE(program.app().form2().AuswahlGeaendert);
}

TEST_F(New, AnswerYesDropsTheChangesEvenWhenTheDialogIsCancelled) {
    program.app().liste().AnzahlNeu = 1;
    program.prompts.expectYesNo(u"Not all changes have been saved! Do you really want to proceed?"_s, true);
    program.prompts.expectSaveFile({});
    choose();
    expectFirstStillOpen();
    EXPECT_EQ(program.app().liste().AnzahlNeu, 0);
}

class NewOverAFile : public New {
protected:
    NewOverAFile() { writeFile(existing, "somebody's own"); }

    void createOver(const QString& path, QMessageBox::StandardButton answer) {
        program.prompts.expectSaveFile(path);
        expectLanguages();
        expectOverwriteQuestion(path, answer);
        choose();
        program.prompts.verify();
    }

    const QString existing = program.path(u"existing.lmt"_s);
};

TEST_F(NewOverAFile, YesReplacesIt) {
    createOver(existing, QMessageBox::Yes);
    expectFreshDatabase(existing);
    EXPECT_TRUE(program.isEnabled("Grid"));
}

TEST_F(NewOverAFile, AnyOtherAnswerKeepsItAndLeavesNothingOpen) {
    for (const auto answer : {QMessageBox::No, QMessageBox::Cancel}) {
        createOver(existing, answer);
        expectNothingOpen();
        EXPECT_EQ(readFile(existing), "somebody's own");
        EXPECT_EQ(LastErrorText, "Database '"_L1 + existing + "' already exists."_L1);
    }
}

TEST_F(NewOverAFile, TheQuestionComesWithTheWindowOutOfTheWayAndItComesBack) {
    const QPoint place = program.app().form1().pos();
    createOver(existing, QMessageBox::Yes);
    EXPECT_EQ(program.app().form1().pos(), place);
}

TEST_F(NewOverAFile, TheOpenFileItselfCanBeReplaced) {
    createOver(first, QMessageBox::Yes);
    expectFreshDatabase(first);
}

TEST_F(NewOverAFile, TheOpenFileItselfIsKeptWithNo) {
    createOver(first, QMessageBox::No);
    expectNothingOpen();
    EXPECT_EQ(readColumn(first, u"Vokabular"_s, u"Lang2_Main"_s).size(), 4);
}

TEST_F(NewOverAFile, LeftoversOfACrashBesideItAreNotTakenIn) {
    for (const auto ending : {"-journal"_L1, "-wal"_L1})
        writeFile(existing + ending, QByteArray(8192, 'x'));
    createOver(existing, QMessageBox::Yes);
    expectFreshDatabase(existing);
}

TEST_F(NewOverAFile, ALinkIsReplacedAndItsTargetKept) {
    const QString link = program.path(u"link.lmt"_s);
    ASSERT_TRUE(QFile::link(existing, link));
    createOver(link, QMessageBox::Yes);
    expectFreshDatabase(link);
    EXPECT_EQ(readFile(existing), "somebody's own");
}

TEST_F(NewOverAFile, WhatCannotBeDeletedIsTold) {
    const QString folder = program.path(u"folder.lmt"_s);
    ASSERT_TRUE(QDir().mkpath(folder));
    program.prompts.expectSaveFile(folder);
    expectLanguages();
    expectOverwriteQuestion(folder, QMessageBox::Yes);
    program.prompts.expect(
        {.icon = QMessageBox::NoIcon, .text = QString("The file '"_L1 + folder + "' cannot be deleted."_L1)});
    choose();
    expectNothingOpen();
}

TEST_F(NewOverAFile, AFileThatSomebodyElseDeletesMeanwhileIsNoObstacle) {
    class Deleting final : public Prompts {
    public:
        explicit Deleting(QString file) : m_file(std::move(file)) {}
        QMessageBox::StandardButton message(QWidget*, const Message& message) override {
            texts.append(message.text);
            QFile::remove(m_file);
            return QMessageBox::Yes;
        }
        int exec(QDialog& dialog) override {
            dialog.show();
            enterLanguages(dialog, u"Latein"_s, u"Englisch"_s);
            return dialog.result();
        }
        std::optional<QString> openFile(QWidget*, const FileDialogRequest&) override { return {}; }
        std::optional<QString> saveFile(QWidget*, const FileDialogRequest&) override { return m_file; }
        void beep() override {}
        QStringList texts;

    private:
        QString m_file;
    };
    Deleting prompts(existing);
    program.end();
    program.promptsInPlace = &prompts;
    program.start();
    choose();
    EXPECT_EQ(prompts.texts.size(), 1) << prompts.texts.join(u'\n').toStdString();
    expectFreshDatabase(existing);
    program.end();
}

struct NewOverAFileInGerman : NewInGerman {};

TEST_F(NewOverAFileInGerman, AsksInGerman) {
    program.prompts.expectSaveFile(first);
    expectLanguages();
    program.prompts.expect(
        {.icon = QMessageBox::Question,
         .text = QString(u"Datei "_s + first + u" existiert bereits. Datei überschreiben?"_s),
         .answer = QMessageBox::Cancel});
    choose();
    EXPECT_EQ(program.app().state().CurrentDBPath, QString());
}

TEST_F(New, AMissingFolderIsToldOnce) {
    const QString nowhere = program.path(u"no/where.lmt"_s);
    program.prompts.expectSaveFile(nowhere);
    expectLanguages();
    program.prompts.expectError(
        "'"_L1 + nowhere + "' is not a valid path. Make sure that the path name is spelled correctly."_L1);
    choose();
    expectNothingOpen();
    create(fresh);
    expectFreshDatabase(fresh);
}

TEST_F(New, SettingsThatCannotBeWrittenAreToldAndTheDatabaseIsOpen) {
    program.prompts.expectSaveFile(fresh);
    program.prompts.expectDialog("SprachenEingabe", [this](QDialog& form) {
        QDir(program.settingsFolder()).removeRecursively();
        writeFile(program.settingsFolder(), "in the way");
        enterLanguages(form, u"Latein"_s, u"Englisch"_s);
    });
    program.prompts.expectErrorContaining(QString());
    choose();
    EXPECT_EQ(program.app().state().CurrentDBPath, fresh);
    EXPECT_TRUE(program.isEnabled("Grid"));
}

} // namespace
} // namespace lingomat
