#include "AddListBox.h"

#include "FlexGrid.h"
#include "FontHelp.h"
#include "LstFkt.h"
#include "TestContext.h"

#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace lingomat;

namespace {

constexpr int Column = 2;
const QString reservedText =
    u"Die Zeichen '@' und ';' werden intern verwendet und dürfen nicht eingegeben werden!"_s;
const QString severalRowsText = u"Process changes for all selected cells?"_s;

/// A grid of five rows, the dialog on the cell of the third one.
struct Attributes : testing::Test {
    explicit Attributes(const QString& language = u"En"_s) : context(language) {
        grid.setCols(4);
        grid.setRows(6);
        grid.setFixedRows(1);
        grid.setFixedCols(1);
        grid.setRow(3);
        grid.setCol(Column);
        for (const char16_t* value : {u"house", u"garden", u"work"})
            context.values.AddToComboBoxes(QString::fromUtf16(value), u"Bereich"_s);
    }
    AddListBox& open(const QString& cell = {}, const QString& mode = u"Bereich"_s) {
        if (!cell.isNull())
            grid.setText(cell);
        form = std::make_unique<AddListBox>(context.prompts, context.values,
                                            AttributeCells{grid,
                                                           [this] {
                                                               changed << grid.Row();
                                                               before << grid.Text();
                                                           },
                                                           start, end});
        QObject::connect(form.get(), &AddListBox::specialCharactersRequested, &pad, &FontHelp::showFor);
        form->Modus = mode;
        form->show();
        form->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(form.get()));
        return *form;
    }
    QListWidget& list(const char* name) { return child<QListWidget>(*form, name); }
    QStringList available() { return listItems(list("LbAvailable")); }
    QStringList assigned() { return listItems(list("LbSelected")); }
    QLineEdit& field() { return child<QLineEdit>(*form, "txtSelected"); }
    QPushButton& button(const char* name) { return child<QPushButton>(*form, name); }
    void click(const char* name) { QTest::mouseClick(&button(name), Qt::LeftButton); }
    void choose(const char* name, const QString& value) {
        QListWidget& box = list(name);
        const auto items = box.findItems(value, Qt::MatchExactly | Qt::MatchCaseSensitive);
        ASSERT_EQ(items.size(), 1) << value.toStdString();
        QTest::mouseClick(box.viewport(), Qt::LeftButton, {}, box.visualItemRect(items.first()).center());
    }
    void type(const QString& text) { QTest::keyClicks(&field(), text); }
    void paste(const QString& text) {
        QApplication::clipboard()->setText(text);
        QTest::keyClick(&field(), Qt::Key_V, Qt::ControlModifier);
    }
    QString cell(int row) { return grid.TextMatrix(row, Column); }
    QStringList cells() {
        QStringList texts;
        for (int row = 1; row < grid.Rows(); ++row)
            texts << cell(row);
        return texts;
    }
    void expectReservedMessage() {
        context.prompts.expect({.icon = QMessageBox::NoIcon, .text = reservedText});
    }

    TestContext context;
    FontHelp pad;
    FlexGrid grid;
    int start = 3;
    int end = 3;
    QList<int> changed;
    QStringList before; ///< the cells when they were recorded as changed
    std::unique_ptr<AddListBox> form;
};

struct GermanAttributes : Attributes {
    GermanAttributes() : Attributes(u"De"_s) {}
};

} // namespace

// Loading.

TEST_F(Attributes, OffersTheValueListLessWhatTheCellHas) {
    open(u"garden;"_s);
    EXPECT_EQ(available(), (QStringList{u"house"_s, u"work"_s}));
    EXPECT_EQ(assigned(), QStringList{u"garden"_s});
    EXPECT_EQ(field().text(), QString());
    EXPECT_FALSE(button("Add").isEnabled());
    EXPECT_FALSE(button("Remove").isEnabled());
}

TEST_F(Attributes, ListThatEndsWithASemicolonHasNoEmptyLastItem) {
    open(u"a;b;"_s);
    EXPECT_EQ(assigned(), (QStringList{u"a"_s, u"b"_s}));
}

TEST_F(Attributes, ShowsAValueThatStandsInNoList) {
    open(u"unheard of;"_s);
    EXPECT_EQ(assigned(), QStringList{u"unheard of"_s});
    EXPECT_EQ(available().size(), 3);
}

