#include "TestProgram.h"

#include "FlexGrid.h"
#include "Globals.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace lingomat {
namespace {

const QString Proceed = u"Not all changes have been saved! Do you really want to proceed?"_s;

void setPendingChanges(TestProgram& program, qint16 added, qint16 changed, qint16 deleted) {
    Liste& liste = program.app().liste();
    liste.AnzahlNeu = added;
    liste.AnzahlGeaendert = changed;
    liste.AnzahlGeloescht = deleted;
}

int pendingChanges(TestProgram& program) {
    const Liste& liste = program.app().liste();
    return liste.AnzahlNeu + liste.AnzahlGeaendert + liste.AnzahlGeloescht;
}

class Open : public testing::Test {
protected:
    Open() {
        program.startWithDatabase();
        writeDatabase(
            other,
            {.lang1 = u"Spanisch"_s, .lang2 = u"Deutsch"_s, .entries = {{u"sí"_s, u"ja"_s, {}, {}, {}}}});
        program.app().form2().AuswahlGeaendert = false;
    }
    void open(const std::optional<QString>& file) {
        program.prompts.expectOpenFile(file);
        program.choose("Datei_Open");
    }
    void expectFirstStillOpen() {
        EXPECT_EQ(program.app().state().CurrentDBPath, first);
        EXPECT_EQ(program.app().state().DBHandler.RecordsetAuswahl.RecordCount(), 4);
    }
    void expectNothingOpen() {
        EXPECT_EQ(program.app().state().CurrentDBPath, QString());
        EXPECT_FALSE(program.app().state().DBHandler.Database.isOpen());
        EXPECT_EQ(program.label("DBAnzeige"), u"Database: <none>"_s);
        EXPECT_FALSE(program.isEnabled("Command1"));
        EXPECT_EQ(program.recentDatabase(), first) << "a file that does not open is not remembered";
    }

