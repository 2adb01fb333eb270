#include "EditBench.h"

#include <QApplication>
#include <QHeaderView>
#include <QListWidget>
#include <QScrollBar>
#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace lingomat;

namespace {

const QStringList nothing{u""_s, u""_s, u""_s, u""_s, u""_s};

} // namespace

// The selection.

TEST(SelectedRows, AreReadWhenKeyOrButtonGoesUp) {
    EditBench bench;
    bench.drag(2, 4, Liste::ColQuelle);
    EXPECT_EQ(bench.list.MehrfachStart, 2);
    EXPECT_EQ(bench.list.MehrfachEnde, 4);
    bench.go(3, Liste::ColQuelle);
    bench.press(Qt::Key_Up, Qt::ShiftModifier);
    bench.press(Qt::Key_Up, Qt::ShiftModifier);
    EXPECT_EQ(bench.list.MehrfachStart, 3);
    EXPECT_EQ(bench.list.MehrfachEnde, 1);
}

TEST(SelectedRows, AreOneRowWhereSeveralCannotChange) {
    for (const int column : {Liste::ColSprache1, Liste::ColSprache2, Liste::ColEingabedatum,
                             Liste::ColAenderungsdatum, Liste::ColScore}) {
        EditBench bench;
        bench.drag(2, 4, column);
        EXPECT_EQ(bench.list.MehrfachStart, 2);
        EXPECT_EQ(bench.list.MehrfachEnde, 2);
    }
}

TEST(SelectedRows, StayAsTheyAreWhileTheOverlayIsOpen) {
    EditBench bench;
    bench.drag(4, 2, Liste::ColQuelle);
    bench.type(u"ab"_s);
    EXPECT_EQ(bench.grid.Row(), 4);
    EXPECT_EQ(bench.grid.RowSel(), 2);
    EXPECT_EQ(bench.grid.Col(), Liste::ColQuelle);
    bench.press(Qt::Key_Escape);
}

TEST(SelectedRows, ThoseOfAnEarlierSelectionDoNotCount) {
    EditBench bench;
    bench.drag(2, 4, Liste::ColQuelle);
    bench.list.Command3_Click();
    bench.grid.setCol(Liste::ColQuelle);
    bench.type(u"ab"_s);
    bench.press(Qt::Key_Return);
    EXPECT_EQ(bench.column(Liste::ColQuelle), QStringList({u""_s, u""_s, u""_s, u""_s, u""_s, u"ab"_s}));
}

TEST(SelectedRows, BeyondSixteenBitsAreRowsLikeAnyOther) {
    EditBench bench;
    bench.grid.setRows(32771);
    bench.grid.setRow(32768);
    bench.grid.setCol(Liste::ColQuelle);
    bench.grid.setRowSel(32770);
    bench.list.SetMehrfachParameter();
    EXPECT_EQ(bench.list.MehrfachStart, 32768);
    EXPECT_EQ(bench.list.MehrfachEnde, 32770);
    bench.list.SetzeMarke();
    EXPECT_EQ(bench.list.MarkierteZeile, 32768);
}

// The question, in both directions and whichever way the overlay is left.

struct Leaving {
    const char* name;
    std::function<void(EditBench&)> leave;
};

const std::vector<Leaving>& waysOut() {
    static const std::vector<Leaving> all{
        {"Return", [](EditBench& bench) { bench.press(Qt::Key_Return); }},
        {"Tab", [](EditBench& bench) { bench.press(Qt::Key_Tab); }},
        {"Up", [](EditBench& bench) { bench.press(Qt::Key_Up); }},
        {"Down", [](EditBench& bench) { bench.press(Qt::Key_Down); }},
        {"click", [](EditBench& bench) { bench.click(5, Liste::ColScore); }},
        {"click into the selection", [](EditBench& bench) { bench.click(3, Liste::ColScore); }},
        {"focus", [](EditBench& bench) { bench.grid.setFocus(); }},
        {"scrolling", [](EditBench& bench) { bench.wheel(*bench.grid.viewport()); }},
        {"another window",
         [](EditBench& bench) {
             bench.deactivate();
             bench.activate();
         }},
        {"command", [](EditBench& bench) { bench.list.commitOverlay(); }},
        {"sort", [](EditBench& bench) { bench.entry("WordSortByAll").trigger(); }},
    };
    return all;
}

