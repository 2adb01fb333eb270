#include "TestProgram.h"

#include "Globals.h"

#include <QProgressBar>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace lingomat {
namespace {

/// What holds after every load that ended without a database.
void expectNothingOpen(TestProgram& program) {
    const SharedState& state = program.app().state();
    EXPECT_EQ(state.CurrentDBPath, QString());
    EXPECT_FALSE(state.FormIsLoading);
    EXPECT_FALSE(state.DBHandler.Database.isOpen());
    EXPECT_TRUE(program.app().form1().isVisible());
    EXPECT_FALSE(program.app().splash().isVisible());
    const bool english = program.language == u"En"_s;
    EXPECT_EQ(program.label("DBAnzeige"), english ? u"Database: <none>"_s : u"Datenbank: <keine>"_s);
    EXPECT_EQ(program.label("Lang1Label"), english ? u"<none>"_s : u"<keine>"_s);
    EXPECT_EQ(program.label("Lang2Label"), english ? u"<none>"_s : u"<keine>"_s);
    EXPECT_EQ(program.label("AnzahlLabel"),
              english ? u"Number of Entries: <none>"_s : u"Anzahl Einträge: <keine>"_s);
    for (const char* control : {"Command1", "Grid", "Command2", "Menu_Ansicht", "Menu_Ansicht_Auswahl",
                                "Menu_Auswahl_Liste", "Menu_Ansicht_Vokabeltrainer"})
        EXPECT_FALSE(program.isEnabled(control)) << control;
    EXPECT_TRUE(program.isEnabled("Command4"));
    EXPECT_TRUE(program.isEnabled("Datei_Open"));
}

int barValue(TestProgram& program) {
    return child<QProgressBar>(program.app().splash(), "ProgressBar1").value();
}

const QString Undescribed = u"Application-defined or object-defined error"_s;
const QString Invalid = u"The file is not a valid language database."_s;

class LoadFailure : public testing::TestWithParam<QString> {};
INSTANTIATE_TEST_SUITE_P(Languages, LoadFailure, testing::Values(u"En"_s, u"De"_s),
                         [](const auto& parameter) { return parameter.param.toStdString(); });

TEST_P(LoadFailure, FirstStartWithoutSampleSavesThePairsAllTheSame) {
    TestProgram program(GetParam());
    program.prompts.expectErrorContaining(program.sample());
    program.start();
    expectNothingOpen(program);
    EXPECT_EQ(program.setting("Exceptions", "Exc_1"), u"!¡"_s);
    EXPECT_EQ(program.setting("Exceptions", "Exc_2"), u"?¿"_s);
    EXPECT_EQ(program.recentDatabase(), QString()) << "the next start is a first start again";
    EXPECT_EQ(barValue(program), 13) << "the load ended at the sample";
}

TEST_P(LoadFailure, MovedFileIsToldAtEachStartAndItsPathIsKept) {
    TestProgram program(GetParam());
    const QString gone = program.path(u"gone.lmt"_s);
    program.rememberDatabase(gone);
    for (int start = 0; start < 2; ++start) {
        program.prompts.expectErrorContaining(gone);
        program.start();
        expectNothingOpen(program);
        EXPECT_EQ(program.recentDatabase(), gone);
        EXPECT_EQ(barValue(program), 22);
    }
}

TEST_P(LoadFailure, FailedStartChecksTheScreen) {
    TestProgram program(GetParam());
    program.workArea = {320, 200};
    program.rememberDatabase(program.path(u"gone.lmt"_s));
    program.prompts.expectErrorContaining(u"gone.lmt"_s);
    program.prompts.expectExclamation(ExpectedText::containing(u"800x600"_s));
    program.start();
    expectNothingOpen(program);
}

TEST_P(LoadFailure, MissingTableClosesTheDatabase) {
    TestProgram program(GetParam());
    writeDatabase(program.path(u"a.lmt"_s), {.missingTables = {u"Synonyme"_s}});
    program.rememberDatabase(program.path(u"a.lmt"_s));
    program.prompts.expectErrorContaining(u"Synonyme"_s);
    program.start();
    expectNothingOpen(program);
    EXPECT_EQ(barValue(program), 55);
}

TEST_P(LoadFailure, OldFormatIsNotOpenedAsItIs) {
    for (const int version : {0, 1, 2}) {
        TestProgram program(GetParam());
        const QString file = program.path(u"old.lmt"_s);
        writeDatabase(file, {.entries = someEntries(), .version = version, .withoutVersion = version == 0});
        program.rememberDatabase(file);
        program.prompts.expect({.icon = QMessageBox::Warning,
                                .text = ExpectedText::containing(file),
                                .answer = QMessageBox::No});
        program.start();
        expectNothingOpen(program);
        EXPECT_EQ(program.recentDatabase(), file);
        EXPECT_EQ(barValue(program), 40);
    }
}

TEST(LoadFailures, MalformedLanguagesAreNoLanguageDatabase) {
    TestProgram program;
    writeDatabase(program.path(u"a.lmt"_s), {.languages = u"Deutsch und Englisch"_s});
    program.rememberDatabase(program.path(u"a.lmt"_s));
    program.prompts.expectError(Invalid);
    program.start();
    expectNothingOpen(program);
    EXPECT_EQ(barValue(program), 50);
}

TEST(LoadFailures, GermanTextForAFileThatIsNotValid) {
    TestProgram program(u"De"_s);
    writeDatabase(program.path(u"a.lmt"_s), {.languages = u"x"_s});
    program.rememberDatabase(program.path(u"a.lmt"_s));
    program.prompts.expectError(u"Die Datei ist keine gültige Sprachdatenbank."_s);
    program.start();
    expectNothingOpen(program);
}

TEST(LoadFailures, FileWithoutVokabularIsToldTwiceWithTheBareNumberInBetween) {
    TestProgram program;
    writeDatabase(program.path(u"a.lmt"_s), {.missingTables = {u"Vokabular"_s}});
    program.rememberDatabase(program.path(u"a.lmt"_s));
    program.prompts.expectErrorContaining(u"Vokabular"_s);
    program.prompts.expectError(Undescribed);
    program.prompts.expectErrorContaining(u"Vokabular"_s);
    program.prompts.expectError(Invalid);
    program.start();
    expectNothingOpen(program);
    EXPECT_EQ(LastErrorText, Invalid);
}

TEST(LoadFailures, NoSampleButAFileOpenedLaterWorks) {
    TestProgram program;
    program.prompts.expectErrorContaining(u"Example.lmt"_s);
    program.start();
    const QString file = program.path(u"a.lmt"_s);
    writeDatabase(file, {.entries = someEntries()});
    program.prompts.expectOpenFile(file);
    program.choose("Datei_Open");
    EXPECT_EQ(program.label("AnzahlLabel"), u"Number of entries: 4"_s);
    EXPECT_EQ(program.recentDatabase(), file);
    program.click("Command1");
    EXPECT_TRUE(program.app().form2().isVisible());
}

} // namespace
} // namespace lingomat