    TestProgram program;
    const QString first = program.path(u"vocab.lmt"_s);
    const QString other = program.path(u"other.lmt"_s);
};

TEST_F(Open, AsksWithTitleAndFilters) {
    open({});
    EXPECT_EQ(program.prompts.lastFileRequest().title, u"Open Database"_s);
    EXPECT_EQ(program.prompts.lastFileRequest().filter, u"LMT-files (*.lmt);;all files (*)"_s);
}

TEST(OpenInGerman, AsksWithTitleAndFilters) {
    TestProgram program(u"De"_s);
    program.startWithDatabase();
    program.prompts.expectOpenFile({});
    program.choose("Datei_Open");
    EXPECT_EQ(program.prompts.lastFileRequest().title, u"Datenbank Öffnen"_s);
    EXPECT_EQ(program.prompts.lastFileRequest().filter, u"LMT-Dateien (*.lmt);;Alle Dateien (*)"_s);
}

TEST_F(Open, ReplacesTheSession) {
    open(other);
    const SharedState& state = program.app().state();
    EXPECT_EQ(state.CurrentDBPath, other);
    EXPECT_EQ(state.Lang1Name, u"Spanisch"_s);
    EXPECT_EQ(program.label("Lang1Label"), u"Spanisch"_s);
    EXPECT_EQ(program.label("AnzahlLabel"), u"Number of entries: 1"_s);
    EXPECT_EQ(program.recentDatabase(), other);
    EXPECT_FALSE(state.DBIsEmpty);
    EXPECT_FALSE(state.DBChanged) << "ConditionToUI has cleared it";
    EXPECT_FALSE(state.SelectionValid);
    EXPECT_TRUE(program.app().form2().AuswahlGeaendert);
    EXPECT_EQ(program.app().liste().MSFlexGrid1().TextMatrix(0, Liste::ColSprache1), u"Spanisch"_s);
}

TEST_F(Open, ForgetsTheSelection) {
    program.app().state().SelectionValid = true;
    program.app().liste().MSFlexGrid1().AddItem(u"\t1\tja"_s);
    program.app().form1().ConditionToUI(false);
    ASSERT_TRUE(program.isEnabled("Command2"));

    open(other);
    EXPECT_FALSE(program.isEnabled("Grid"));
    EXPECT_FALSE(program.isEnabled("Command2"));
    EXPECT_TRUE(program.isEnabled("Command1"));
    EXPECT_EQ(program.app().liste().countRows(), 0);
}

TEST_F(Open, KeepsPairsOfEqualCharacters) {
    SettingsStore(program.settingsFolder()).SaveSetting(AppName(), u"Exceptions"_s, u"Exc_1"_s, u"xy"_s);
    EXPECT_EQ(program.app().state().Exceptions.ExceptionCount(), 0);
    open(other);
    EXPECT_EQ(program.app().state().Exceptions.ExceptionCount(), 0) << "they are read at the start only";
}

TEST_F(Open, CancelKeepsTheDatabase) {
    open({});
    expectFirstStillOpen();
    EXPECT_TRUE(program.app().form2().AuswahlGeaendert) << "set before the dialog, and it stays so";
}

TEST_F(Open, AnswerNoLeavesEverythingAndShowsTheList) {
    setPendingChanges(program, 1, 2, 3);
    program.prompts.expectYesNo(Proceed, false);
    program.choose("Datei_Open");
    expectFirstStillOpen();
    EXPECT_EQ(pendingChanges(program), 6);
    EXPECT_TRUE(program.app().liste().isVisible());
    EXPECT_FALSE(program.app().form2().AuswahlGeaendert);
}

TEST_F(Open, AnswerYesDropsTheChangesEvenWhenTheDialogIsCancelled) {
    setPendingChanges(program, 0, 1, 0);
    program.prompts.expectYesNo(Proceed, true);
    open({});
    expectFirstStillOpen();
    EXPECT_EQ(pendingChanges(program), 0);
}

TEST(OpenInGerman, AsksAboutUnsavedChanges) {
    TestProgram program(u"De"_s);
    program.startWithDatabase();
    setPendingChanges(program, 0, 0, 1);
    program.prompts.expectYesNo(u"Es wurden noch nicht alle Änderungen gesichert! Wirklich fortsetzen?",
                                false);
    program.choose("Datei_Open");
}

TEST_F(Open, EmptyDatabaseIsTold) {
    writeDatabase(other, {});
    program.prompts.expectOpenFile(other);
    program.prompts.expect({.icon = QMessageBox::NoIcon, .text = u"The database is empty!"});
    program.choose("Datei_Open");
    EXPECT_TRUE(program.app().state().DBIsEmpty);
    EXPECT_TRUE(program.isEnabled("Grid"));
    EXPECT_FALSE(program.isEnabled("Command1"));
    EXPECT_EQ(program.recentDatabase(), other);
}

TEST_F(Open, FullDatabaseAfterAnEmptyOneIsNotEmpty) {
    program.app().state().DBIsEmpty = true;
    open(other);
    EXPECT_FALSE(program.app().state().DBIsEmpty);
}

TEST_F(Open, MissingFileLeavesNothingOpen) {
    program.prompts.expectOpenFile(program.path(u"gone.lmt"_s));
    program.prompts.expectErrorContaining(u"gone.lmt"_s);
    program.choose("Datei_Open");
    expectNothingOpen();
}

TEST_F(Open, MalformedLanguagesLeaveNothingOpen) {
    writeDatabase(other, {.languages = u"Deutsch"_s});
    program.prompts.expectOpenFile(other);
    program.prompts.expectError(u"The file is not a valid language database."_s);
    program.choose("Datei_Open");
    expectNothingOpen();
    EXPECT_EQ(LastErrorText, u"The file is not a valid language database."_s);
}

TEST_F(Open, FileWithoutVokabularIsToldTwiceAndThenRefused) {
    writeDatabase(other, {.missingTables = {u"Vokabular"_s}});
    program.prompts.expectOpenFile(other);
    program.prompts.expectErrorContaining(u"Vokabular"_s);
    program.prompts.expectErrorContaining(u"Vokabular"_s);
    program.prompts.expectError(u"The file is not a valid language database."_s);
    program.choose("Datei_Open");
    expectNothingOpen();
}

TEST_F(Open, MissingTableIsToldOnceAndClosesTheFile) {
    writeDatabase(other, {.missingTables = {u"Referenzen"_s}});
    program.prompts.expectOpenFile(other);
    program.prompts.expectErrorContaining(u"Referenzen"_s);
    program.choose("Datei_Open");
    expectNothingOpen();
}

TEST_F(Open, OldFormatIsNotOpenedAsItIs) {
    writeDatabase(other, {.entries = someEntries(), .version = 2});
    program.prompts.expectOpenFile(other);
    program.prompts.expect(
        {.icon = QMessageBox::Warning, .text = ExpectedText::containing(other), .answer = QMessageBox::No});
    program.choose("Datei_Open");
    expectNothingOpen();
}

TEST_F(Open, WorksAgainAfterAFailure) {
    program.prompts.expectOpenFile(program.path(u"gone.lmt"_s));
    program.prompts.expectErrorContaining(u"gone.lmt"_s);
    program.choose("Datei_Open");
    open(other);
    EXPECT_EQ(program.app().state().CurrentDBPath, other);
    EXPECT_TRUE(program.isEnabled("Command1"));
}

TEST_F(Open, ReopensTheSameFile) {
    open(first);
    expectFirstStillOpen();
}

TEST(OpenExample, TellsAndOpensTheSampleOfTheLanguage) {
    for (const auto& [language, text] :
         {std::pair{u"En"_s, u"The sample database will be opened now.\n"
                             u"This language database consists of German and English vocabulary."_s},
          std::pair{u"De"_s, u"Es wird nun die Beispieldatenbank geöffnet.\n"
                             u"Diese Sprachdatenbank enthält deutsche und spanische Vokabeln."_s}}) {
        TestProgram program(language);
        program.startWithDatabase();
        program.installSample();
        program.prompts.expect({.icon = QMessageBox::NoIcon, .text = text});
        program.choose("Datei_Beispiel");
        EXPECT_EQ(program.app().state().CurrentDBPath, program.sample());
        EXPECT_EQ(program.recentDatabase(), program.sample());
        EXPECT_FALSE(program.app().state().SelectionValid);
    }
}

TEST(OpenExample, AsksNothingAboutUnsavedChangesAndDropsThem) {
    TestProgram program;
    program.startWithDatabase();
    program.installSample();
    setPendingChanges(program, 0, 1, 0);
    program.prompts.expect({.icon = QMessageBox::NoIcon, .text = ExpectedText::anything()});
    program.choose("Datei_Beispiel");
    EXPECT_EQ(program.app().state().CurrentDBPath, program.sample());
    EXPECT_EQ(pendingChanges(program), 0) << "the keys of one file mean nothing in another";
}

TEST(OpenExample, TakesTheFileAsItIsWhateverItsVersion) {
    TestProgram program;
    program.startWithDatabase();
    writeDatabase(program.sample(), {.entries = someEntries(), .version = 2});
    program.prompts.expect({.icon = QMessageBox::NoIcon, .text = ExpectedText::anything()});
    program.choose("Datei_Beispiel");
    EXPECT_EQ(program.app().state().CurrentDBPath, program.sample());
}

TEST(OpenExample, MissingSampleLeavesNothingOpen) {
    TestProgram program;
    program.startWithDatabase();
    program.prompts.expect({.icon = QMessageBox::NoIcon, .text = ExpectedText::anything()});
    program.prompts.expectErrorContaining(u"Example.lmt"_s);
    program.choose("Datei_Beispiel");
    EXPECT_EQ(program.app().state().CurrentDBPath, QString());
    EXPECT_FALSE(program.isEnabled("Command1"));
}

} // namespace
} // namespace lingomat
