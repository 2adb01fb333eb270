#include "EditBench.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QClipboard>
#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace lingomat;

// Opening.

TEST(OpenOverlay, TypingOpensItBehindTheTextOfTheCell) {
    EditBench bench;
    bench.grid.setTextMatrix(2, Liste::ColBeispielsatz, u"xy"_s);
    bench.go(2, Liste::ColBeispielsatz);
    bench.type(u"a"_s);
    EXPECT_EQ(bench.overlay(), &bench.txtEdit());
    EXPECT_EQ(bench.overlayText(), u"xya"_s);
    EXPECT_EQ(bench.txtEdit().cursorPosition(), 3);
    EXPECT_TRUE(bench.txtEdit().selectedText().isEmpty());
    bench.type(u"b"_s);
    EXPECT_EQ(bench.overlayText(), u"xyab"_s) << "the next key goes on there";
    EXPECT_EQ(bench.cell(2, Liste::ColBeispielsatz), u"xy"_s) << "not yet";
}

TEST(OpenOverlay, EachColumnHasItsOwn) {
    EditBench bench;
    for (const auto& [column, name] :
         {std::pair(Liste::ColWortart, "WortartBox"), std::pair(Liste::ColQuelle, "QuelleBox"),
          std::pair(Liste::ColBeispielsatz, "txtEdit"), std::pair(Liste::ColZusatzinfo, "txtEdit")}) {
        bench.go(1, column);
        bench.type(u"a"_s);
        ASSERT_NE(bench.overlay(), nullptr);
        EXPECT_EQ(bench.overlay()->objectName(), QString::fromLatin1(name));
        bench.press(Qt::Key_Escape);
        bench.click(1, column);
        ASSERT_NE(bench.overlay(), nullptr);
        EXPECT_EQ(bench.overlay()->objectName(), QString::fromLatin1(name));
        EXPECT_EQ(bench.overlayText(), QString());
        bench.press(Qt::Key_Escape);
    }
}

TEST(OpenOverlay, AClickTakesTheTextOfTheCell) {
    EditBench bench;
    bench.grid.setTextMatrix(3, Liste::ColWortart, u"verb"_s);
    bench.click(3, Liste::ColWortart);
    EXPECT_EQ(bench.overlay(), &bench.wortartBox());
    EXPECT_EQ(bench.overlayText(), u"verb"_s);
    EXPECT_TRUE(bench.wortartBox().hasFocus());
    EXPECT_EQ(bench.list.LetzteSpalte, Liste::ColWortart);
    EXPECT_EQ(bench.grid.Row(), 3);
}

TEST(OpenOverlay, F2OpensAsAClickDoes) {
    EditBench bench;
    bench.grid.setTextMatrix(3, Liste::ColQuelle, u"Grammar"_s);
    bench.go(3, Liste::ColQuelle);
    bench.press(Qt::Key_F2);
    EXPECT_EQ(bench.overlayText(), u"Grammar"_s);
}

TEST(OpenOverlay, BackspaceOpensAndTakesTheLastCharacter) {
    EditBench bench;
    bench.grid.setTextMatrix(3, Liste::ColQuelle, u"Grammar"_s);
    bench.go(3, Liste::ColQuelle);
    bench.press(Qt::Key_Backspace);
    EXPECT_EQ(bench.overlayText(), u"Gramma"_s);
}

TEST(OpenOverlay, PasteOnAClosedCellPutsTheClipboardBehindItsText) {
    EditBench bench;
    bench.grid.setTextMatrix(3, Liste::ColQuelle, u"Book "_s);
    bench.go(3, Liste::ColQuelle);
    bench.paste(u"of words"_s);
    EXPECT_EQ(bench.overlay(), &bench.quelleBox());
    EXPECT_EQ(bench.overlayText(), u"Book of words"_s);
    bench.press(Qt::Key_Return);
    EXPECT_EQ(bench.cell(3, Liste::ColQuelle), u"Book of words"_s);
}

TEST(OpenOverlay, ControlAloneDoesNotMakeTheNextKeyPaste) {
    EditBench bench;
    QApplication::clipboard()->setText(u"clip"_s);
    bench.go(3, Liste::ColQuelle);
    bench.press(Qt::Key_Control);
    bench.type(u"a"_s);
    EXPECT_EQ(bench.overlayText(), u"a"_s);
}