TEST_F(Attributes, KeepsTheListsFormBesideThatOfTheCell) {
    open(u"GARDEN;"_s);
    EXPECT_EQ(assigned(), QStringList{u"GARDEN"_s});
    EXPECT_TRUE(available().contains(u"garden"_s));
}

TEST_F(Attributes, ShowsTheSameValueInTwoFormsOnce) {
    open(u"garden;GARDEN;work;"_s);
    EXPECT_EQ(assigned(), (QStringList{u"garden"_s, u"work"_s}));
}

TEST_F(Attributes, StopsAtTheFirstEmptyItem) {
    open(u"garden;;work;"_s);
    EXPECT_EQ(assigned(), QStringList{u"garden"_s});
}

TEST_F(Attributes, EachModeHasItsTitleAndItsValueList) {
    struct Expected {
        QString mode, kind, english, german;
    };
    const Expected modes[] = {
        {u"Bereich"_s, u"Bereich"_s, u"Edit section"_s, u"Bereiche verwalten"_s},
        {u"GrammatikalischeAttribute"_s, u"Grammatikalisch"_s, u"Edit grammar attributes"_s,
         u"Grammatikalische Attribute verwalten"_s},
        {u"FunktionaleAttribute"_s, u"Funktionales"_s, u"Edit functional attributes"_s,
         u"Funktionale Attribute verwalten"_s},
    };
    for (const Expected& expected : modes) {
        const QString known = u"known as "_s + expected.kind;
        context.values.AddToComboBoxes(known, expected.kind);
        open(u""_s, expected.mode);
        EXPECT_EQ(form->windowTitle(), expected.english);
        EXPECT_TRUE(available().contains(known));
        type(u"new "_s + expected.kind);
        click("Add");
        EXPECT_TRUE(context.values.values(expected.kind).contains(u"new "_s + expected.kind));
        click("cmClose");

        const InterfaceLanguage german(u"De"_s);
        open(u""_s, expected.mode);
        EXPECT_EQ(form->windowTitle(), expected.german);
    }
}

// Choosing.

TEST_F(Attributes, ClickOnAnAvailableValueShowsItAndAllowsAdding) {
    open(u""_s);
    choose("LbAvailable", u"work"_s);
    EXPECT_EQ(field().text(), u"work"_s);
    EXPECT_TRUE(button("Add").isEnabled());
    EXPECT_FALSE(button("Remove").isEnabled());
}

TEST_F(Attributes, ValueThatIsAssignedInAnotherFormCannotBeAddedByAClick) {
    open(u"GARDEN;"_s);
    choose("LbAvailable", u"garden"_s);
    EXPECT_EQ(field().text(), u"garden"_s);
    EXPECT_FALSE(button("Add").isEnabled());
}

TEST_F(Attributes, SecondClickOnTheSameValueShowsItAgain) {
    open(u""_s);
    choose("LbAvailable", u"work"_s);
    field().setText(u"something else"_s);
    choose("LbAvailable", u"work"_s);
    EXPECT_EQ(field().text(), u"work"_s);
}

TEST_F(Attributes, KeysChooseAsWell) {
    open(u""_s);
    list("LbAvailable").setFocus();
    QTest::keyClick(&list("LbAvailable"), Qt::Key_Down);
    EXPECT_FALSE(field().text().isEmpty());
    EXPECT_TRUE(button("Add").isEnabled());
}

TEST_F(Attributes, ClickOnAnAssignedValueAllowsRemoving) {
    open(u"garden;"_s);
    choose("LbSelected", u"garden"_s);
    EXPECT_TRUE(button("Remove").isEnabled());
    EXPECT_EQ(field().text(), QString());
}

// Adding and removing.

TEST_F(Attributes, AddMovesAValue) {
    open(u"garden;"_s);
    choose("LbAvailable", u"work"_s);
    click("Add");
    EXPECT_EQ(assigned(), (QStringList{u"garden"_s, u"work"_s}));
    EXPECT_EQ(available(), QStringList{u"house"_s});
    EXPECT_EQ(field().text(), QString());
    EXPECT_FALSE(button("Add").isEnabled());
}

TEST_F(Attributes, TypedValueIsAddedWithoutBlanksAndKnownAtOnce) {
    open(u""_s);
    type(u"  brand new  "_s);
    EXPECT_TRUE(button("Add").isEnabled());
    click("Add");
    EXPECT_EQ(assigned(), QStringList{u"brand new"_s});
    EXPECT_TRUE(context.values.values(u"Bereich"_s).contains(u"brand new"_s));
}