TEST(SeveralRows, YesSetsThemAllAndRecordsThemAll) {
    for (const Leaving& way : waysOut()) {
        SCOPED_TRACE(way.name);
        EditBench bench;
        bench.list.resize(1700, 130); // so that there is something to scroll
        bench.drag(2, 4, Liste::ColQuelle);
        bench.type(u"ab"_s);
        bench.expectQuestion(true);
        way.leave(bench);
        bench.context.prompts.verify();
        EXPECT_EQ(bench.overlay(), nullptr);
        QStringList cells = bench.column(Liste::ColQuelle);
        cells.sort();
        EXPECT_EQ(cells, QStringList({u""_s, u""_s, u"ab"_s, u"ab"_s, u"ab"_s}));
        EXPECT_EQ(bench.list.AnzahlGeaendert, 3);
        EXPECT_EQ(bench.savedRows(), QStringList({u"two"_s, u"three"_s, u"four"_s}));
    }
}

TEST(SeveralRows, NoSetsTheCurrentRowOnly) {
    for (const Leaving& way : waysOut()) {
        SCOPED_TRACE(way.name);
        EditBench bench;
        bench.list.resize(1700, 130);
        bench.drag(4, 2, Liste::ColWortart);
        bench.type(u"ab"_s);
        bench.expectQuestion(false);
        way.leave(bench);
        bench.context.prompts.verify();
        QStringList cells = bench.column(Liste::ColWortart);
        cells.sort();
        EXPECT_EQ(cells, QStringList({u""_s, u""_s, u""_s, u""_s, u"ab"_s}));
        EXPECT_EQ(bench.savedRows(), QStringList{u"four"_s});
    }
}

TEST(SeveralRows, WorkInBothDirections) {
    for (const auto& [from, to] : {std::pair(2, 4), std::pair(4, 2)}) {
        EditBench bench;
        bench.drag(from, to, Liste::ColBeispielsatz);
        bench.type(u"ab"_s);
        bench.expectQuestion(true);
        bench.press(Qt::Key_Return);
        EXPECT_EQ(bench.column(Liste::ColBeispielsatz),
                  QStringList({u""_s, u"ab"_s, u"ab"_s, u"ab"_s, u""_s}));
        EXPECT_EQ(bench.grid.Row(), from);
        EXPECT_EQ(bench.grid.RowSel(), from) << "the selection has done its work";
        EXPECT_EQ(bench.list.MehrfachEnde, from) << "of the key that went up";
        EXPECT_EQ(bench.savedRows(), QStringList({u"two"_s, u"three"_s, u"four"_s}));
    }
}

TEST(SeveralRows, NothingIsAskedASecondTime) {
    EditBench bench;
    bench.drag(2, 4, Liste::ColQuelle);
    bench.type(u"ab"_s);
    bench.expectQuestion(true);
    bench.press(Qt::Key_Return);
    bench.type(u"c"_s);
    bench.press(Qt::Key_Return);
    EXPECT_EQ(bench.column(Liste::ColQuelle), QStringList({u""_s, u"abc"_s, u"ab"_s, u"ab"_s, u""_s}));
    bench.deactivate();
    bench.activate();
    bench.click(1, Liste::ColScore);
}

TEST(SeveralRows, TheQuestionIsInGermanToo) {
    EditBench bench(u"De"_s);
    bench.drag(2, 3, Liste::ColQuelle);
    bench.type(u"ab"_s);
    bench.context.prompts.expectYesNo(u"Änderungen für alle selektierten Zellen vornehmen?"_s, true);
    bench.press(Qt::Key_Return);
    EXPECT_EQ(bench.column(Liste::ColQuelle), QStringList({u""_s, u"ab"_s, u"ab"_s, u""_s, u""_s}));
}

TEST(SeveralRows, OneColumnOnlyWhateverElseIsSelected) {
    for (const Leaving& way : waysOut()) {
        SCOPED_TRACE(way.name);
        EditBench bench;
        bench.list.resize(1700, 130);
        bench.go(2, Liste::ColZusatzinfo);
        bench.press(Qt::Key_Down, Qt::ShiftModifier);
        bench.press(Qt::Key_Right, Qt::ShiftModifier);
        bench.type(u"ab"_s);
        bench.expectQuestion(true);
        way.leave(bench);
        bench.context.prompts.verify();
        QStringList cells = bench.column(Liste::ColZusatzinfo);
        cells.sort();
        EXPECT_EQ(cells, QStringList({u""_s, u""_s, u""_s, u"ab"_s, u"ab"_s}));
        EXPECT_EQ(bench.column(Liste::ColQuelle), nothing);
    }
}

