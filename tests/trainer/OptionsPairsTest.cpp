// The pairs of equal characters in the options dialog.

#include "OptionsBench.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QFile>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace lingomat;

namespace {

struct PairsBench : OptionsBench {
    explicit PairsBench(const QStringList& stored = {}, const QString& language = u"En"_s)
        : OptionsBench(3, language) {
        storePairs(stored);
        open();
        form.setTab(3);
        QApplication::processEvents();
    }

    /// A click on a cell of the grid.
    void clickRow(int row, int column = 1) {
        pairGrid.flush();
        const QModelIndex cell = pairGrid.model()->index(row, column);
        QTest::mouseClick(pairGrid.viewport(), Qt::LeftButton, {}, pairGrid.visualRect(cell).center());
    }
    [[nodiscard]] QString buttons() {
        return (box("Add").isEnabled() ? u"Add"_s : QString()) +
               (box("Remove").isEnabled() ? u"Remove"_s : QString());
    }
    [[nodiscard]] QString boxes() { return text("Text1").text() + text("Text2").text(); }
    /// Rows that carry the mark: "0 2".
    [[nodiscard]] QString marks() {
        QStringList rows;
        const int current = pairGrid.Row();
        for (int row = 0; row < pairGrid.Rows(); ++row) {
            pairGrid.setRow(row);
            pairGrid.setCol(0);
            if (!pairGrid.CellPicture().isNull())
                rows += QString::number(row);
        }
        pairGrid.setRow(current);
        return rows.join(u' ');
    }
};

} // namespace

TEST(OptionsPairs, TheStoredOnesAreShownTheLastBeingSelected) {
    for (const auto& [language, word] : {std::pair{u"En"_s, u"AND"_s}, std::pair{u"De"_s, u"UND"_s}}) {
        PairsBench bench({u"!¡"_s, u"?¿"_s}, language);
        EXPECT_EQ(bench.shownPairs(), u"!¡ ?¿");
        EXPECT_EQ(bench.pairGrid.TextMatrix(0, 2), word);
        EXPECT_EQ(bench.boxes(), u"?¿");
        EXPECT_EQ(bench.buttons(), u"Remove");
        EXPECT_EQ(bench.marks(), u"1");
        EXPECT_TRUE(bench.pairGrid.CellFont().bold());
    }
}

TEST(OptionsPairs, AnEmptyListIsOneHiddenRow) {
    PairsBench bench;
    EXPECT_EQ(bench.pairGrid.Rows(), 1);
    EXPECT_EQ(bench.pairGrid.RowHeight(0), 0);
    EXPECT_EQ(bench.buttons(), QString());
    EXPECT_EQ(bench.marks(), QString());
}

TEST(OptionsPairs, ButtonsFollowTheBoxes) {
    PairsBench bench({u"!¡"_s, u"?¿"_s});
    struct Row {
        QString left, right, buttons;
    };
    for (const Row& row :
         {Row{u"a"_s, u"b"_s, u"Add"_s}, Row{u"a"_s, {}, {}}, Row{{}, u"b"_s, {}}, Row{{}, {}, {}},
          Row{u"?"_s, u"¿"_s, u"Remove"_s}, Row{u"!"_s, u"¡"_s, u"Add"_s} /* stands in another row */}) {
        bench.enterPair(row.left, row.right);
        EXPECT_EQ(bench.buttons(), row.buttons) << row.left.toStdString() << row.right.toStdString();
    }
}

TEST(OptionsPairs, AddAppendsAndSelects) {
    PairsBench bench;
    bench.addPair(u"a"_s, u"ä"_s);
    EXPECT_EQ(bench.shownPairs(), u"aä");
    EXPECT_EQ(bench.pairGrid.Rows(), 1) << "the hidden row came back";
    EXPECT_EQ(bench.pairGrid.RowHeight(0), bench.pairGrid.DefaultRowHeight());
    bench.addPair(u"o"_s, u"ö"_s);
    EXPECT_EQ(bench.shownPairs(), u"aä oö");
    EXPECT_EQ(bench.marks(), u"1");
    EXPECT_EQ(bench.buttons(), u"Remove");
}

