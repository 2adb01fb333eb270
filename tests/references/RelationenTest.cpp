#include "Relationen.h"

#include "NeueRelation.h"
#include "ReferencesBench.h"

#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace lingomat;

namespace {

struct References : testing::Test {
    explicit References(const QString& language = u"En"_s) : bench(language) {
        a = bench.add(u"Hund"_s, u"dog"_s);
        b = bench.add(u"Katze"_s, u"cat"_s);
        c = bench.add(u"Maus"_s, u"mouse"_s);
    }
    void open(const QString& id) {
        bench.goTo(id);
        form = std::make_unique<Relationen>(bench.context.forms, bench.list);
        ASSERT_TRUE(form->Form_Load());
        form->show();
        form->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(form.get()));
        grid().flush();
    }
    FlexGrid& grid() { return child<FlexGrid>(*form, "MSFlexGrid1"); }
    /// The references on the screen: "type: first, second".
    QStringList rows() {
        QStringList all;
        for (int row = 1; row <= form->AnzahlZeilen; ++row)
            all << grid().TextMatrix(row, 1) + u": "_s + grid().TextMatrix(row, 2) + u", "_s +
                       grid().TextMatrix(row, 3);
        return all;
    }
    void clickRow(int row) {
        grid().flush();
        const QRect cell = grid().visualRect(grid().model()->index(row - 1, 0));
        QTest::mouseClick(grid().viewport(), Qt::LeftButton, {}, cell.center());
    }
    void clickHead(int column) {
        grid().flush();
        QHeaderView& head = *grid().horizontalHeader();
        const int section = column - 1;
        QTest::mouseClick(
            head.viewport(), Qt::LeftButton, {},
            {head.sectionViewportPosition(section) + head.sectionSize(section) / 2, head.height() / 2});
    }
    void click(const char* name) { QTest::mouseClick(&child<QPushButton>(*form, name), Qt::LeftButton); }
    bool isEnabled(const char* name) { return child<QPushButton>(*form, name).isEnabled(); }
    QList<int> markedRows() {
        QList<int> marked;
        const int row = grid().Row();
        const int column = grid().Col();
        for (int i = 0; i < grid().Rows(); ++i) {
            grid().setRow(i);
            grid().setCol(0);
            if (!grid().CellPicture().isNull())
                marked << i;
        }
        grid().setRow(row);
        grid().setCol(column);
        return marked;
    }

    ReferencesBench bench;
    QString a, b, c;
    std::unique_ptr<Relationen> form;
};

struct GermanReferences : References {
    GermanReferences() : References(u"De"_s) {}
};

} // namespace

// Loading.

TEST_F(References, EntryWithoutReferencesShowsAnEmptyGrid) {
    open(a);
    EXPECT_EQ(form->AnzahlZeilen, 0);
    EXPECT_GT(form->MinZeilen, 2);
    EXPECT_EQ(grid().Rows(), form->MinZeilen);
    EXPECT_FALSE(isEnabled("Delete"));
    EXPECT_FALSE(isEnabled("Change"));
    EXPECT_TRUE(isEnabled("Add"));
    EXPECT_EQ(form->MarkierteZeile, -1);
}

TEST_F(References, ShowTheOtherEntryFromEitherSide) {
    bench.addReference(b, a, u"See also"_s);
    open(a);
    EXPECT_EQ(rows(), QStringList{u"See also: Katze, cat"_s});
    EXPECT_EQ(child<QLabel>(*form, "Label2").text(), u"Hund"_s);
    EXPECT_EQ(child<QLabel>(*form, "Label3").text(), u"dog"_s);
    open(b);
    EXPECT_EQ(rows(), QStringList{u"See also: Hund, dog"_s});
}

TEST_F(References, OfDifferentTypesBetweenTheSameTwoAreTwoRows) {
    bench.addReference(a, b, u"See also"_s);
    bench.addReference(b, a, u"Opposite of"_s);
    open(a);
    EXPECT_EQ(rows(), (QStringList{u"Opposite of: Katze, cat"_s, u"See also: Katze, cat"_s}));
}

TEST_F(References, StandInTheOrderOfTheirTypesWhateverTheCase) {
    for (const char16_t* type : {u"zebra", u"Beta", u"alpha"})
        bench.addReference(a, b, QString::fromUtf16(type));
    open(a);
    EXPECT_EQ(rows(), (QStringList{u"alpha: Katze, cat"_s, u"Beta: Katze, cat"_s, u"zebra: Katze, cat"_s}));
}