TEST_F(Attributes, AddedValueStaysKnownAfterCancel) {
    open(u"garden;"_s);
    type(u"brand new"_s);
    click("Add");
    click("cmClose");
    EXPECT_FALSE(form->isVisible());
    EXPECT_EQ(cell(3), u"garden;"_s);
    EXPECT_EQ(changed, QList<int>());
    EXPECT_TRUE(context.values.values(u"Bereich"_s).contains(u"brand new"_s));
}

TEST_F(Attributes, TypedValueThatIsAssignedAlreadyIsNotAddedTwice) {
    open(u"garden;"_s);
    type(u"GARDEN"_s);
    click("Add");
    EXPECT_EQ(assigned(), QStringList{u"garden"_s});
    EXPECT_EQ(field().text(), u"GARDEN"_s);
    EXPECT_FALSE(context.values.values(u"Bereich"_s).contains(u"GARDEN"_s));
}

TEST_F(Attributes, BlanksAreNoValue) {
    open(u""_s);
    type(u"   "_s);
    click("Add");
    EXPECT_EQ(assigned(), QStringList());
}

TEST_F(Attributes, RemoveGivesTheValueBackAndLeavesTheField) {
    open(u"garden;work;"_s);
    type(u"typed"_s);
    choose("LbSelected", u"garden"_s);
    click("Remove");
    EXPECT_EQ(assigned(), QStringList{u"work"_s});
    EXPECT_EQ(available(), (QStringList{u"garden"_s, u"house"_s}));
    EXPECT_EQ(field().text(), u"typed"_s);
    EXPECT_TRUE(button("Remove").isEnabled()) << "there is something left";
}

TEST_F(Attributes, RemoveTakesOneValueAtATime) {
    open(u"garden;work;"_s);
    choose("LbSelected", u"garden"_s);
    click("Remove");
    click("Remove");
    EXPECT_EQ(assigned(), QStringList{u"work"_s}) << "nothing is chosen any more";
    choose("LbSelected", u"work"_s);
    click("Remove");
    EXPECT_EQ(assigned(), QStringList());
    EXPECT_FALSE(button("Remove").isEnabled());
}

// Reserved characters and long values.

TEST_F(Attributes, ReservedCharacterDisappearsAsItIsTyped) {
    for (const QString& character : {u";"_s, u"@"_s}) {
        open(u""_s);
        type(u"ab"_s);
        expectReservedMessage();
        type(character);
        EXPECT_EQ(field().text(), u"ab"_s);
        EXPECT_FALSE(button("Add").isEnabled());
        type(u"c"_s);
        EXPECT_EQ(field().text(), u"abc"_s);
        EXPECT_TRUE(button("Add").isEnabled());
    }
}

TEST_F(Attributes, CaretStaysWhereTheReservedCharacterWas) {
    open(u""_s);
    type(u"abcd"_s);
    field().setCursorPosition(2);
    expectReservedMessage();
    type(u";"_s);
    EXPECT_EQ(field().text(), u"abcd"_s);
    EXPECT_EQ(field().cursorPosition(), 2);
}

TEST_F(Attributes, NoReservedCharacterComesInByPasting) {
    open(u""_s);
    expectReservedMessage();
    expectReservedMessage();
    paste(u"a;b@c"_s);
    EXPECT_EQ(field().text(), u"abc"_s);
    EXPECT_FALSE(button("Add").isEnabled());
}

TEST_F(Attributes, AreasHoldFiftyCharactersAttributesTwoHundred) {
    open(u""_s);
    paste(QString(50, u'x'));
    EXPECT_EQ(context.prompts.beeps(), 0);
    type(u"y"_s);
    EXPECT_EQ(context.prompts.beeps(), 1);
    EXPECT_EQ(field().text(), QString(50, u'x'));
    for (const QString& mode : {u"GrammatikalischeAttribute"_s, u"FunktionaleAttribute"_s}) {
        open(u""_s, mode);
        paste(QString(201, u'x'));
        EXPECT_EQ(field().text(), QString(200, u'x'));
    }
    EXPECT_EQ(context.prompts.beeps(), 3);
}

// OK.

