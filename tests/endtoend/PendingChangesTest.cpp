// What waits in the list to be saved, seen by the rest of the program: nothing is lost without a question,
// and nothing reaches a file that it was not meant for.

#include "TestProgram.h"

#include "FlexGrid.h"
#include "Globals.h"

#include <QAction>
#include <QFile>
#include <QPushButton>
#include <QSignalSpy>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace lingomat {
namespace {

class PendingChanges : public testing::TestWithParam<QString> {
protected:
    PendingChanges() : program(GetParam()), file(program.path(u"vocab.lmt"_s)) {
        program.startWithDatabase();
        selectEverything();
    }

    [[nodiscard]] Liste& list() { return program.app().liste(); }
    [[nodiscard]] FlexGrid& grid() { return list().MSFlexGrid1(); }
    [[nodiscard]] QString text(const QString& german, const QString& english) const {
        return GetParam() == u"En"_s ? english : german;
    }
    [[nodiscard]] QString question() const {
        return text(u"Es wurden noch nicht alle Änderungen gesichert! Wirklich fortsetzen?"_s,
                    u"Not all changes have been saved! Do you really want to proceed?"_s);
    }
    [[nodiscard]] QString quitQuestion() const {
        return text(u"Es wurden noch nicht alle Änderungen gesichert! Wirklich beenden?"_s,
                    u"Not all changes have been saved! Do you really want to quit?"_s);
    }
    void selectEverything() {
        program.click("Command1");
        child<QPushButton>(program.app().form2(), "Command4").click();
        program.app().form1().Form_Activate();
    }
    void press(const char* button) { child<QPushButton>(list(), button).click(); }
    /// One change of each kind: "ja" is deleted, "Haus" becomes "Hof", "neu" is added.
    void changeEverything() {
        program.click("Grid");
        grid().setRow(2);
        grid().setTextMatrix(2, Liste::ColHaupt1, u"Hof"_s);
        list().ZeileGeaendert();
        grid().setRow(1);
        press("Command4");
        press("Command3");
        grid().setTextMatrix(grid().Row(), Liste::ColHaupt1, u"neu"_s);
        ASSERT_EQ(list().pendingChanges(), 3);
    }
    /// Each step of the save of changeEverything() that wants to write.
    void expectRefusals() {
        for (int step = 0; step < 8; ++step)
            program.prompts.expectErrorContaining(u"Cannot update. The database is read-only."_s);
    }
    void expectAllPending() {
        EXPECT_EQ(list().AnzahlGeloescht, 1);
        EXPECT_EQ(list().AnzahlGeaendert, 1);
        EXPECT_EQ(list().AnzahlNeu, 1);
        EXPECT_TRUE(list().isVisible());
        EXPECT_EQ(stored(), Before);
        press("Command2");
        EXPECT_EQ(stored(), After);
    }
    [[nodiscard]] QStringList stored() const { return readColumn(file, u"Vokabular"_s, u"Lang1_Main"_s); }