TEST(SeveralRows, ALookElsewhereLeavesTheOtherColumnsOfTheRow) {
    EditBench bench;
    bench.go(2, Liste::ColBeispielsatz);
    bench.press(Qt::Key_Right, Qt::ShiftModifier);
    bench.press(Qt::Key_Right, Qt::ShiftModifier);
    bench.type(u"ab"_s);
    bench.deactivate();
    EXPECT_EQ(bench.column(Liste::ColBeispielsatz), QStringList({u""_s, u"ab"_s, u""_s, u""_s, u""_s}));
    EXPECT_EQ(bench.column(Liste::ColZusatzinfo), nothing);
    EXPECT_EQ(bench.column(Liste::ColQuelle), nothing);
}

TEST(SeveralRows, HidingAColumnTakesTheTextOverFirst) {
    EditBench bench;
    bench.go(2, Liste::ColQuelle);
    bench.type(u"ab"_s);
    bench.entry("mnAnsichtQuelle").trigger();
    EXPECT_EQ(bench.overlay(), nullptr);
    EXPECT_EQ(bench.column(Liste::ColQuelle), QStringList({u""_s, u"ab"_s, u""_s, u""_s, u""_s}));
}

TEST(SeveralRows, AKeyOfTheWindowAskedWhileTheOverlayIsOpenChangesNothingTwice) {
    EditBench bench;
    bench.drag(2, 4, Liste::ColQuelle);
    bench.type(u"ab"_s);
    bench.context.prompts.expectYesNo(u"Shall the changes be applied to all selected rows?"_s, true);
    bench.press(Qt::Key_Return);
    EXPECT_EQ(bench.values, QStringList{u"Quelle: ab"_s});
}

TEST(SeveralRows, ASelectionThatHasGoneIsNotAskedAbout) {
    EditBench bench;
    bench.drag(2, 4, Liste::ColQuelle);
    bench.type(u"ab"_s);
    bench.deactivate();
    EXPECT_EQ(bench.column(Liste::ColQuelle), QStringList({u""_s, u"ab"_s, u""_s, u""_s, u""_s}));
    bench.grid.setRow(1); // as another form does
    bench.activate();
    EXPECT_EQ(bench.column(Liste::ColQuelle), QStringList({u""_s, u"ab"_s, u""_s, u""_s, u""_s}));
    EXPECT_EQ(bench.savedRows(), QStringList{u"two"_s});
}

TEST(SeveralRows, TheScrollBarIsLetGoBeforeTheQuestion) {
    EditBench bench;
    bench.list.resize(1700, 130);
    bench.drag(2, 3, Liste::ColQuelle);
    bench.type(u"ab"_s);
    QScrollBar& bar = *bench.grid.verticalScrollBar();
    const QPoint below(bar.width() / 2, bar.height() - 18);
    QTest::mousePress(&bar, Qt::LeftButton, {}, below);
    EXPECT_EQ(bench.overlay(), nullptr);
    EXPECT_EQ(bench.column(Liste::ColQuelle), QStringList({u""_s, u"ab"_s, u""_s, u""_s, u""_s}));
    bench.expectQuestion(true);
    QTest::mouseRelease(&bar, Qt::LeftButton, {}, below);
    QApplication::processEvents();
    EXPECT_EQ(bench.column(Liste::ColQuelle), QStringList({u""_s, u"ab"_s, u"ab"_s, u""_s, u""_s}));
    EXPECT_EQ(bench.list.AnzahlGeaendert, 2);
}

// Attributes.