TEST_F(Attributes, OkWritesTheValuesInTheirOrderAndRecordsTheRowBefore) {
    open(u"work;"_s);
    choose("LbAvailable", u"garden"_s);
    click("Add");
    click("OK");
    EXPECT_FALSE(form->isVisible());
    EXPECT_EQ(form->Ergebnis, u"work;garden;"_s);
    EXPECT_EQ(cell(3), u"work;garden;"_s);
    EXPECT_EQ(changed, QList<int>{3});
    EXPECT_EQ(before, QStringList{u"work;"_s});
    EXPECT_EQ(grid.Row(), 3);
    EXPECT_EQ(grid.Col(), Column);
}

TEST_F(Attributes, OkWithoutAChangeRecordsNothing) {
    open(u"work;garden;"_s);
    click("OK");
    EXPECT_EQ(changed, QList<int>());
    EXPECT_EQ(cell(3), u"work;garden;"_s);
}

TEST_F(Attributes, BlanksRoundTheCellAreNoChange) {
    open(u" work; "_s);
    click("OK");
    EXPECT_EQ(changed, QList<int>());
    EXPECT_EQ(cell(3), u" work; "_s);
}

TEST_F(Attributes, OkOnNothingEmptiesTheCell) {
    open(u"work;"_s);
    choose("LbSelected", u"work"_s);
    click("Remove");
    click("OK");
    EXPECT_EQ(cell(3), QString());
    EXPECT_EQ(changed, QList<int>{3});
}

TEST_F(Attributes, EscapeIsCancel) {
    open(u"work;"_s);
    choose("LbAvailable", u"garden"_s);
    click("Add");
    QTest::keyClick(&field(), Qt::Key_Escape);
    EXPECT_FALSE(form->isVisible());
    EXPECT_EQ(cell(3), u"work;"_s);
}

TEST_F(Attributes, ReturnAddsWhatIsTypedAndThenEnds) {
    open(u""_s);
    type(u"typed"_s);
    QTest::keyClick(&field(), Qt::Key_Return);
    ASSERT_TRUE(form->isVisible());
    EXPECT_EQ(assigned(), QStringList{u"typed"_s});
    QTest::keyClick(&field(), Qt::Key_Return);
    EXPECT_FALSE(form->isVisible());
    EXPECT_EQ(cell(3), u"typed;"_s);
}

// Several rows.

TEST_F(Attributes, AsksAboutTheOtherRowsAndYesWritesThemAll) {
    start = 3;
    end = 5;
    open(u""_s);
    grid.setTextMatrix(4, Column, u"typed;"_s); // has the value already
    type(u"typed"_s);
    click("Add");
    context.prompts.expectYesNo(severalRowsText, true);
    click("OK");
    EXPECT_EQ(cells(), (QStringList{QString(), QString(), u"typed;"_s, u"typed;"_s, u"typed;"_s}));
    EXPECT_EQ(changed, (QList<int>{3, 5}));
    EXPECT_EQ(grid.Row(), 3);
}

TEST_F(Attributes, SelectionUpwardsReachesTheRowsAbove) {
    start = 3;
    end = 1;
    open(u""_s);
    type(u"typed"_s);
    click("Add");
    context.prompts.expectYesNo(severalRowsText, true);
    click("OK");
    EXPECT_EQ(cells(), (QStringList{u"typed;"_s, u"typed;"_s, u"typed;"_s, QString(), QString()}));
    EXPECT_EQ(changed, (QList<int>{3, 1, 2}));
}

TEST_F(Attributes, NoChangesTheCurrentRowOnly) {
    start = 3;
    end = 5;
    open(u""_s);
    type(u"typed"_s);
    click("Add");
    context.prompts.expectYesNo(severalRowsText, false);
    click("OK");
    EXPECT_EQ(cells(), (QStringList{QString(), QString(), u"typed;"_s, QString(), QString()}));
    EXPECT_EQ(changed, QList<int>{3});
}

TEST_F(Attributes, QuestionComesFromTheSelectionAloneAlsoWithoutAChange) {
    start = 3;
    end = 4;
    open(u"work;"_s);
    context.prompts.expectYesNo(severalRowsText, true);
    click("OK");
    EXPECT_EQ(changed, QList<int>{4});
    EXPECT_EQ(cell(4), u"work;"_s);
}

TEST_F(Attributes, CancelAsksNothing) {
    start = 3;
    end = 5;
    open(u"work;"_s);
    click("cmClose");
    EXPECT_EQ(cells(), (QStringList{QString(), QString(), u"work;"_s, QString(), QString()}));
}