TEST_F(References, ComposeTheExpressions) {
    const SharedState& state = bench.context.state;
    const QString d = bench.add(u"Kuh"_s, u"cow"_s,
                                {{state.Lang1PrefixField, u"die"_s}, {state.Lang1KommentarField, u"Tier"_s}});
    bench.addReference(a, d, u"See also"_s);
    open(a);
    EXPECT_EQ(rows(), QStringList{u"See also: die Kuh (Tier), cow"_s});
}

TEST_F(References, GrowTheGridWhenTheyAreMany) {
    for (int i = 0; i < 40; ++i)
        bench.addReference(a, i % 2 ? b : c, u"type %1"_s.arg(i, 2, 10, QChar(u'0')));
    open(a);
    EXPECT_EQ(form->AnzahlZeilen, 40);
    EXPECT_EQ(grid().Rows(), 41);
    EXPECT_EQ(rows().first(), u"type 00: Maus, mouse"_s);
    EXPECT_EQ(rows().last(), u"type 39: Katze, cat"_s);
}

TEST_F(References, OfANewRowGetTheMessageAndNoDialog) {
    bench.addNewRow();
    bench.context.prompts.expectCritical(u"This entry has not yet been saved to the database"_s);
    showReferences(bench.context.forms, bench.list, nullptr);
    EXPECT_EQ(bench.grid.Col(), Liste::ColSprache1);
}

TEST_F(References, ToAnEntryThatIsGoneGiveTheMessageAndAreLeftOut) {
    bench.addReference(a, b, u"See also"_s);
    bench.addReference(a, c, u"Opposite of"_s);
    bench.deleteEntry(b);
    bench.context.prompts.expectCritical(u"Es An internal error occured!"_s);
    open(a);
    EXPECT_EQ(rows(), QStringList{u"Opposite of: Maus, mouse"_s});
    EXPECT_EQ(bench.storedReferences().size(), 2) << "the record stays";
}

TEST_F(References, AreShownModallyForTheCurrentRow) {
    bench.addReference(a, b, u"See also"_s);
    bench.goTo(a);
    bench.context.prompts.expectDialog("Relationen", [](QDialog& dialog) {
        EXPECT_EQ(static_cast<Relationen&>(dialog).AnzahlZeilen, 1);
        child<QPushButton>(dialog, "OK").click();
    });
    showReferences(bench.context.forms, bench.list, nullptr);
}

TEST_F(References, ErrorWhileLoadingIsReportedAndNothingIsShown) {
    bench.goTo(a);
    bench.session().RecordsetReferenzen.Close();
    bench.context.prompts.expectErrorContaining(QString());
    showReferences(bench.context.forms, bench.list, nullptr);
}

// Choosing a row.

TEST_F(References, ClickMarksARow) {
    bench.addReference(a, b, u"See also"_s);
    bench.addReference(a, c, u"Opposite of"_s);
    open(a);
    clickRow(2);
    EXPECT_EQ(form->MarkierteZeile, 2);
    EXPECT_EQ(markedRows(), QList<int>{2});
    EXPECT_TRUE(isEnabled("Delete"));
    EXPECT_TRUE(isEnabled("Change"));
    clickRow(1);
    EXPECT_EQ(markedRows(), QList<int>{1});
}

TEST_F(References, OnlyReferenceCanBeChosenByClickAndByKey) {
    bench.addReference(a, b, u"See also"_s);
    open(a);
    clickRow(1);
    EXPECT_EQ(form->MarkierteZeile, 1);
    open(a);
    grid().setFocus();
    QTest::keyClick(&grid(), Qt::Key_Down);
    EXPECT_EQ(form->MarkierteZeile, 1);
}

TEST_F(References, EmptyRowCannotBeChosen) {
    bench.addReference(a, b, u"See also"_s);
    open(a);
    clickRow(1);
    clickRow(3);
    EXPECT_EQ(grid().Row(), 1);
    EXPECT_EQ(form->MarkierteZeile, 1);
    EXPECT_EQ(markedRows(), QList<int>{1});
}

TEST_F(References, NothingCanBeChosenInAnEmptyGrid) {
    open(a);
    clickRow(2);
    EXPECT_EQ(form->MarkierteZeile, -1);
    EXPECT_FALSE(isEnabled("Delete"));
    EXPECT_EQ(markedRows(), QList<int>());
}

// Sorting.