TEST(OpenOverlay, WhatAnInputMethodWritesArrivesInIt) {
    EditBench bench;
    bench.grid.setTextMatrix(3, Liste::ColQuelle, u"x"_s);
    bench.go(3, Liste::ColQuelle);
    ASSERT_TRUE(bench.grid.testAttribute(Qt::WA_InputMethodEnabled));
    QInputMethodEvent accented;
    accented.setCommitString(u"é"_s);
    QApplication::sendEvent(&bench.grid, &accented);
    EXPECT_EQ(bench.overlayText(), u"xé"_s);
}

TEST(OpenOverlay, AnInputMethodGoesOnComposingInIt) {
    EditBench bench;
    bench.go(3, Liste::ColBeispielsatz);
    QInputMethodEvent composing(u"に"_s, {});
    QApplication::sendEvent(&bench.grid, &composing);
    EXPECT_EQ(bench.overlay(), &bench.txtEdit());
    QInputMethodEvent done;
    done.setCommitString(u"日本"_s);
    QApplication::sendEvent(QApplication::focusWidget(), &done);
    EXPECT_EQ(bench.overlayText(), u"日本"_s);
}

TEST(OpenOverlay, WhereNothingCanBeEditedAKeyBeeps) {
    EditBench bench;
    int beeps = 0;
    for (const int column : {Liste::ColScore, Liste::ColEingabedatum, Liste::ColAenderungsdatum,
                             Liste::ColMarke, Liste::ColEingabeKey, Liste::ColAenderungKey}) {
        const QString before = bench.cell(2, column);
        bench.go(2, column);
        bench.type(u"3"_s);
        EXPECT_EQ(bench.beeps(), ++beeps) << column;
        EXPECT_EQ(bench.overlay(), nullptr);
        EXPECT_EQ(bench.cell(2, column), before);
    }
    bench.click(2, Liste::ColScore);
    EXPECT_EQ(bench.beeps(), beeps) << "a click does nothing there";
    EXPECT_EQ(bench.overlay(), nullptr);
}

TEST(OpenOverlay, NothingHappensOnTheHeaderOrInTheKeyColumn) {
    EditBench bench;
    bench.go(0, Liste::ColQuelle);
    bench.type(u"a"_s);
    bench.go(1, Liste::ColSchluessel);
    bench.type(u"a"_s);
    EXPECT_EQ(bench.overlay(), nullptr);
    EXPECT_EQ(bench.beeps(), 0);
}

TEST(OpenOverlay, NothingHappensInAnEmptyList) {
    EditBench bench;
    bench.list.LoescheListe();
    bench.go(1, Liste::ColQuelle);
    bench.type(u"a"_s);
    EXPECT_EQ(bench.overlay(), nullptr);
}

TEST(OpenOverlay, ReturnOnAClosedCellOpensNothing) {
    EditBench bench;
    bench.go(2, Liste::ColQuelle);
    bench.press(Qt::Key_Return);
    bench.press(Qt::Key_Escape);
    EXPECT_EQ(bench.overlay(), nullptr);
    EXPECT_TRUE(bench.grid.hasFocus());
    EXPECT_EQ(bench.beeps(), 0);
}

TEST(OpenOverlay, TabOnAClosedCellLeavesTheGrid) {
    EditBench bench;
    bench.go(2, Liste::ColQuelle);
    bench.press(Qt::Key_Tab);
    EXPECT_FALSE(bench.grid.hasFocus());
    EXPECT_EQ(bench.grid.Col(), Liste::ColQuelle);
}

// Its place.

TEST(OverlayPlace, IsExactlyOverTheCell) {
    EditBench bench;
    for (const int column :
         {Liste::ColWortart, Liste::ColBeispielsatz, Liste::ColZusatzinfo, Liste::ColQuelle}) {
        for (const int row : {1, 4}) {
            bench.click(row, column);
            EXPECT_EQ(bench.overlayPlace(), bench.cellPlace()) << row << ", " << column;
            bench.press(Qt::Key_Escape);
        }
    }
}

