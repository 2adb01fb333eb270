#include "frmSuchen.h"

#include "FlexGrid.h"
#include "TestContext.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <QVBoxLayout>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace lingomat;

namespace {

constexpr int Language1 = 2;
constexpr int Language2 = 3;

/// A window with a grid of expressions, and what a search is told about it.
struct Search : testing::Test {
    Search() {
        grid.setCols(5);
        grid.setRows(1);
        grid.setFixedRows(1);
        grid.setFixedCols(1);
        auto* column = new QVBoxLayout(&window);
        column->addWidget(&grid);
        window.resize(500, 300);
        window.show();
    }
    void add(const QString& language1, const QString& language2 = {}) {
        grid.AddItem(u"\t\t"_s + language1 + u'\t' + language2);
    }
    SearchTarget target() {
        return {.grid = grid,
                .columns = {Language1, Language2},
                .languages = {u"German"_s, u"English"_s},
                .sortByCol =
                    [this] {
                        sortedBy << grid.Col();
                        grid.Sort();
                        grid.setRow(grid.Rows() > 1 ? 1 : 0);
                    },
                .markRow = [this] { marked << grid.TextMatrix(grid.Row(), grid.Col()); }};
    }
    frmSuchen& open() {
        form = std::make_unique<frmSuchen>(context.prompts, target(), &window);
        form->show();
        form->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(form.get()));
        return *form;
    }
    /// Puts the text in place of what the field holds, key by key.
    void type(const QString& text) {
        auto& field = child<QLineEdit>(*form, "txtAusdruck");
        field.selectAll();
        QTest::keyClick(&field, Qt::Key_Delete);
        for (const QChar character : text)
            QTest::sendKeyEvent(QTest::Click, &field, Qt::Key_unknown, QString(character), Qt::NoModifier);
    }
    bool notFound() { return child<QLabel>(*form, "lblNicht").isVisible(); }
    QString current() { return grid.TextMatrix(grid.Row(), grid.Col()); }

    TestContext context;
    QWidget window;
    FlexGrid grid;
    QList<int> sortedBy;
    QStringList marked;
    std::unique_ptr<frmSuchen> form;
};

} // namespace

TEST_F(Search, SortsByTheFirstLanguageWhenItOpens) {
    add(u"b"_s, u"x"_s);
    add(u"a"_s, u"y"_s);
    open();
    EXPECT_EQ(sortedBy, QList<int>{Language1});
    EXPECT_EQ(grid.TextMatrix(1, Language1), u"a"_s);
    EXPECT_TRUE(child<QRadioButton>(*form, "Option1").isChecked());
    EXPECT_TRUE(child<QLineEdit>(*form, "txtAusdruck").hasFocus());
    EXPECT_EQ(marked, QStringList());
}

TEST_F(Search, NamesTheLanguages) {
    open();
    EXPECT_EQ(child<QRadioButton>(*form, "Option1").text(), u"German"_s);
    EXPECT_EQ(child<QRadioButton>(*form, "Option2").text(), u"English"_s);
}

TEST_F(Search, ShowsAnAmpersandInTheNameOfALanguage) {
    SearchTarget odd = target();
    odd.languages = {u"A & B"_s, u"C"_s};
    frmSuchen search(context.prompts, odd);
    search.show();
    EXPECT_EQ(child<QRadioButton>(search, "Option1").text(), u"A && B"_s);
}

TEST_F(Search, FindsTheFirstInSortOrderWhateverTheCase) {
    for (const char16_t* text : {u"zzz", u"abd", u"ABC", u"abc", u"aa"})
        add(QString::fromUtf16(text));
    open();
    type(u"ab"_s);
    EXPECT_EQ(current(), u"ABC"_s) << "equal in sort order to the other one, which stood behind it";
    type(u"ABD"_s);
    EXPECT_EQ(current(), u"abd"_s);
    type(u"äb"_s);
    EXPECT_TRUE(notFound()) << "an accent counts";
}

TEST_F(Search, FoldsCaseBeyondAscii) {
    add(u"Élan"_s);
    add(u"ÖL"_s);
    add(u"Straße"_s);
    open();
    type(u"él"_s);
    EXPECT_EQ(current(), u"Élan"_s);
    type(u"öl"_s);
    EXPECT_EQ(current(), u"ÖL"_s);
    type(u"STRAß"_s);
    EXPECT_EQ(current(), u"Straße"_s);
}

TEST_F(Search, MarksEachRowItFinds) {
    add(u"apple"_s);
    add(u"apricot"_s);
    add(u"banana"_s);
    open();
    type(u"apr"_s);
    EXPECT_EQ(marked, (QStringList{u"apple"_s, u"apple"_s, u"apricot"_s}));
}

TEST_F(Search, FindsNothingInTheMiddle) {
    add(u"der Hund"_s);
    add(u"die Katze"_s);
    open();
    grid.setRow(2);
    type(u"H"_s);
    EXPECT_TRUE(notFound());
    EXPECT_EQ(grid.Row(), 2);
    EXPECT_EQ(marked, QStringList());
}