TEST(OptionsPairs, APairThatStandsAlreadyIsNotAddedAgain) {
    PairsBench bench({u"!¡"_s, u"?¿"_s});
    bench.addPair(u"!"_s, u"¡"_s);
    EXPECT_EQ(bench.shownPairs(), u"!¡ ?¿");
    bench.addPair(u"¡"_s, u"!"_s);
    EXPECT_EQ(bench.shownPairs(), u"!¡ ?¿ ¡!") << "the other way round is another pair";
}

TEST(OptionsPairs, AClickSelectsAndFillsTheBoxes) {
    PairsBench bench({u"!¡"_s, u"?¿"_s, u"ab"_s});
    bench.clickRow(1, 3);
    EXPECT_EQ(bench.boxes(), u"?¿");
    EXPECT_EQ(bench.marks(), u"1");
    EXPECT_EQ(bench.buttons(), u"Remove");
    bench.enterPair(u"x"_s, u"y"_s);
    EXPECT_EQ(bench.buttons(), u"Add");
    bench.clickRow(1);
    EXPECT_EQ(bench.boxes(), u"?¿") << "also on the row that is selected already";
    QTest::keyClick(&bench.pairGrid, Qt::Key_Up);
    EXPECT_EQ(bench.boxes(), u"!¡");
    EXPECT_EQ(bench.marks(), u"0");
}

TEST(OptionsPairs, RemoveTakesTheSelectedOne) {
    PairsBench bench({u"!¡"_s, u"?¿"_s, u"ab"_s});
    bench.clickRow(1);
    bench.press("Remove");
    EXPECT_EQ(bench.shownPairs(), u"!¡ ab");
    EXPECT_EQ(bench.boxes(), QString());
    EXPECT_EQ(bench.buttons(), QString());
    bench.clickRow(1);
    bench.press("Remove");
    EXPECT_EQ(bench.shownPairs(), u"!¡");
    bench.clickRow(0);
    bench.press("Remove");
    EXPECT_EQ(bench.shownPairs(), QString());
    EXPECT_EQ(bench.pairGrid.RowHeight(0), 0);
    EXPECT_EQ(bench.buttons(), QString());
    EXPECT_EQ(bench.marks(), QString());
    bench.addPair(u"x"_s, u"y"_s);
    EXPECT_EQ(bench.shownPairs(), u"xy");
}

TEST(OptionsPairs, ABoxTakesOneCharacter) {
    PairsBench bench;
    QTest::keyClicks(&bench.text("Text1"), u"ab"_s);
    EXPECT_EQ(bench.text("Text1").text(), u"a");
    EXPECT_EQ(bench.context.prompts.beeps(), 1);
    bench.text("Text2").setText(u"\U0001F600x"_s);
    EXPECT_EQ(bench.text("Text2").text(), u"\U0001F600");
    bench.text("Text2").setText(u"e\u0301"_s);
    EXPECT_EQ(bench.text("Text2").text(), u"\u00e9") << "a letter and its accent are one character";
}

TEST(OptionsPairs, ReturnInABoxAddsThePairAndOtherwiseClosesTheDialog) {
    PairsBench bench;
    ASSERT_TRUE(QTest::qWaitForWindowActive(&bench.form));
    bench.enterPair(u"a"_s, u"b"_s);
    bench.text("Text2").setFocus();
    QTest::keyClick(&bench.text("Text2"), Qt::Key_Return);
    EXPECT_TRUE(bench.form.isVisible());
    EXPECT_EQ(bench.shownPairs(), u"ab");
    QTest::keyClick(&bench.text("Text1"), Qt::Key_Return);
    EXPECT_FALSE(bench.form.isVisible());
    EXPECT_EQ(bench.section("Exceptions"), u"Exc_1=ab");
}

TEST(OptionsPairs, ApplyStoresThemAndPutsThemInForceAtOnce) {
    PairsBench bench({u"!¡"_s, u"?¿"_s});
    EXPECT_EQ(bench.mapped(u"!?a"_s), u"¡¿a");
    bench.clickRow(0);
    bench.press("Remove");
    bench.addPair(u"a"_s, u"b"_s);
    EXPECT_EQ(bench.mapped(u"!?a"_s), u"¡¿a") << "not before it is applied";
    bench.press("cmdApply");
    EXPECT_EQ(bench.mapped(u"!?a"_s), u"!¿b");
    EXPECT_EQ(bench.section("Exceptions"), u"Exc_1=?¿ Exc_2=ab") << "numbered anew, without a gap";
    EXPECT_EQ(bench.shownPairs(), u"?¿ ab");
}