    const QStringList Before{u"ja"_s, u"Haus"_s, u"gehen"_s, u"schön"_s};
    const QStringList After{u"Hof"_s, u"gehen"_s, u"schön"_s, u"neu"_s};
    TestProgram program;
    const QString file;
};

INSTANTIATE_TEST_SUITE_P(Languages, PendingChanges, testing::Values(u"En"_s, u"De"_s),
                         [](const auto& parameter) { return parameter.param.toStdString(); });

TEST_P(PendingChanges, StayWhenTheSelectionIsNotToBeMadeAnew) {
    changeEverything();
    press("Command1");
    program.prompts.expectYesNo(question(), false);
    child<QPushButton>(program.app().form2(), "Command4").click();
    expectAllPending();
}

TEST_P(PendingChanges, GoWhenTheSelectionIsMadeAnewAllTheSame) {
    changeEverything();
    program.prompts.expectYesNo(question(), true);
    selectEverything();
    EXPECT_EQ(list().pendingChanges(), 0);
    EXPECT_EQ(grid().Rows(), 5);
    EXPECT_FALSE(child<QPushButton>(list(), "Command2").isEnabled());
    press("Command5");
    EXPECT_EQ(stored(), Before);
}

TEST_P(PendingChanges, StayWhenTheUserDoesNotWantToQuit) {
    changeEverything();
    press("Command1");
    const QSignalSpy exits(&program.app().form1(), &Form1::exitRequested);
    program.prompts.expectYesNo(quitQuestion(), false);
    program.click("Command4");
    EXPECT_EQ(exits.count(), 0);
    expectAllPending();
    program.click("Command4"); // no question any more
    EXPECT_EQ(exits.count(), 1);
    EXPECT_EQ(stored(), After);
}

TEST_P(PendingChanges, GoWhenTheUserQuits) {
    changeEverything();
    const QSignalSpy exits(&program.app().form1(), &Form1::exitRequested);
    program.prompts.expectYesNo(quitQuestion(), true);
    program.click("Command4");
    EXPECT_EQ(exits.count(), 1);
    EXPECT_EQ(stored(), Before);
}

TEST_P(PendingChanges, StayWhenNoOtherDatabaseIsToBeOpened) {
    changeEverything();
    press("Command1");
    program.prompts.expectYesNo(question(), false);
    program.choose("Datei_Open");
    expectAllPending();
}

TEST_P(PendingChanges, GoBeforeTheDialogThatOpensAnotherDatabase) {
    changeEverything();
    program.prompts.expectYesNo(question(), true);
    program.prompts.expectOpenFile({});
    program.choose("Datei_Open");
    EXPECT_EQ(list().pendingChanges(), 0);
    press("Command5");
    EXPECT_EQ(stored(), Before);
}

TEST_P(PendingChanges, ReachNoOtherDatabase) {
    changeEverything();
    program.installSample();
    const QStringList sample = readColumn(program.sample(), u"Vokabular"_s, u"Lang1_Main"_s);
    program.prompts.expect(
        {.icon = QMessageBox::NoIcon,
         .text = ExpectedText::containing(text(u"Beispieldatenbank"_s, u"sample database"_s))});
    program.choose("Datei_Beispiel");
    EXPECT_EQ(list().pendingChanges(), 0);
    selectEverything();
    list().Command2_Click();
    EXPECT_EQ(stored(), Before);
    EXPECT_EQ(readColumn(program.sample(), u"Vokabular"_s, u"Lang1_Main"_s), sample);
}

TEST_P(PendingChanges, SaveBringsTheWholeProgramInLine) {
    changeEverything();
    press("Command2");
    EXPECT_EQ(stored(), After);
    EXPECT_EQ(list().windowTitle(), text(u"Vokabelliste - 4 Einträge"_s, u"Vocab List - 4 entries"_s));
    EXPECT_TRUE(program.isEnabled("Command2")) << "the Trainer";
    // All of them can be trained, the new one too.
    program.click("Command2");
    Trainer& trainer = program.app().trainer();
    QStringList asked;
    for (int i = 0; i < 4; ++i) {
        asked << child<FlexGrid>(trainer, "VokabelnGrid").TextMatrix(1, 0);
        if (i < 3)
            trainer.Command3_Click();
    }
    EXPECT_EQ(asked.size(), 4);
    // And a selection finds what was saved.
    selectEverything();
    QStringList listed;
    for (int row = 1; row < grid().Rows(); ++row)
        listed << grid().TextMatrix(row, Liste::ColHaupt1);
    EXPECT_EQ(listed, After);
}

TEST_P(PendingChanges, DeletingEverythingLeavesOnlyTheList) {
    program.click("Grid");
    for (int i = 0; i < 4; ++i) {
        grid().setRow(1);
        press("Command4");
    }
    EXPECT_FALSE(program.isEnabled("Command2")) << "there is nothing to train";
    press("Command2");
    EXPECT_EQ(stored(), QStringList());
    EXPECT_TRUE(program.app().state().DBIsEmpty);
    EXPECT_TRUE(program.isEnabled("Grid"));
    press("Command3");
    EXPECT_FALSE(program.isEnabled("Command2")) << "the database itself is still empty";
    press("Command2");
    EXPECT_FALSE(program.app().state().DBIsEmpty);
    EXPECT_TRUE(program.isEnabled("Command2"));
    EXPECT_EQ(stored(), QStringList{QString()});
}

TEST_P(PendingChanges, FirstRowOfAnEmptyDatabaseMakesTheSelectionValid) {
    const QString empty = program.path(u"empty.lmt"_s);
    writeDatabase(empty, {});
    program.prompts.expectOpenFile(empty);
    program.prompts.expect({.icon = QMessageBox::NoIcon,
                            .text = text(u"Die Datenbank ist leer!"_s, u"The database is empty!"_s)});
    program.choose("Datei_Open");
    EXPECT_FALSE(program.app().state().SelectionValid);
    program.click("Grid");
    press("Command3");
    EXPECT_TRUE(program.app().state().SelectionValid);
    program.app().form1().Form_Activate();
    EXPECT_EQ(grid().Rows(), 2);
    EXPECT_EQ(list().AnzahlNeu, 1) << "coming back to the main window loses nothing";
    press("Command4");
    EXPECT_FALSE(program.app().state().SelectionValid);
    EXPECT_EQ(list().pendingChanges(), 0);
}

TEST_P(PendingChanges, ASaveIntoAFileThatIsGoneIsTold) {
    changeEverything();
    ASSERT_TRUE(QFile::rename(file, file + u".away"_s));
    expectRefusals();
    press("Command2");
    EXPECT_FALSE(QFile::exists(file)) << "nothing is put in its place";
    EXPECT_EQ(grid().TextMatrix(1, Liste::ColHaupt1), u"Hof"_s) << "what was typed stays on the screen";
}

TEST_P(PendingChanges, ASaveIntoAFileThatWasReplacedIsToldAndLeavesTheOther) {
    changeEverything();
    ASSERT_TRUE(QFile::rename(file, file + u".away"_s));
    writeDatabase(file, {.entries = {{u"anders"_s, u"other"_s, {}, {}, {}}}});
    const QByteArray other = readFile(file);
    expectRefusals();
    press("Command2");
    EXPECT_EQ(readFile(file), other);
    EXPECT_EQ(grid().TextMatrix(1, Liste::ColHaupt1), u"Hof"_s);
}

} // namespace
} // namespace lingomat