TEST(OverlayPlace, FollowsAScrolledView) {
    EditBench bench;
    QStringList many;
    for (int i = 0; i < 80; ++i)
        many << QString::number(i);
    bench.fill(many);
    bench.list.resize(500, 300);
    bench.grid.flush();
    bench.go(60, Liste::ColQuelle);
    bench.type(u"a"_s);
    EXPECT_EQ(bench.overlayPlace(), bench.cellPlace()) << "the cell is brought into view";
    EXPECT_GT(bench.overlayPlace().width(), 20);
    EXPECT_EQ(bench.overlayPlace().height(), bench.grid.CellHeight());
    EXPECT_EQ(bench.grid.Row(), 60);
}

TEST(OverlayPlace, StaysWithinTheViewOverACellThatIsCut) {
    EditBench bench;
    bench.list.resize(400, 300);
    bench.grid.setColWidth(Liste::ColBeispielsatz, 700);
    bench.grid.flush();
    bench.go(2, Liste::ColBeispielsatz);
    bench.type(u"a"_s);
    EXPECT_EQ(bench.overlayPlace(), bench.cellPlace());
    EXPECT_TRUE(bench.grid.geometry().contains(bench.txtEdit().geometry(), true));
}

TEST(OverlayPlace, FollowsASmallerWindow) {
    EditBench bench;
    bench.list.resize(600, 400);
    bench.go(2, Liste::ColQuelle);
    bench.type(u"a"_s);
    bench.list.resize(1700, 400);
    QApplication::processEvents();
    EXPECT_EQ(bench.overlayPlace(), bench.cellPlace());
}

// The keys of an open overlay.

TEST(OverlayKeys, ReturnTakesTheTextOverAndStays) {
    EditBench bench;
    bench.go(2, Liste::ColBeispielsatz);
    bench.type(u" ab "_s);
    bench.press(Qt::Key_Return);
    EXPECT_EQ(bench.overlay(), nullptr);
    EXPECT_EQ(bench.cell(2, Liste::ColBeispielsatz), u"ab"_s) << "without the blanks at its ends";
    EXPECT_TRUE(bench.grid.hasFocus());
    EXPECT_EQ(bench.grid.Row(), 2);
    EXPECT_EQ(bench.grid.Col(), Liste::ColBeispielsatz);
    EXPECT_EQ(bench.list.MarkierteZeile, 2);
    EXPECT_EQ(bench.savedRows(), QStringList{u"two"_s});
}

TEST(OverlayKeys, TheKeypadEntersAsWell) {
    EditBench bench;
    bench.go(2, Liste::ColQuelle);
    bench.type(u"a"_s);
    bench.press(Qt::Key_Enter, Qt::KeypadModifier);
    EXPECT_EQ(bench.cell(2, Liste::ColQuelle), u"a"_s);
    EXPECT_EQ(bench.overlay(), nullptr);
}

TEST(OverlayKeys, EscLosesTheTextAndLeavesTheCell) {
    EditBench bench;
    for (const int column : {Liste::ColQuelle, Liste::ColZusatzinfo}) {
        bench.grid.setTextMatrix(2, column, u"xy"_s);
        bench.go(2, column);
        bench.type(u"abc"_s);
        bench.press(Qt::Key_Escape);
        EXPECT_EQ(bench.overlay(), nullptr);
        EXPECT_EQ(bench.cell(2, column), u"xy"_s);
        EXPECT_TRUE(bench.grid.hasFocus());
    }
    EXPECT_EQ(bench.list.AnzahlGeaendert, 0);
    EXPECT_EQ(bench.values, QStringList());
}

TEST(OverlayKeys, EscAsksNothingWithSeveralRows) {
    EditBench bench;
    bench.drag(2, 4, Liste::ColQuelle);
    bench.type(u"abc"_s);
    bench.press(Qt::Key_Escape);
    EXPECT_EQ(bench.list.AnzahlGeaendert, 0);
    EXPECT_EQ(bench.column(Liste::ColQuelle), QStringList({u""_s, u""_s, u""_s, u""_s, u""_s}));
}