TEST_F(References, ClickOnAHeadSortsByItAndTakesTheMarkAway) {
    bench.addReference(a, c, u"alpha"_s);
    bench.addReference(a, b, u"beta"_s);
    open(a);
    clickRow(1);
    clickHead(Relationen::ColSprache2);
    EXPECT_EQ(rows(), (QStringList{u"beta: Katze, cat"_s, u"alpha: Maus, mouse"_s}));
    EXPECT_EQ(markedRows(), QList<int>());
    EXPECT_FALSE(isEnabled("Delete")) << "it would delete another one than was chosen";
    EXPECT_EQ(grid().TopRow(), 1);
    clickRow(2);
    EXPECT_EQ(form->MarkierteZeile, 2) << "the next choice counts";
}

TEST_F(References, EmptyRowsStayAtTheEndWhateverTheSort) {
    const QString d = bench.add(u"Ente"_s); // nothing in language 2
    bench.addReference(a, d, u"alpha"_s);
    bench.addReference(a, b, u"beta"_s);
    open(a);
    const int total = grid().Rows();
    for (const int column : {Relationen::ColSprache2, Relationen::ColTyp, Relationen::ColSprache1}) {
        clickHead(column);
        EXPECT_EQ(grid().Rows(), total);
        EXPECT_FALSE(grid().TextMatrix(1, Relationen::ColID).isEmpty()) << column;
        EXPECT_FALSE(grid().TextMatrix(2, Relationen::ColID).isEmpty()) << column;
    }
}

// Deleting.

TEST_F(References, DeleteRemovesTheRecordFromEitherSide) {
    bench.addReference(b, a, u"See also"_s);
    bench.addReference(a, c, u"See also"_s);
    open(a);
    clickRow(1);
    ASSERT_EQ(form->cell(Relationen::ColSprache1), u"Katze"_s);
    click("Delete");
    EXPECT_EQ(bench.storedReferences(), QStringList{a + u'>' + c + u" See also"_s});
    EXPECT_EQ(rows(), QStringList{u"See also: Maus, mouse"_s});
    EXPECT_EQ(grid().Rows(), form->MinZeilen);
    EXPECT_EQ(form->MarkierteZeile, 0);
    EXPECT_EQ(markedRows(), QList<int>());
    EXPECT_FALSE(isEnabled("Delete"));
    EXPECT_FALSE(isEnabled("Change"));
}

TEST_F(References, DeletingTheLastLeavesTheGridAtItsFirstHeight) {
    bench.addReference(a, b, u"See also"_s);
    open(a);
    clickRow(1);
    click("Delete");
    EXPECT_EQ(grid().Rows(), form->MinZeilen);
    EXPECT_EQ(form->AnzahlZeilen, 0);
    EXPECT_EQ(bench.storedReferences(), QStringList());
}

TEST_F(References, DeleteTakesNeverMoreThanTheOneThatIsShown) {
    for (const char16_t* type : {u"abc", u"a*", u"A*", u"a?c", u"[abc"})
        bench.addReference(a, b, QString::fromUtf16(type));
    open(a);
    for (int row = 1; row <= form->AnzahlZeilen; ++row) {
        if (grid().TextMatrix(row, 1) == u"a*"_s)
            clickRow(row);
    }
    click("Delete");
    QStringList left = bench.storedReferences();
    left.replaceInStrings(a + u'>' + b + u' ', QString());
    left.sort();
    EXPECT_EQ(left, (QStringList{u"A*"_s, u"[abc"_s, u"a?c"_s, u"abc"_s}));
}

TEST_F(References, DeleteOfOneThatIsGoneSaysSo) {
    bench.addReference(a, b, u"See also"_s);
    open(a);
    clickRow(1);
    bench.session().RecordsetReferenzen.MoveFirst();
    bench.session().RecordsetReferenzen.Delete();
    bench.context.prompts.expectCritical(u"The Reference could not be found!"_s);
    click("Delete");
    EXPECT_EQ(form->AnzahlZeilen, 1);
}

// The dialog on top.

TEST_F(References, AddOpensTheDialogThatCreates) {
    open(a);
    form->StatusAnlegen = false;
    bench.context.prompts.expectDialog("NeueRelation", [this](QDialog& dialog) {
        EXPECT_TRUE(form->StatusAnlegen);
        EXPECT_EQ(child<QPushButton>(dialog, "Command1").text(), u"Create"_s);
        dialog.close();
    });
    click("Add");
}

TEST_F(References, ChangeOpensTheDialogThatChangesTheMarkedOne) {
    bench.addReference(a, b, u"See also"_s);
    open(a);
    clickRow(1);
    bench.context.prompts.expectDialog("NeueRelation", [this](QDialog& dialog) {
        EXPECT_FALSE(form->StatusAnlegen);
        EXPECT_EQ(child<QComboBox>(dialog, "Combo1").currentText(), u"See also"_s);
        dialog.close();
    });
    click("Change");
}

