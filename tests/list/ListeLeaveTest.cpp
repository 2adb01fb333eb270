#include "EditBench.h"

#include <QApplication>
#include <QHeaderView>
#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace lingomat;

// Leaving.

TEST(LeaveOverlay, AClickIntoAnotherCellTakesTheTextOver) {
    EditBench bench;
    bench.go(2, Liste::ColBeispielsatz);
    bench.type(u"ab"_s);
    bench.click(4, Liste::ColQuelle);
    EXPECT_EQ(bench.cell(2, Liste::ColBeispielsatz), u"ab"_s);
    EXPECT_EQ(bench.cell(4, Liste::ColQuelle), QString());
    EXPECT_EQ(bench.overlay(), &bench.quelleBox()) << "and opens the other one";
    EXPECT_EQ(bench.grid.Row(), 4);
    EXPECT_EQ(bench.list.MarkierteZeile, 4);
    EXPECT_EQ(bench.savedRows(), QStringList{u"two"_s});
}

TEST(LeaveOverlay, TheFocusTakesTheTextOver) {
    EditBench bench;
    bench.go(2, Liste::ColBeispielsatz);
    bench.type(u"ab"_s);
    bench.grid.setFocus();
    EXPECT_EQ(bench.overlay(), nullptr);
    EXPECT_EQ(bench.cell(2, Liste::ColBeispielsatz), u"ab"_s);
    EXPECT_EQ(bench.savedRows(), QStringList{u"two"_s});
}

TEST(LeaveOverlay, AnUnchangedTextRecordsNothing) {
    EditBench bench;
    bench.grid.setTextMatrix(2, Liste::ColQuelle, u"xy"_s);
    bench.click(2, Liste::ColQuelle);
    bench.press(Qt::Key_Return);
    bench.click(2, Liste::ColQuelle);
    bench.type(u"  "_s);
    bench.press(Qt::Key_Return);
    EXPECT_EQ(bench.list.AnzahlGeaendert, 0);
    EXPECT_EQ(bench.cell(2, Liste::ColQuelle), u"xy"_s);
}

TEST(LeaveOverlay, ScrollingTakesTheTextOverAtOnce) {
    EditBench bench;
    QStringList many;
    for (int i = 0; i < 80; ++i)
        many << QString::number(i);
    bench.fill(many);
    bench.go(2, Liste::ColQuelle);
    bench.type(u"ab"_s);
    bench.wheel(*bench.grid.viewport());
    EXPECT_EQ(bench.overlay(), nullptr);
    EXPECT_EQ(bench.cell(2, Liste::ColQuelle), u"ab"_s);
    EXPECT_EQ(bench.savedRows(), QStringList{u"two"_s});
    EXPECT_TRUE(bench.grid.hasFocus());
}

TEST(LeaveOverlay, TheWheelOverABoxScrollsAndChoosesNothing) {
    EditBench bench;
    QStringList many;
    for (int i = 0; i < 80; ++i)
        many << QString::number(i);
    bench.fill(many);
    bench.go(2, Liste::ColWortart);
    bench.type(u"ab"_s);
    bench.wheel(bench.wortartBox());
    EXPECT_EQ(bench.cell(2, Liste::ColWortart), u"ab"_s);
    EXPECT_GT(bench.grid.TopRow(), 1);
    EXPECT_EQ(bench.overlay(), nullptr);
}

TEST(LeaveOverlay, AnotherWindowTakesTheTextOverAndTheRowIsRecorded) {
    for (const int column : {Liste::ColWortart, Liste::ColQuelle, Liste::ColZusatzinfo}) {
        EditBench bench;
        bench.go(2, column);
        bench.type(u"ab"_s);
        bench.deactivate();
        EXPECT_EQ(bench.overlay(), nullptr);
        EXPECT_EQ(bench.cell(2, column), u"ab"_s);
        bench.activate();
        EXPECT_TRUE(bench.grid.hasFocus());
        EXPECT_EQ(bench.savedRows(), QStringList{u"two"_s});
    }
}

TEST(LeaveOverlay, AClosedWindowKeepsTheText) {
    EditBench bench;
    bench.go(2, Liste::ColQuelle);
    bench.type(u"ab"_s);
    bench.list.close();
    EXPECT_EQ(bench.cell(2, Liste::ColQuelle), u"ab"_s);
    EXPECT_EQ(bench.list.AnzahlGeaendert, 1);
}

