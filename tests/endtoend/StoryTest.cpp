// The whole program, from an empty home to the first lesson and back on the next day, with the samples that
// are delivered with it.

#include "TestProgram.h"

#include "FlexGrid.h"
#include "Globals.h"

#include <QFile>
#include <QLabel>
#include <QListWidget>
#include <QProgressBar>
#include <QPushButton>
#include <QStatusBar>
#include <QTabBar>
#include <QToolButton>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace lingomat {
namespace {

constexpr int QuestionRow = 1;
constexpr int SolutionRow = 3;

/// The items of a cell that holds several.
QStringList items(const QString& packed) {
    QStringList all = packed.split(u';', Qt::SkipEmptyParts);
    for (QString& item : all)
        item = item.trimmed();
    return all;
}

class Story : public testing::TestWithParam<QString> {
protected:
    Story() : program(GetParam()) {
        for (const char* name : {"Example.lmt", "ExampleGerman.lmt"}) {
            const QString file = QString::fromLatin1(name);
            const QString delivered = QStringLiteral(LINGOMAT_PROGRAM_FOLDER) + u'/' + file;
            if (!QFile::copy(delivered, program.programFolder() + u'/' + file))
                throw std::runtime_error("not delivered: " + delivered.toStdString());
        }
        entries = static_cast<int>(readColumn(program.sample(), u"Vokabular"_s, u"ID"_s).size());
    }

    [[nodiscard]] bool english() const { return GetParam() == u"En"_s; }
    [[nodiscard]] QString text(const QString& inGerman, const QString& inEnglish) const {
        return english() ? inEnglish : inGerman;
    }
    void firstStart() {
        program.prompts.expect(
            {.icon = QMessageBox::NoIcon,
             .text = ExpectedText::containing(text(u"Willkommen bei Lingomat!"_s, u"Welcome to Lingomat!"_s)),
             .title = text(u"Willkommen!"_s, u"Welcome!"_s)});
        program.start();
    }
    void selectEverything() {
        program.click("Command1");
        press(program.app().form2(), "Command4");
        program.app().form1().Form_Activate();
    }
    void expectEndOfSequence() {
        program.prompts.expect({.icon = QMessageBox::NoIcon,
                                .text = text(u"Die Sequenz ist beendet."_s, u"End of sequence."_s)});
    }

    void press(QWidget& form, const char* button) {
        auto& found = child<QPushButton>(form, button);
        ASSERT_TRUE(found.isEnabled()) << button;
        found.click();
    }
    void pressInTrainer(const char* button) { press(program.app().trainer(), button); }
    void chooseOrder(const char* button) { child<QToolButton>(program.app().trainer(), button).click(); }

    QString cell(int row, int column) { return program.app().liste().MSFlexGrid1().TextMatrix(row, column); }
    QString shown(int row) {
        return child<FlexGrid>(program.app().trainer(), "VokabelnGrid").TextMatrix(row, 0);
    }
    QString position() { return child<QLabel>(program.app().trainer(), "StatusBar1_Panel4").text(); }
    QStringList allQuestions() {
        QStringList all;
        for (int row = 1; row < program.app().liste().MSFlexGrid1().Rows(); ++row)
            all.append(cell(row, Liste::ColSprache1));
        return all;
    }