TEST_F(Attributes, NoPendingSelectionMeansOneRow) {
    end = -1;
    open(u"work;"_s);
    click("OK");
    EXPECT_TRUE(context.prompts.isFinished());
}

TEST_F(Attributes, NeverWritesTheHeader) {
    start = 3;
    end = 0;
    open(u"work;"_s);
    context.prompts.expectYesNo(severalRowsText, true);
    click("OK");
    EXPECT_EQ(cell(0), QString());
    EXPECT_EQ(cell(1), u"work;"_s);
}

TEST_F(GermanAttributes, QuestionAboutSeveralRows) {
    start = 3;
    end = 4;
    open(u"work;"_s);
    context.prompts.expectYesNo(u"Änderungen für alle selektierten Zellen vornehmen?"_s, false);
    click("OK");
}

TEST_F(Attributes, FailureIsReportedAndTheDialogStays) {
    form = std::make_unique<AddListBox>(
        context.prompts, context.values,
        AttributeCells{grid, [this] { (void)grid.TextMatrix(99, 0); }, start, end});
    form->Modus = u"Bereich"_s;
    form->show();
    type(u"typed"_s);
    click("Add");
    context.prompts.expectErrorContaining(QString());
    click("OK");
    EXPECT_TRUE(form->isVisible());
    EXPECT_EQ(cell(3), QString());
}

// The pad and the texts.

TEST_F(Attributes, OpensThePadBesideIt) {
    open(u""_s);
    click("cmdFont");
    EXPECT_TRUE(pad.isVisible());
    EXPECT_FALSE(pad.isModal());
}

TEST_F(Attributes, EndsARealModalRun) {
    AddListBox dialog(context.prompts, context.values, {grid, [this] { changed << grid.Row(); }, start, end});
    dialog.Modus = u"Bereich"_s;
    grid.setText(u"work;"_s);
    QMetaObject::invokeMethod(
        &dialog, [&dialog] { QTest::keyClick(&child<QLineEdit>(dialog, "txtSelected"), Qt::Key_Return); },
        Qt::QueuedConnection);
    ScreenPrompts().exec(dialog);
    EXPECT_EQ(dialog.Ergebnis, u"work;"_s);
}

TEST_F(Attributes, Texts) {
    open(u""_s);
    EXPECT_EQ(form->objectName(), u"AddListBox"_s);
    EXPECT_EQ(button("cmdFont").text(), u"Special Characters"_s);
    EXPECT_EQ(button("cmClose").text(), u"Cancel"_s);
    EXPECT_EQ(button("Add").text(), u"Add >>"_s);
    EXPECT_EQ(button("Remove").text(), u"<< Remove"_s);
    EXPECT_EQ(button("OK").text(), u"OK"_s);
    EXPECT_EQ(child<QLabel>(*form, "lblAvailable").text(), u"Not Assigned:"_s);
    EXPECT_EQ(child<QLabel>(*form, "lblSelected").text(), u"Assigned:"_s);
    EXPECT_EQ(child<QLabel>(*form, "lblText").text(), u"Selected or New:"_s);
    EXPECT_EQ(child<QLabel>(*form, "lblHelp").text(), u"Help: F1"_s);
    EXPECT_EQ(field().toolTip(),
              u"Here the currently selected entry is displayed, or you can type in a new entry"_s);
    EXPECT_EQ(list("LbAvailable").toolTip(),
              u"Click the entry that shall be assigned, then press button 'Add'"_s);
    EXPECT_EQ(list("LbSelected").toolTip(),
              u"Click the entry that shall be removed, then press button 'Remove'"_s);
}

TEST_F(GermanAttributes, Texts) {
    open(u""_s);
    EXPECT_EQ(button("cmClose").text(), u"Abbrechen"_s);
    EXPECT_EQ(child<QLabel>(*form, "lblAvailable").text(), u"Nicht zugewiesen:"_s);
    EXPECT_EQ(child<QLabel>(*form, "lblSelected").text(), u"Zugewiesen:"_s);
    EXPECT_EQ(child<QLabel>(*form, "lblText").text(), u"Ausgewählt bzw. neu:"_s);
    EXPECT_EQ(child<QLabel>(*form, "lblHelp").text(), u"Hilfe: F1"_s);
    EXPECT_EQ(list("LbAvailable").toolTip(),
              u"Klicken Sie auf den zuzuweisenden Eintrag, dann Schaltfläche Hinzufügen anklicken"_s);
}