TEST(OverlayKeys, TabGoesOneColumnToTheRight) {
    EditBench bench;
    bench.go(2, Liste::ColBeispielsatz);
    bench.type(u"ab"_s);
    bench.press(Qt::Key_Tab);
    EXPECT_EQ(bench.cell(2, Liste::ColBeispielsatz), u"ab"_s);
    EXPECT_EQ(bench.grid.Col(), Liste::ColZusatzinfo);
    EXPECT_EQ(bench.grid.Row(), 2);
    EXPECT_TRUE(bench.grid.hasFocus());
    bench.type(u"cd"_s);
    bench.press(Qt::Key_Tab);
    EXPECT_EQ(bench.cell(2, Liste::ColZusatzinfo), u"cd"_s);
    EXPECT_EQ(bench.beeps(), 0);
    bench.type(u"e"_s);
    bench.press(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(bench.grid.Col(), Liste::ColZusatzinfo) << "and back";
    EXPECT_EQ(bench.cell(2, Liste::ColQuelle), u"e"_s);
}

TEST(OverlayKeys, TabPassesOverHiddenColumns) {
    EditBench bench;
    bench.grid.setColWidth(Liste::ColZusatzinfo, 0);
    bench.go(2, Liste::ColBeispielsatz);
    bench.type(u"ab"_s);
    bench.press(Qt::Key_Tab);
    EXPECT_EQ(bench.grid.Col(), Liste::ColQuelle);
}

TEST(OverlayKeys, TabAtTheLastColumnBeepsAndStays) {
    EditBench bench;
    for (const int column : {Liste::ColEingabedatum, Liste::ColAenderungsdatum, Liste::ColScore})
        bench.grid.setColWidth(column, 0);
    bench.go(2, Liste::ColQuelle);
    bench.type(u"ab"_s);
    bench.press(Qt::Key_Tab);
    EXPECT_EQ(bench.beeps(), 1);
    EXPECT_EQ(bench.grid.Col(), Liste::ColQuelle);
    EXPECT_EQ(bench.cell(2, Liste::ColQuelle), u"ab"_s);
    EXPECT_TRUE(bench.grid.hasFocus());
}

TEST(OverlayKeys, UpAndDownGoARowAndTakeTheMarkAlong) {
    EditBench bench;
    bench.go(3, Liste::ColQuelle);
    bench.type(u"a"_s);
    bench.press(Qt::Key_Down);
    EXPECT_EQ(bench.cell(3, Liste::ColQuelle), u"a"_s);
    EXPECT_EQ(bench.grid.Row(), 4);
    EXPECT_EQ(bench.list.MarkierteZeile, 4);
    EXPECT_TRUE(bench.grid.hasFocus());
    bench.type(u"b"_s);
    bench.press(Qt::Key_Up);
    EXPECT_EQ(bench.cell(4, Liste::ColQuelle), u"b"_s);
    EXPECT_EQ(bench.grid.Row(), 3);
    EXPECT_EQ(bench.list.MarkierteZeile, 3);
    EXPECT_EQ(bench.savedRows(), QStringList({u"three"_s, u"four"_s}));
}

TEST(OverlayKeys, DownAtTheLastRowAndUpAtTheFirstStayAndMark) {
    EditBench bench;
    bench.go(5, Liste::ColWortart);
    bench.type(u"a"_s);
    bench.list.ResetMarke();
    bench.grid.setRow(5);
    bench.press(Qt::Key_Down);
    EXPECT_EQ(bench.grid.Row(), 5);
    EXPECT_EQ(bench.list.MarkierteZeile, 5);
    bench.go(1, Liste::ColWortart);
    bench.type(u"a"_s);
    bench.press(Qt::Key_Up);
    EXPECT_EQ(bench.grid.Row(), 1);
    EXPECT_EQ(bench.list.MarkierteZeile, 1);
    EXPECT_EQ(bench.beeps(), 0);
}

TEST(OverlayKeys, LeftRightAndTheRestAreTheFieldsOwn) {
    EditBench bench;
    bench.go(2, Liste::ColQuelle);
    bench.type(u"ac"_s);
    bench.press(Qt::Key_Left);
    bench.type(u"b"_s);
    bench.press(Qt::Key_Home);
    bench.type(u"x"_s);
    EXPECT_EQ(bench.overlayText(), u"xabc"_s);
    EXPECT_EQ(bench.grid.Col(), Liste::ColQuelle);
}

TEST(OverlayKeys, ABoxOffersItsValuesByTheKeyboard) {
    EditBench bench;
    bench.go(2, Liste::ColWortart);
    bench.press(Qt::Key_F2);
    bench.press(Qt::Key_Down, Qt::AltModifier);
    EXPECT_TRUE(bench.wortartBox().view()->isVisible());
    bench.wortartBox().hidePopup();
    bench.wortartBox().setCurrentIndex(bench.wortartBox().findText(u"noun"_s));
    bench.wortartBox().setFocus();
    bench.press(Qt::Key_Return);
    EXPECT_EQ(bench.cell(2, Liste::ColWortart), u"noun"_s);
}

TEST(OverlayKeys, WhatIsTypedIsNotCompletedByTheBox) {
    EditBench bench;
    bench.go(2, Liste::ColWortart);
    bench.type(u"NOU"_s);
    EXPECT_EQ(bench.overlayText(), u"NOU"_s);
    bench.press(Qt::Key_Return);
    EXPECT_EQ(bench.cell(2, Liste::ColWortart), u"NOU"_s);
}

// Length.

TEST(OverlayLength, The51stCharacterBeepsAndIsCut) {
    for (const int column : {Liste::ColWortart, Liste::ColQuelle}) {
        EditBench bench;
        bench.go(2, column);
        bench.type(QString(50, u'a'));
        EXPECT_EQ(bench.beeps(), 0);
        bench.type(u"b"_s);
        EXPECT_EQ(bench.beeps(), 1);
        EXPECT_EQ(bench.overlayText(), QString(50, u'a'));
        bench.press(Qt::Key_Escape);

        bench.paste(QString(51, u'c'));
        EXPECT_EQ(bench.beeps(), 2) << "pasted on the closed cell";
        EXPECT_EQ(bench.overlayText(), QString(50, u'c'));
        bench.paste(u"d"_s);
        EXPECT_EQ(bench.beeps(), 3) << "pasted into the open one";
        EXPECT_EQ(bench.overlayText(), QString(50, u'c'));

        QInputMethodEvent written;
        written.setCommitString(u"é"_s);
        QApplication::sendEvent(QApplication::focusWidget(), &written);
        EXPECT_EQ(bench.beeps(), 4) << "by an input method";
        EXPECT_EQ(bench.overlayText(), QString(50, u'c'));
    }
}

TEST(OverlayLength, PhraseAndNoteKeepTheLongerLimitOfTheirFields) {
    for (const int column : {Liste::ColBeispielsatz, Liste::ColZusatzinfo}) {
        EditBench bench;
        bench.go(2, column);
        bench.paste(QString(200, u'a'));
        EXPECT_EQ(bench.beeps(), 0);
        bench.type(u"b"_s);
        EXPECT_EQ(bench.beeps(), 1);
        EXPECT_EQ(bench.overlayText(), QString(200, u'a'));
        bench.press(Qt::Key_Return);
        EXPECT_EQ(bench.savedRows(), QStringList{u"two"_s});
    }
}

TEST(OverlayLength, LinesThatArePastedBecomeOne) {
    EditBench bench;
    bench.go(2, Liste::ColBeispielsatz);
    bench.paste(u"one\ntwo\n"_s);
    bench.press(Qt::Key_Return);
    EXPECT_EQ(bench.cell(2, Liste::ColBeispielsatz), u"one two"_s);
}

TEST(OverlayLength, LinesThatStoodInTheCellStay) {
    EditBench bench;
    bench.grid.setTextMatrix(2, Liste::ColZusatzinfo, u"one\ntwo"_s);
    bench.click(2, Liste::ColZusatzinfo);
    bench.press(Qt::Key_Return);
    EXPECT_EQ(bench.cell(2, Liste::ColZusatzinfo), u"one\ntwo"_s);
    EXPECT_EQ(bench.list.AnzahlGeaendert, 0);
}