TEST_F(Search, LeavesRowAndMarkWhereItFindsNothing) {
    add(u"anna"_s);
    add(u"berta"_s);
    open();
    type(u"b"_s);
    ASSERT_EQ(current(), u"berta"_s);
    marked.clear();
    QTest::keyClicks(&child<QLineEdit>(*form, "txtAusdruck"), u"x"_s);
    EXPECT_TRUE(notFound());
    EXPECT_EQ(current(), u"berta"_s);
    EXPECT_EQ(marked, QStringList());
}

TEST_F(Search, FindsAgainAfterDeletingBackToTheLastGoodBeginning) {
    add(u"anna"_s);
    add(u"berta"_s);
    open();
    type(u"bex"_s);
    ASSERT_TRUE(notFound());
    QTest::keyClick(&child<QLineEdit>(*form, "txtAusdruck"), Qt::Key_Backspace);
    EXPECT_FALSE(notFound());
    EXPECT_EQ(current(), u"berta"_s);
}

TEST_F(Search, EmptyTextGoesToTheFirstRow) {
    add(u"anna"_s);
    add(u"berta"_s);
    open();
    type(u"bx"_s);
    ASSERT_TRUE(notFound());
    marked.clear();
    child<QLineEdit>(*form, "txtAusdruck").clear();
    EXPECT_FALSE(notFound());
    EXPECT_EQ(current(), u"anna"_s);
    EXPECT_EQ(marked, QStringList{u"anna"_s});
    EXPECT_EQ(grid.TopRow(), 1);
}

TEST_F(Search, PutsTheRowOnTop) {
    for (int i = 0; i < 500; ++i)
        add(u"w%1"_s.arg(i, 3, 10, QChar(u'0')));
    open();
    type(u"w25"_s);
    EXPECT_EQ(grid.Row(), 251);
    EXPECT_EQ(grid.TopRow(), 251);
}

TEST_F(Search, OtherLanguageSortsAnewAndKeepsTheText) {
    add(u"Apfel"_s, u"zebra"_s);
    add(u"Zebra"_s, u"apple"_s);
    open();
    type(u"ap"_s);
    sortedBy.clear();
    child<QRadioButton>(*form, "Option2").click();
    EXPECT_EQ(sortedBy, QList<int>{Language2});
    EXPECT_EQ(grid.TextMatrix(1, Language2), u"apple"_s);
    EXPECT_EQ(child<QLineEdit>(*form, "txtAusdruck").text(), u"ap"_s);
    EXPECT_TRUE(child<QLineEdit>(*form, "txtAusdruck").hasFocus());

    QTest::keyClicks(&child<QLineEdit>(*form, "txtAusdruck"), u"p"_s);
    EXPECT_EQ(current(), u"apple"_s);
    child<QRadioButton>(*form, "Option1").click();
    EXPECT_EQ(sortedBy, (QList<int>{Language2, Language1}));
}

TEST_F(Search, PassesOverRowsThatAreNotShown) {
    add(QString());
    grid.setRowHeight(1, 0);
    open();
    type(u"x"_s);
    child<QLineEdit>(*form, "txtAusdruck").clear();
    EXPECT_EQ(marked, QStringList());
}

TEST_F(Search, ReportsAFailureOfTheSort) {
    SearchTarget failing = target();
    failing.sortByCol = [this] { (void)grid.TextMatrix(99, 0); };
    context.prompts.expectErrorContaining(QString());
    const frmSuchen search(context.prompts, failing);
}

TEST_F(Search, ClosesByButtonReturnAndEscape) {
    open();
    QTest::mouseClick(&child<QPushButton>(*form, "Command1"), Qt::LeftButton);
    EXPECT_FALSE(form->isVisible());
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape}) {
        open();
        QTest::keyClick(&child<QLineEdit>(*form, "txtAusdruck"), key);
        EXPECT_FALSE(form->isVisible()) << key;
    }
}

TEST_F(Search, StandsOnTheScreen) {
    open();
    EXPECT_TRUE(form->screen()->availableGeometry().contains(form->frameGeometry()));
}

TEST_F(Search, SaysWhoCalled) {
    open();
    EXPECT_EQ(form->Aufrufer, u"Liste"_s);
    EXPECT_EQ(form->objectName(), u"frmSuchen"_s);
}

TEST_F(Search, TextsInEnglish) {
    open();
    EXPECT_EQ(form->windowTitle(), u"Search Expression"_s);
    EXPECT_EQ(child<QLabel>(*form, "lblNicht").text(), u"Not found"_s);
    EXPECT_EQ(child<QPushButton>(*form, "Command1").text(), u"Close"_s);
}

TEST_F(Search, TextsInGerman) {
    const InterfaceLanguage german(u"De"_s);
    open();
    EXPECT_EQ(child<QLabel>(*form, "lblNicht").text(), u"Nicht gefunden"_s);
    EXPECT_EQ(child<QPushButton>(*form, "Command1").text(), u"Schließen"_s);
}