TEST_F(References, NewOneFillsAnEmptyRowAndCanBeChosen) {
    bench.addReference(a, b, u"See also"_s);
    open(a);
    const int total = grid().Rows();
    form->AddOneRow(c, u"Derived from"_s);
    EXPECT_EQ(grid().Rows(), total);
    EXPECT_EQ(rows(), (QStringList{u"See also: Katze, cat"_s, u"Derived from: Maus, mouse"_s}));
    clickRow(2);
    EXPECT_EQ(form->MarkierteZeile, 2);
}

TEST_F(References, FillTheGridToItsLastRowBeforeItGrows) {
    open(a);
    const int total = grid().Rows();
    for (int i = 1; i < total; ++i)
        form->AddOneRow(b, u"type %1"_s.arg(i));
    EXPECT_EQ(grid().Rows(), total);
    form->AddOneRow(c, u"one more"_s);
    EXPECT_EQ(grid().Rows(), total + 1);
    EXPECT_EQ(rows().last(), u"one more: Maus, mouse"_s);
}

// Looks and texts.

TEST_F(References, ColumnsShareTheWidth) {
    open(a);
    EXPECT_EQ(grid().ColWidth(Relationen::ColID), 0);
    EXPECT_EQ(grid().ColWidth(Relationen::ColSpare), 0);
    EXPECT_EQ(grid().ColWidth(2), grid().ColWidth(3));
    EXPECT_NEAR(grid().ColWidth(1), grid().width() / 3.0, 20);
    EXPECT_EQ(grid().horizontalScrollBar()->maximum(), 0);
}

TEST_F(References, HeadsAndTexts) {
    open(a);
    EXPECT_EQ(form->objectName(), u"Relationen"_s);
    EXPECT_EQ(form->windowTitle(), u"References"_s);
    EXPECT_EQ(grid().TextMatrix(0, 1), u"Reference type"_s);
    EXPECT_EQ(grid().TextMatrix(0, 2), u"German"_s);
    EXPECT_EQ(grid().TextMatrix(0, 3), u"English"_s);
    EXPECT_EQ(child<QPushButton>(*form, "OK").text(), u"OK"_s);
}

TEST_F(GermanReferences, HeadsAndTexts) {
    open(a);
    EXPECT_EQ(form->windowTitle(), u"Referenzen"_s);
    EXPECT_EQ(grid().TextMatrix(0, 1), u"Referenzart"_s);
}

TEST_F(GermanReferences, Messages) {
    bench.addNewRow();
    bench.context.prompts.expectCritical(
        u"Dieser Eintrag ist noch nicht in die Datenbank zurückgeschrieben"_s);
    showReferences(bench.context.forms, bench.list, nullptr);

    bench.addReference(a, b, u"Siehe auch"_s);
    bench.deleteEntry(b);
    bench.context.prompts.expectCritical(u"Es ist ein interner Fehler aufgetreten!"_s);
    open(a);
}

TEST_F(References, TipOnTheHeadsOnly) {
    open(a);
    QHeaderView& head = *grid().horizontalHeader();
    QTest::mouseMove(head.viewport(), {head.sectionViewportPosition(1) + 5, head.height() / 2});
    QTest::qWait(0);
    EXPECT_EQ(grid().toolTip(), u"Click to sort by this column"_s);
    QTest::mouseMove(grid().viewport(), grid().viewport()->rect().center());
    QTest::qWait(0);
    EXPECT_EQ(grid().toolTip(), QString());
}

TEST_F(References, ShowAnExpressionAsItIs) {
    const QString odd = bench.add(u"<b>fett</b>"_s, u"&amp;"_s);
    open(odd);
    EXPECT_EQ(child<QLabel>(*form, "Label2").textFormat(), Qt::PlainText);
    EXPECT_EQ(child<QLabel>(*form, "Label3").text(), u"&amp;"_s);
    EXPECT_EQ(child<QLabel>(*form, "Label3").buddy(), nullptr);
}

TEST_F(References, EachCommandHasALetterOfItsOwn) {
    open(a);
    QStringList letters;
    for (const char* button : {"Add", "Change", "Delete"})
        letters.append(QKeySequence::mnemonic(child<QPushButton>(*form, button).text()).toString());
    EXPECT_FALSE(letters.contains(QString()));
    EXPECT_EQ(letters.removeDuplicates(), 0);
}

TEST_F(References, OkCloses) {
    open(a);
    click("OK");
    EXPECT_FALSE(form->isVisible());
}