    TestProgram program;
    int entries = 0;
};

INSTANTIATE_TEST_SUITE_P(Languages, Story, testing::Values(u"En"_s, u"De"_s),
                         [](const auto& parameter) { return parameter.param.toStdString(); });

TEST_P(Story, FirstStartShowsTheSample) {
    firstStart();
    EXPECT_GE(entries, english() ? 179 : 1);
    EXPECT_EQ(program.app().state().CurrentDBPath, program.sample());
    EXPECT_EQ(program.recentDatabase(), program.sample());
    EXPECT_EQ(program.label("Lang1Label"), text(u"Deutsch"_s, u"German"_s));
    EXPECT_EQ(program.label("Lang2Label"), text(u"Spanisch"_s, u"English"_s));
    EXPECT_EQ(program.label("AnzahlLabel"),
              text(u"Anzahl Einträge: "_s, u"Number of entries: "_s) + QString::number(entries));
    EXPECT_TRUE(program.isEnabled("Command1"));
    EXPECT_FALSE(program.isEnabled("Grid"));
    EXPECT_FALSE(program.isEnabled("Command2"));
}

TEST_P(Story, SelectionFillsTheList) {
    firstStart();
    selectEverything();
    Application& app = program.app();
    EXPECT_EQ(app.liste().countRows(), entries);
    EXPECT_EQ(app.form2().statusBar()->currentMessage(),
              QString::number(entries) + text(u" Vokabeln ausgewählt"_s, u" entries selected"_s));
    EXPECT_EQ(app.liste().windowTitle(), text(u"Vokabelliste - "_s, u"Vocab List - "_s) +
                                             QString::number(entries) + text(u" Einträge"_s, u" entries"_s));
    EXPECT_TRUE(app.state().SelectionValid);
    EXPECT_TRUE(program.isEnabled("Grid"));
    EXPECT_TRUE(program.isEnabled("Command2"));

    program.click("Grid");
    EXPECT_TRUE(app.liste().isVisible());
    EXPECT_EQ(cell(0, Liste::ColSprache1), text(u"Deutsch"_s, u"German"_s));
    EXPECT_EQ(cell(0, Liste::ColWortart), text(u"Wortart"_s, u"Part of Speech"_s));
    EXPECT_EQ(cell(0, Liste::ColScore), text(u"Score"_s, u"Error Score"_s));
    const QStringList main = readColumn(program.sample(), u"Vokabular"_s, u"Lang1_Main"_s);
    for (int row = 1; row <= entries; ++row)
        EXPECT_EQ(cell(row, Liste::ColHaupt1), main[row - 1]);
}

TEST_P(Story, AreaNarrowsTheSelection) {
    firstStart();
    program.click("Command1");
    Form2& form = program.app().form2();
    child<QTabBar>(form, "tbsOptions").setCurrentIndex(1);
    auto& areas = child<QListWidget>(form, "lstBereichLinks");
    ASSERT_GE(areas.count(), 2);
    const QString area = areas.item(0)->text();
    areas.setCurrentRow(0);
    press(form, "cmdAdd");
    press(form, "Command1");
    EXPECT_FALSE(form.isVisible()) << "OK runs and closes";

    const int chosen = program.app().liste().countRows();
    EXPECT_GT(chosen, 0);
    EXPECT_LT(chosen, entries);
    for (int row = 1; row <= chosen; ++row)
        EXPECT_TRUE(items(cell(row, Liste::ColBereich)).contains(area)) << row;
    program.app().form1().Form_Activate();
    EXPECT_TRUE(program.label("AnzahlLabel").endsWith(u' ' + QString::number(chosen)));
}

TEST_P(Story, TrainerWalksInTheOrderOfTheList) {
    firstStart();
    selectEverything();
    program.click("Command2");
    ASSERT_TRUE(program.app().trainer().isVisible());
    for (int row = 1; row <= 3; ++row) {
        pressInTrainer("Command3");
        EXPECT_EQ(shown(QuestionRow), cell(row, Liste::ColSprache1));
        EXPECT_EQ(shown(SolutionRow), QString());
        EXPECT_EQ(position(), QString::number(row));
        pressInTrainer("Command3");
        EXPECT_EQ(shown(QuestionRow), cell(row, Liste::ColSprache1));
        EXPECT_EQ(shown(SolutionRow), cell(row, Liste::ColSprache2));
    }

    pressInTrainer("Command2");
    EXPECT_EQ(shown(SolutionRow), cell(4, Liste::ColSprache2));
    pressInTrainer("Command1");
    EXPECT_EQ(shown(SolutionRow), cell(3, Liste::ColSprache2));
    pressInTrainer("ToEnd");
    EXPECT_EQ(shown(QuestionRow), cell(entries, Liste::ColSprache1));
    expectEndOfSequence();
    pressInTrainer("Command2");
    EXPECT_EQ(position(), QString::number(entries));
    pressInTrainer("back");
    EXPECT_EQ(shown(QuestionRow), cell(1, Liste::ColSprache1));
    EXPECT_FALSE(child<QPushButton>(program.app().trainer(), "Command1").isEnabled());

    pressInTrainer("Command6");
    EXPECT_EQ(shown(QuestionRow), QString());
    EXPECT_EQ(position(), u"0"_s);
}

TEST_P(Story, ShuffledWalkShowsEveryEntryOnce) {
    firstStart();
    selectEverything();
    program.click("Command2");
    chooseOrder("Toolbar1_Button2");
    QStringList questions;
    for (int step = 0; step < entries; ++step) {
        pressInTrainer("Command3");
        questions.append(shown(QuestionRow));
        pressInTrainer("Command3");
    }
    expectEndOfSequence();
    pressInTrainer("Command3");

    QStringList inOrder = allQuestions();
    EXPECT_NE(questions, inOrder);
    questions.sort();
    inOrder.sort();
    EXPECT_EQ(questions, inOrder);
}

TEST_P(Story, RandomWalkNeverEnds) {
    firstStart();
    selectEverything();
    program.click("Command2");
    chooseOrder("Toolbar1_Button3");
    const QStringList all = allQuestions();
    QStringList questions;
    for (int step = 0; step < entries + 10; ++step) {
        pressInTrainer("Command3");
        EXPECT_TRUE(all.contains(shown(QuestionRow)));
        questions.append(shown(QuestionRow));
        pressInTrainer("Command3");
    }
    EXPECT_FALSE(child<QProgressBar>(program.app().trainer(), "ProgressBar1").isVisible());
    EXPECT_GT(questions.removeDuplicates(), 0) << "entries come again";
}

TEST_P(Story, SecondStartOpensTheSameFile) {
    const QByteArray delivered = readFile(program.sample());
    firstStart();
    selectEverything();
    program.click("Command2");
    pressInTrainer("Command3");
    program.click("Command4");
    EXPECT_FALSE(program.app().form1().isVisible());
    program.end();
    EXPECT_EQ(readFile(program.sample()), delivered) << "looking at the sample changes nothing";
    EXPECT_EQ(program.recentDatabase(), program.sample());

    program.start();
    EXPECT_EQ(program.app().state().CurrentDBPath, program.sample());
    EXPECT_TRUE(program.label("AnzahlLabel").endsWith(u' ' + QString::number(entries)));
    EXPECT_FALSE(program.isEnabled("Command2")) << "a selection does not outlive the run";
    EXPECT_EQ(program.setting("Exceptions", "Exc_1"), u"!¡"_s);
}

TEST_P(Story, ClosedWindowsKeepTheirSession) {
    firstStart();
    selectEverything();
    program.click("Command2");
    pressInTrainer("Command3");
    const QString question = shown(QuestionRow);
    program.app().trainer().close();
    program.app().liste().close();
    EXPECT_TRUE(program.app().form1().isVisible());

    program.click("Command2");
    EXPECT_EQ(shown(QuestionRow), question);
    program.click("Grid");
    EXPECT_EQ(program.app().liste().countRows(), entries);
}

} // namespace
} // namespace lingomat