TEST(OptionsPairs, RemovingTheLastOneLeavesAnEmptyList) {
    PairsBench bench({u"!¡"_s});
    bench.press("Remove");
    bench.press("cmdOK");
    EXPECT_EQ(bench.mapped(u"!"_s), u"!");
    EXPECT_EQ(bench.section("Exceptions"), u"Exc_1=") << "which ends the list";
    bench.open();
    EXPECT_EQ(bench.shownPairs(), QString());
    EXPECT_EQ(bench.pairGrid.RowHeight(0), 0);
}

TEST(OptionsPairs, CancelLeavesTheStoredOnesAndTheNextOpeningShowsThem) {
    PairsBench bench({u"!¡"_s});
    bench.addPair(u"a"_s, u"b"_s);
    bench.press("cmdCancel");
    EXPECT_EQ(bench.section("Exceptions"), u"Exc_1=!¡");
    EXPECT_EQ(bench.mapped(u"a!"_s), u"a¡");
    bench.open();
    EXPECT_EQ(bench.shownPairs(), u"!¡");
}

TEST(OptionsPairs, NineAreUsedAndTenAreNot) {
    QStringList nine;
    for (int number = 0; number < 9; ++number)
        nine += QString(QChar(u'a' + number)) + QChar(u'A' + number);
    PairsBench bench(nine);
    EXPECT_EQ(bench.shownPairs(), nine.join(u' '));
    bench.addPair(u"z"_s, u"Z"_s);
    bench.press("cmdOK");
    EXPECT_EQ(bench.mapped(u"az"_s), u"az");
    EXPECT_TRUE(bench.section("Exceptions").endsWith(u"Exc_9=iI Exc_10=zZ"_s)) << "in the order of numbers";
    EXPECT_EQ(bench.context.state.Exceptions.ExceptionCount(), 0);
    bench.open();
    EXPECT_EQ(bench.shownPairs(), nine.join(u' ') + u" zZ"_s) << "the next OK must not lose them";
    bench.press("cmdOK");
    EXPECT_TRUE(bench.section("Exceptions").endsWith(u"Exc_9=iI Exc_10=zZ"_s));
}

TEST(OptionsPairs, AStoreEditedByHandIsReadAsFarAsItGoes) {
    PairsBench bench({u"x"_s, u"long text"_s, u"\U0001F600b"_s, u"ab"_s, u"ab"_s, QString(), u"cd"_s});
    EXPECT_EQ(bench.shownPairs(), u"xx lt \U0001F600b ab") << "a pair that stands twice is shown once";
    bench.press("cmdApply");
    EXPECT_EQ(bench.section("Exceptions"), u"Exc_1=xx Exc_2=lt Exc_3=\U0001F600b Exc_4=ab");
}

TEST(OptionsPairs, AStoreThatCannotBeWrittenIsToldOnceAndKeepsWhatWasInForce) {
    PairsBench bench({u"!¡"_s});
    const QString folder = bench.context.path(u"settings"_s);
    ASSERT_TRUE(QFile::rename(folder, folder + u".away"_s));
    QFile inItsPlace(folder);
    ASSERT_TRUE(inItsPlace.open(QIODevice::WriteOnly));
    bench.addPair(u"a"_s, u"b"_s);
    bench.press("Reihenfolge_shuffle");
    bench.context.prompts.expectErrorContaining(u"The settings could not be saved"_s);
    bench.press("cmdApply");
    EXPECT_TRUE(bench.trainer.Reihenfolge_shuffle) << "the rest is applied";
    EXPECT_EQ(bench.mapped(u"a"_s), u"a");

    inItsPlace.remove();
    ASSERT_TRUE(QFile::rename(folder + u".away"_s, folder));
    EXPECT_EQ(bench.section("Exceptions"), u"Exc_1=!¡");
}