TEST(EditAttributes, KeyAndClickOpenTheDialogInItsMode) {
    for (const auto& [column, title] : {std::pair(Liste::ColGrammatikalisch, u"Edit grammar attributes"),
                                        std::pair(Liste::ColFunktional, u"Edit functional attributes"),
                                        std::pair(Liste::ColBereich, u"Edit section")}) {
        EditBench bench;
        int opened = 0;
        const auto act = [&opened, expected = QString::fromUtf16(title)](QDialog& dialog) {
            ++opened;
            EXPECT_EQ(dialog.windowTitle(), expected);
            dialog.close();
        };
        bench.go(2, column);
        bench.context.prompts.expectDialog("AddListBox", act);
        bench.type(u"a"_s);
        bench.context.prompts.expectDialog("AddListBox", act);
        bench.click(3, column);
        bench.context.prompts.expectDialog("AddListBox", act);
        bench.press(Qt::Key_Return);
        EXPECT_EQ(opened, 3);
        EXPECT_TRUE(bench.grid.hasFocus());
        EXPECT_EQ(bench.list.LetzteSpalte, column);
    }
}

TEST(EditAttributes, AssignsToAllSelectedRows) {
    EditBench bench;
    bench.drag(4, 2, Liste::ColBereich);
    bench.context.prompts.expectDialog("AddListBox", [&bench](QDialog& dialog) {
        child<QLineEdit>(dialog, "txtSelected").setText(u"house"_s);
        child<QPushButton>(dialog, "Add").click();
        bench.context.prompts.expectYesNo(u"Process changes for all selected cells?"_s, true);
        child<QPushButton>(dialog, "OK").click();
    });
    bench.type(u"a"_s);
    EXPECT_EQ(bench.column(Liste::ColBereich),
              QStringList({u""_s, u"house;"_s, u"house;"_s, u"house;"_s, u""_s}));
    EXPECT_EQ(bench.list.AnzahlGeaendert, 3);
    EXPECT_EQ(bench.values, QStringList{u"Bereich: house"_s});
}

TEST(EditAttributes, NoAssignsToTheCurrentRowOnly) {
    EditBench bench;
    bench.drag(2, 4, Liste::ColBereich);
    bench.context.prompts.expectDialog("AddListBox", [&bench](QDialog& dialog) {
        child<QLineEdit>(dialog, "txtSelected").setText(u"house"_s);
        child<QPushButton>(dialog, "Add").click();
        bench.context.prompts.expectYesNo(u"Process changes for all selected cells?"_s, false);
        child<QPushButton>(dialog, "OK").click();
    });
    bench.type(u"a"_s);
    EXPECT_EQ(bench.column(Liste::ColBereich), QStringList({u""_s, u"house;"_s, u""_s, u""_s, u""_s}));
    EXPECT_EQ(bench.list.AnzahlGeaendert, 1);
}

TEST(EditAttributes, AValueThatWasAddedIsToldAlsoAfterCancel) {
    EditBench bench;
    bench.go(2, Liste::ColGrammatikalisch);
    bench.context.prompts.expectDialog("AddListBox", [](QDialog& dialog) {
        child<QLineEdit>(dialog, "txtSelected").setText(u"dual"_s);
        child<QPushButton>(dialog, "Add").click();
        child<QPushButton>(dialog, "cmClose").click();
    });
    bench.type(u"a"_s);
    EXPECT_EQ(bench.cell(2, Liste::ColGrammatikalisch), QString());
    EXPECT_EQ(bench.values, QStringList{u"Grammatikalisch: dual"_s});
}

TEST(EditAttributes, ItsSpecialCharactersAreAskedForThroughTheList) {
    EditBench bench;
    QString asker;
    QObject::connect(&bench.list, &Liste::specialCharactersRequested, &bench.list,
                     [&asker](QWidget& window) { asker = window.objectName(); });
    bench.go(2, Liste::ColBereich);
    bench.context.prompts.expectDialog("AddListBox", [](QDialog& dialog) {
        child<QPushButton>(dialog, "cmdFont").click();
        dialog.close();
    });
    bench.type(u"a"_s);
    EXPECT_EQ(asker, u"AddListBox"_s);
}

// Expressions.