TEST(LeaveOverlay, ASortTakesTheTextOverFirst) {
    EditBench bench;
    bench.go(1, Liste::ColQuelle);
    bench.type(u"zz"_s);
    bench.entry("mnQuelle").trigger();
    EXPECT_EQ(bench.overlay(), nullptr);
    EXPECT_EQ(bench.column(Liste::ColQuelle), QStringList({u""_s, u""_s, u""_s, u""_s, u"zz"_s}));
    EXPECT_EQ(bench.cell(5, Liste::ColHaupt1), u"one"_s);
    EXPECT_EQ(bench.savedRows(), QStringList{u"one"_s});
}

TEST(LeaveOverlay, AnEntryThatHasGoneIsToldAndTheTextStands) {
    EditBench bench;
    bench.grid.setTextMatrix(2, Liste::ColSchluessel, u"999"_s);
    bench.go(2, Liste::ColQuelle);
    bench.type(u"ab"_s);
    bench.context.prompts.expectExclamation(u"Row not found in database!"_s);
    bench.press(Qt::Key_Return);
    EXPECT_EQ(bench.cell(2, Liste::ColQuelle), u"ab"_s);
    EXPECT_EQ(bench.list.AnzahlGeaendert, 0);
}

// New values.

TEST(NewValues, GoToTheListsAndAreTold) {
    EditBench bench;
    bench.go(2, Liste::ColWortart);
    bench.type(u" particle "_s);
    bench.press(Qt::Key_Return);
    bench.go(2, Liste::ColQuelle);
    bench.type(u"Book"_s);
    bench.press(Qt::Key_Return);
    EXPECT_EQ(bench.values, QStringList({u"Wortart: particle"_s, u"Quelle: Book"_s}));
    EXPECT_GE(bench.wortartBox().findText(u"particle"_s), 0);
    EXPECT_TRUE(bench.context.values.values(u"Quelle"_s).contains(u"Book"_s));
}

TEST(NewValues, AKnownOneIsNoNews) {
    EditBench bench;
    bench.go(2, Liste::ColWortart);
    bench.type(u"noun"_s);
    bench.press(Qt::Key_Return);
    bench.go(3, Liste::ColZusatzinfo);
    bench.type(u"free text"_s);
    bench.press(Qt::Key_Return);
    EXPECT_EQ(bench.values, QStringList());
}

TEST(NewValues, AreKeptWhicheverWayTheOverlayIsLeft) {
    EditBench bench;
    bench.go(2, Liste::ColQuelle);
    bench.type(u"A"_s);
    bench.deactivate();
    bench.activate();
    bench.go(3, Liste::ColQuelle);
    bench.type(u"B"_s);
    bench.click(1, Liste::ColScore);
    EXPECT_EQ(bench.values, QStringList({u"Quelle: A"_s, u"Quelle: B"_s}));
}

// Tool tips.

TEST(GridTips, TellWhatAClickDoesInEnglish) {
    EditBench english;
    QTest::mouseMove(english.grid.horizontalHeader()->viewport(), QPoint(20, 5));
    EXPECT_EQ(english.grid.toolTip(), u"Click to sort by this column"_s);
    QTest::mouseMove(english.grid.viewport(), QPoint(20, 20));
    EXPECT_EQ(english.grid.toolTip(), u"Click or press key to type in data. To get to a cell, click on the "
                                      "cell or use arrow keys"_s);
}

TEST(GridTips, TellWhatAClickDoesInGerman) {
    EditBench german(u"De"_s);
    QTest::mouseMove(german.grid.horizontalHeader()->viewport(), QPoint(20, 5));
    EXPECT_EQ(german.grid.toolTip(), u"Klicken, um nach dieser Spalte zu Sortieren"_s);
    QTest::mouseMove(german.grid.viewport(), QPoint(20, 20));
    EXPECT_EQ(german.grid.toolTip(),
              u"Klicken oder Taste drücken, um Daten einzugeben. Um zu einer Zelle zu gelangen, die Zelle "
              "anklicken oder Pfeiltasten verwenden"_s);
}