TEST(EditExpression, AKeyAsksForTheEditorAndArrivesThere) {
    for (const auto& [column, first] : {std::pair(Liste::ColSprache1, Liste::ColPrefix1),
                                        std::pair(Liste::ColSprache2, Liste::ColPrefix2)}) {
        EditBench bench;
        for (int part = 0; part < 4; ++part)
            bench.grid.setTextMatrix(2, first + part, QString::number(part));
        bench.go(2, column);
        bench.type(u"x"_s);
        ASSERT_EQ(bench.editors.size(), 1);
        const auto& call = bench.editors.first();
        EXPECT_EQ(call.parts, (ExpressionParts{u"0"_s, u"1"_s, u"2"_s, u"3"_s}));
        EXPECT_EQ(call.typed, u"x"_s);
        const QPoint corner(bench.grid.CellLeft(), bench.grid.CellTop());
        EXPECT_EQ(call.cell, QRect(bench.grid.mapToGlobal(corner),
                                   QSize(bench.grid.CellWidth(), bench.grid.CellHeight())));
        EXPECT_EQ(bench.overlay(), nullptr);
        EXPECT_EQ(bench.grid.Col(), column);
    }
}

TEST(EditExpression, PasteClickReturnAndBackspaceAskForItToo) {
    EditBench bench;
    bench.go(2, Liste::ColSprache1);
    bench.paste(u"clip"_s);
    bench.click(2, Liste::ColSprache2);
    bench.press(Qt::Key_Return);
    bench.press(Qt::Key_Backspace);
    QStringList typed;
    for (const auto& call : std::as_const(bench.editors))
        typed << call.typed;
    EXPECT_EQ(typed, QStringList({u"clip"_s, u""_s, u""_s, u""_s}));
}

TEST(EditExpression, SeveralRowsBehaveAsOne) {
    EditBench bench;
    bench.drag(2, 4, Liste::ColSprache1);
    bench.type(u"x"_s);
    ASSERT_EQ(bench.editors.size(), 1);
    bench.list.AusdruckDialogOK({u""_s, u"neu"_s, u""_s, u""_s});
    EXPECT_EQ(bench.column(Liste::ColSprache1),
              QStringList({u"one"_s, u"neu"_s, u"three"_s, u"four"_s, u"five"_s}));
    EXPECT_EQ(bench.list.AnzahlGeaendert, 1);
}

TEST(EditExpression, OkWritesTheWholeAndItsParts) {
    for (const auto& [column, first] : {std::pair(Liste::ColSprache1, Liste::ColPrefix1),
                                        std::pair(Liste::ColSprache2, Liste::ColPrefix2)}) {
        EditBench bench;
        bench.go(3, column);
        bench.list.AusdruckDialogOK({u" der"_s, u"Hund "_s, u" e"_s, u" Tier "_s});
        EXPECT_EQ(bench.cell(3, column), u"der Hund e (Tier)"_s);
        EXPECT_EQ(bench.cell(3, first), u"der"_s);
        EXPECT_EQ(bench.cell(3, first + 1), u"Hund"_s);
        EXPECT_EQ(bench.cell(3, first + 2), u"e"_s);
        EXPECT_EQ(bench.cell(3, first + 3), u"Tier"_s);
        EXPECT_EQ(bench.grid.Col(), column);
        EXPECT_EQ(bench.grid.Row(), 3);
        bench.save();
        EXPECT_EQ(bench.stored(column == Liste::ColSprache1
                                   ? "SELECT Lang1_Prefix, Lang1_Main, Lang1_Suffix, Lang1_Kommentar FROM "
                                     "Vokabular WHERE ID = 3"
                                   : "SELECT Lang2_Prefix, Lang2_Main, Lang2_Suffix, Lang2_Kommentar FROM "
                                     "Vokabular WHERE ID = 3"),
                  QStringList{u"der | Hund | e | Tier"_s});
    }
}

TEST(EditExpression, AnUnchangedOneRecordsNothing) {
    EditBench bench;
    bench.go(3, Liste::ColSprache1);
    bench.list.AusdruckDialogOK({u""_s, u"three"_s, u""_s, u""_s});
    EXPECT_EQ(bench.list.AnzahlGeaendert, 0);
}

TEST(EditExpression, TheSameWordsPartedAnewAreAChange) {
    EditBench bench;
    bench.go(3, Liste::ColSprache1);
    bench.list.AusdruckDialogOK({u"three"_s, u""_s, u""_s, u""_s});
    EXPECT_EQ(bench.cell(3, Liste::ColSprache1), u"three"_s);
    EXPECT_EQ(bench.list.AnzahlGeaendert, 1);
}
