#include "NeueRelation.h"

#include "ReferencesBench.h"
#include "Relationen.h"
#include "RelationenFunktionen.h"

#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace lingomat;

namespace {

const QString createdText = u"The Reference has been created"_s;
const QString modifiedText = u"The Reference has been modified"_s;
const QString existsText = u"This Reference already exists."_s;

struct NewReference : testing::Test {
    explicit NewReference(const QString& language = u"En"_s) : bench(language) {
        a = bench.add(u"Hund"_s, u"dog"_s);
        b = bench.add(u"Katze"_s, u"cat"_s);
        c = bench.add(u"Amsel"_s, u"blackbird"_s);
    }
    void openReferences(const QString& id) {
        bench.goTo(id);
        references = std::make_unique<Relationen>(bench.context.forms, bench.list);
        ASSERT_TRUE(references->Form_Load());
        references->show();
    }
    void showForm() {
        form = std::make_unique<NeueRelation>(bench.context.forms, *references, bench.list);
        form->show();
        form->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(form.get()));
    }
    void create(const QString& id) {
        openReferences(id);
        references->StatusAnlegen = true;
        showForm();
    }
    /// Opens the change of the first reference of the entry.
    void change(const QString& id) {
        openReferences(id);
        auto& grid = child<FlexGrid>(*references, "MSFlexGrid1");
        grid.setFocus();
        QTest::keyClick(&grid, Qt::Key_Down);
        ASSERT_EQ(references->MarkierteZeile, 1);
        references->StatusAnlegen = false;
        showForm();
    }
    FlexGrid& grid() { return child<FlexGrid>(*form, "MSFlexGrid1"); }
    QComboBox& types() { return child<QComboBox>(*form, "Combo1"); }
    QPushButton& action() { return child<QPushButton>(*form, "Command1"); }
    QString text(const char* name) { return child<QLineEdit>(*form, name).text(); }
    QStringList entries() {
        QStringList all;
        for (int row = 1; row < grid().Rows(); ++row)
            all << grid().TextMatrix(row, NeueRelation::ColSprache1) + u'/' +
                       grid().TextMatrix(row, NeueRelation::ColSprache2);
        return all;
    }
    QStringList typeNames() {
        QStringList all;
        for (int i = 0; i < types().count(); ++i)
            all << types().itemText(i);
        return all;
    }
    void choose(const QString& language1) {
        for (int row = 1; row < grid().Rows(); ++row) {
            if (grid().TextMatrix(row, NeueRelation::ColSprache1) != language1)
                continue;
            grid().flush();
            const QRect cell = grid().visualRect(grid().model()->index(row - 1, 0));
            QTest::mouseClick(grid().viewport(), Qt::LeftButton, {}, cell.center());
            return;
        }
        FAIL() << language1.toStdString();
    }
    void type(const QString& text) {
        types().lineEdit()->selectAll();
        QTest::keyClicks(types().lineEdit(), text);
    }
    void store() { QTest::mouseClick(&action(), Qt::LeftButton); }
    void createNow(const QString& language1, const QString& typeName) {
        choose(language1);
        type(typeName);
        bench.context.prompts.expectInformation(createdText);
        store();
    }

    ReferencesBench bench;
    QString a, b, c;
    std::unique_ptr<Relationen> references;
    std::unique_ptr<NeueRelation> form;
};

struct GermanNewReference : NewReference {
    GermanNewReference() : NewReference(u"De"_s) {}
};

} // namespace

// Creating.

TEST_F(NewReference, OffersAllEntriesButItsOwnInOrder) {
    create(a);
    EXPECT_EQ(entries(), (QStringList{u"Amsel/blackbird"_s, u"Katze/cat"_s}));
    EXPECT_EQ(grid().TextMatrix(0, 1), u"German"_s);
    EXPECT_EQ(grid().TextMatrix(0, 2), u"English"_s);
    EXPECT_EQ(grid().ColWidth(NeueRelation::ColID), 0);
    EXPECT_EQ(text("Text1"), u"Hund"_s);
    EXPECT_EQ(text("Text2"), u"dog"_s);
    EXPECT_EQ(text("Text3"), QString());
    EXPECT_EQ(types().currentText(), QString());
    EXPECT_FALSE(action().isEnabled());
    for (const char* name : {"Text1", "Text2", "Text3", "Text4"})
        EXPECT_TRUE(child<QLineEdit>(*form, name).isReadOnly()) << name;
}

TEST_F(NewReference, LeavesThePlaceInTheListAlone) {
    create(a);
    EXPECT_EQ(bench.grid.Row(), 1);
    EXPECT_EQ(bench.grid.Col(), Liste::ColSprache1);
}

TEST_F(NewReference, OffersTheSevenTypesOfAnEmptyTable) {
    create(a);
    EXPECT_EQ(typeNames(), (QStringList{u"Derived from"_s, u"Opposite of"_s, u"See also"_s,
                                        u"Different meaning for expression in German"_s,
                                        u"Different meaning for expression in English"_s,
                                        u"Similar meaning for expression in German"_s,
                                        u"Similar meaning for expression in English"_s}));
}

TEST_F(GermanNewReference, OffersTheSevenTypesOfAnEmptyTable) {
    create(a);
    EXPECT_EQ(typeNames(), (QStringList{u"Abgeleitet bzw. Grundform von"_s, u"Gegenteil von"_s,
                                        u"Siehe auch"_s, u"Andere Bedeutung für Ausdruck auf German"_s,
                                        u"Andere Bedeutung für Ausdruck auf English"_s,
                                        u"Ähnliche Bedeutung für Ausdruck auf German"_s,
                                        u"Ähnliche Bedeutung für Ausdruck auf English"_s}));
}

TEST_F(NewReference, NeedsAnEntryAndAType) {
    create(a);
    type(u"See also"_s);
    EXPECT_FALSE(action().isEnabled());
    choose(u"Katze"_s);
    EXPECT_TRUE(action().isEnabled());
    EXPECT_EQ(text("Text3"), u"Katze"_s);
    EXPECT_EQ(text("Text4"), u"cat"_s);
    types().clearEditText();
    EXPECT_FALSE(action().isEnabled());
    types().setCurrentIndex(1);
    EXPECT_TRUE(action().isEnabled()) << "chosen from the list";
}

TEST_F(NewReference, FirstRowCanBeChosenAtOnce) {
    create(a);
    choose(u"Amsel"_s);
    EXPECT_EQ(text("Text3"), u"Amsel"_s);
    EXPECT_EQ(form->MarkierteZeile, 1);
}

TEST_F(NewReference, IsStoredInTheDirectionOfItsCreation) {
    create(b);
    createNow(u"Hund"_s, u"See also"_s);
    EXPECT_EQ(bench.storedReferences(), QStringList{b + u'>' + a + u" See also"_s});
    EXPECT_EQ(references->AnzahlZeilen, 1);
    EXPECT_EQ(references->MSFlexGrid1().TextMatrix(1, Relationen::ColSprache1), u"Hund"_s);
    EXPECT_TRUE(form->isVisible()) << "for the next one";
}

TEST_F(NewReference, SeveralOneAfterTheOther) {
    create(a);
    createNow(u"Katze"_s, u"See also"_s);
    createNow(u"Amsel"_s, u"See also"_s);
    createNow(u"Amsel"_s, u"Opposite of"_s);
    EXPECT_EQ(bench.storedReferences().size(), 3);
    EXPECT_EQ(references->AnzahlZeilen, 3);
}

TEST_F(NewReference, ExistsAlreadyFromTheOtherSideToo) {
    bench.addReference(b, a, u"See also"_s);
    create(a);
    choose(u"Katze"_s);
    for (const QString& sameType : {u"See also"_s, u"SEE ALSO"_s}) {
        type(sameType);
        bench.context.prompts.expectExclamation(existsText);
        store();
    }
    EXPECT_EQ(bench.storedReferences().size(), 1);
    createNow(u"Katze"_s, u"Opposite of"_s);
    EXPECT_EQ(bench.storedReferences().size(), 2);
}

TEST_F(NewReference, TypeWithWildcardsIsATextLikeAnyOther) {
    bench.addReference(a, b, u"abc"_s);
    create(a);
    for (const QString& odd : {u"a*"_s, u"a?c"_s, u"[open"_s, u"it's"_s, u"#"_s})
        createNow(u"Katze"_s, odd);
    EXPECT_EQ(bench.storedReferences().size(), 6);
}

TEST_F(NewReference, OwnTypeIsOfferedFromThenOn) {
    create(a);
    createNow(u"Katze"_s, u"Rhymes with"_s);
    EXPECT_EQ(typeNames().count(u"Rhymes with"_s), 1);
    EXPECT_TRUE(referenceTypes(bench.context.state).contains(u"Rhymes with"_s));
    create(c);
    EXPECT_EQ(typeNames().last(), u"Rhymes with"_s);
}

TEST_F(NewReference, TypesThatDifferInCaseAreTwoInTheList) {
    create(a);
    createNow(u"Katze"_s, u"rhymes"_s);
    createNow(u"Amsel"_s, u"Rhymes"_s);
    EXPECT_TRUE(typeNames().contains(u"rhymes"_s));
    EXPECT_TRUE(typeNames().contains(u"Rhymes"_s));
}

TEST_F(NewReference, BlanksRoundATypeGo) {
    create(a);
    choose(u"Katze"_s);
    type(u"  Rhymes with "_s);
    bench.context.prompts.expectInformation(createdText);
    store();
    EXPECT_EQ(types().currentText(), u"Rhymes with"_s);
    EXPECT_EQ(bench.storedReferences(), QStringList{a + u'>' + b + u" Rhymes with"_s});

    type(u"   "_s);
    store();
    EXPECT_EQ(types().currentText(), QString());
    EXPECT_FALSE(action().isEnabled());
    EXPECT_EQ(bench.storedReferences().size(), 1);
}

TEST_F(NewReference, LongTypeIsCutWithABeep) {
    create(a);
    types().setEditText(QString(200, u'x'));
    EXPECT_EQ(bench.context.prompts.beeps(), 0);
    QTest::keyClicks(types().lineEdit(), u"y"_s);
    EXPECT_EQ(bench.context.prompts.beeps(), 1);
    EXPECT_EQ(types().currentText(), QString(200, u'x'));
    createNow(u"Katze"_s, QString(200, u'z'));
    EXPECT_EQ(bench.storedReferences(), QStringList{a + u'>' + b + u' ' + QString(200, u'z')});
}

TEST_F(NewReference, TypingDoesNotTurnIntoAnotherType) {
    create(a);
    type(u"see"_s);
    EXPECT_EQ(types().currentText(), u"see"_s);
}

TEST_F(NewReference, FailureToStoreIsReported) {
    create(a);
    choose(u"Katze"_s);
    type(u"See also"_s);
    bench.session().RecordsetReferenzen.Close();
    bench.context.prompts.expectErrorContaining(QString());
    store();
    EXPECT_EQ(references->AnzahlZeilen, 0);
}

TEST_F(NewReference, EntryFoundOnceMoreAfterASort) {
    create(a);
    choose(u"Katze"_s);
    QHeaderView& head = *grid().horizontalHeader();
    QTest::mouseClick(head.viewport(), Qt::LeftButton, {},
                      {head.sectionViewportPosition(1) + 20, head.height() / 2});
    EXPECT_EQ(entries(), (QStringList{u"Amsel/blackbird"_s, u"Katze/cat"_s}));
    EXPECT_EQ(form->MarkierteZeile, 0);
    EXPECT_EQ(text("Text3"), QString());
    EXPECT_FALSE(action().isEnabled());
    choose(u"Katze"_s);
    EXPECT_EQ(text("Text3"), u"Katze"_s) << "the next choice counts";
}

// Searching.

TEST_F(NewReference, SearchFindsAndMarksTheOtherEntry) {
    create(a);
    choose(u"Amsel"_s);
    bench.context.prompts.expectDialog("frmSuchen", [this](QDialog& dialog) {
        EXPECT_EQ(text("Text3"), QString()) << "sorted anew, nothing marked";
        EXPECT_EQ(child<QRadioButton>(dialog, "Option1").text(), u"German"_s);
        QTest::keyClicks(&child<QLineEdit>(dialog, "txtAusdruck"), u"ka"_s);
        EXPECT_EQ(text("Text3"), u"Katze"_s);
        child<QRadioButton>(dialog, "Option2").click();
        QTest::keyClick(&child<QLineEdit>(dialog, "txtAusdruck"), Qt::Key_Backspace);
        QTest::keyClick(&child<QLineEdit>(dialog, "txtAusdruck"), Qt::Key_Backspace);
        QTest::keyClicks(&child<QLineEdit>(dialog, "txtAusdruck"), u"c"_s);
        EXPECT_EQ(text("Text4"), u"cat"_s);
        dialog.close();
    });
    child<QPushButton>(*form, "cmdSuchen").click();
    EXPECT_EQ(text("Text4"), u"cat"_s);
    createNow(u"Katze"_s, u"See also"_s);
}

TEST(NewReferenceAlone, CannotSearchAmongNoEntries) {
    ReferencesBench bench;
    bench.goTo(bench.add(u"Hund"_s, u"dog"_s));
    Relationen references(bench.context.forms, bench.list);
    ASSERT_TRUE(references.Form_Load());
    NeueRelation form(bench.context.forms, references, bench.list);
    form.show();
    EXPECT_EQ(child<FlexGrid>(form, "MSFlexGrid1").Rows(), 1);
    EXPECT_FALSE(child<QPushButton>(form, "cmdSuchen").isEnabled());
}

// Changing.

TEST_F(NewReference, ChangeOffersTheTypeOnly) {
    bench.addReference(a, b, u"See also"_s);
    change(a);
    EXPECT_FALSE(grid().isVisible());
    EXPECT_LT(form->height(), form->VolleHoehe);
    EXPECT_EQ(text("Text1"), u"Hund"_s);
    EXPECT_EQ(text("Text3"), u"Katze"_s);
    EXPECT_EQ(text("Text4"), u"cat"_s);
    EXPECT_EQ(types().currentText(), u"See also"_s);
    EXPECT_EQ(form->AlterTyp, u"See also"_s);
    EXPECT_FALSE(action().isEnabled());
}

TEST_F(NewReference, ChangeNeedsAnotherType) {
    bench.addReference(a, b, u"See also"_s);
    change(a);
    type(u"See als"_s);
    EXPECT_TRUE(action().isEnabled());
    type(u"See also"_s);
    EXPECT_FALSE(action().isEnabled());
    types().clearEditText();
    EXPECT_FALSE(action().isEnabled());
}

TEST_F(NewReference, ChangeWritesTheTypeAndKeepsTheDirection) {
    bench.addReference(b, a, u"See also"_s);
    change(a);
    type(u"Rhymes with"_s);
    bench.context.prompts.expectInformation(modifiedText);
    store();
    EXPECT_EQ(bench.storedReferences(), QStringList{b + u'>' + a + u" Rhymes with"_s});
    EXPECT_EQ(references->cell(Relationen::ColTyp), u"Rhymes with"_s);
    EXPECT_FALSE(action().isEnabled()) << "nothing new any more";
    EXPECT_TRUE(typeNames().contains(u"Rhymes with"_s));

    type(u"Opposite of"_s);
    bench.context.prompts.expectInformation(modifiedText);
    store();
    EXPECT_EQ(bench.storedReferences(), QStringList{b + u'>' + a + u" Opposite of"_s});
}

TEST_F(NewReference, ChangeToATypeThatExistsIsRefused) {
    bench.addReference(a, b, u"Opposite of"_s);
    bench.addReference(b, a, u"See also"_s);
    change(a);
    type(u"see also"_s);
    bench.context.prompts.expectExclamation(existsText);
    store();
    EXPECT_EQ(references->cell(Relationen::ColTyp), u"Opposite of"_s);
    EXPECT_EQ(bench.storedReferences().size(), 2);
}

TEST_F(NewReference, ChangeOfOneThatIsGoneSaysSo) {
    bench.addReference(a, b, u"See also"_s);
    change(a);
    bench.session().RecordsetReferenzen.MoveFirst();
    bench.session().RecordsetReferenzen.Delete();
    type(u"Opposite of"_s);
    bench.context.prompts.expectCritical(u"The Reference could not be found!"_s);
    store();
}

// Looks and texts.

TEST_F(NewReference, LanguagesShareTheWidth) {
    create(a);
    grid().flush();
    EXPECT_EQ(grid().ColWidth(NeueRelation::ColSprache1), grid().ColWidth(NeueRelation::ColSprache2));
    EXPECT_NEAR(grid().ColWidth(NeueRelation::ColSprache1), grid().width() / 2.0, 40);
    EXPECT_EQ(grid().horizontalScrollBar()->maximum(), 0);
}

TEST_F(NewReference, ShowsTheBeginningOfALongExpression) {
    bench.add(u"Abend "_s + QString(80, u'x'), u"evening"_s);
    create(a);
    choose(u"Abend "_s + QString(80, u'x'));
    EXPECT_EQ(child<QLineEdit>(*form, "Text3").cursorPosition(), 0);
}

TEST_F(NewReference, StartsWhereTheUserHasToChoose) {
    bench.addReference(a, b, u"See also"_s);
    create(a);
    EXPECT_EQ(form->focusWidget(), &grid());
    change(a);
    EXPECT_TRUE(types().hasFocus());
    EXPECT_GE(types().height(), types().sizeHint().height()) << "nothing is squeezed";
}

TEST_F(NewReference, TextsOfCreating) {
    create(a);
    EXPECT_EQ(form->objectName(), u"NeueRelation"_s);
    EXPECT_EQ(form->windowTitle(), u"New Reference"_s);
    EXPECT_EQ(action().text(), u"Create"_s);
    EXPECT_EQ(child<QLabel>(*form, "Label2").text(),
              u"Select a vocab from the list. Select the Reference type from the combo box or type in a new "
              "Reference type. Then activate button 'Create'."_s);
    EXPECT_EQ(form->height(), form->VolleHoehe);
}

TEST_F(NewReference, TextsOfChanging) {
    bench.addReference(a, b, u"See also"_s);
    change(a);
    EXPECT_EQ(action().text(), u"Change"_s);
    EXPECT_EQ(child<QLabel>(*form, "Label2").text(),
              u"Select the Reference type from the combo box or type in a new Reference type. Then activate "
              "button 'Change'."_s);
}

TEST_F(GermanNewReference, TextsAndMessages) {
    create(a);
    EXPECT_EQ(action().text(), u"Erzeugen"_s);
    EXPECT_EQ(child<QLabel>(*form, "Label2").text(),
              u"Wählen Sie aus der Liste eine Vokabel aus. Wählen Sie die Referenzart aus der Klappbox, oder "
              "geben Sie eine neue Referenzart ein. Klicken Sie dann auf die Schaltfläche 'Erzeugen'."_s);
    choose(u"Katze"_s);
    type(u"Siehe auch"_s);
    bench.context.prompts.expectInformation(u"Die Referenz wurde erzeugt"_s);
    store();
    bench.context.prompts.expectExclamation(u"Diese Referenz existiert bereits."_s);
    store();

    change(a);
    EXPECT_EQ(action().text(), u"Ändern"_s);
    EXPECT_EQ(
        child<QLabel>(*form, "Label2").text(),
        u"Wählen Sie die Referenzart aus der Klappbox, oder geben Sie eine neue Referenzart ein. Klicken "
        "Sie dann auf die Schaltfläche 'Ändern'."_s);
    type(u"Gegenteil von"_s);
    bench.context.prompts.expectInformation(u"Die Referenz wurde verändert"_s);
    store();
    bench.session().RecordsetReferenzen.MoveFirst();
    bench.session().RecordsetReferenzen.Delete();
    type(u"Siehe auch"_s);
    bench.context.prompts.expectCritical(u"Referenz wurde nicht gefunden!"_s);
    store();
}

// Where the pointer really is on the screen does not matter to the test.
void hover(QWidget& widget, QPoint position) {
    QMouseEvent event(QEvent::MouseMove, position, widget.mapToGlobal(position), Qt::NoButton, Qt::NoButton,
                      {});
    QCoreApplication::sendEvent(&widget, &event);
}

TEST_F(NewReference, TipsOnHeadsAndRows) {
    create(a);
    QHeaderView& head = *grid().horizontalHeader();
    hover(*head.viewport(), {head.sectionViewportPosition(1) + 5, head.height() / 2});
    EXPECT_EQ(grid().toolTip(), u"Click to sort by this column"_s);
    hover(*grid().viewport(), {10, 10});
    EXPECT_EQ(grid().toolTip(), u"Click to select vocab for Reference"_s);
}

TEST_F(NewReference, ClosesByItsButtonAndByEscape) {
    create(a);
    QTest::mouseClick(&child<QPushButton>(*form, "Command2"), Qt::LeftButton);
    EXPECT_FALSE(form->isVisible());
    create(a);
    QTest::keyClick(&types(), Qt::Key_Escape);
    EXPECT_FALSE(form->isVisible());
}

TEST_F(NewReference, ReturnInTheTypeStores) {
    create(a);
    choose(u"Katze"_s);
    type(u"See also"_s);
    bench.context.prompts.expectInformation(createdText);
    QTest::keyClick(types().lineEdit(), Qt::Key_Return);
    EXPECT_EQ(bench.storedReferences().size(), 1);
}
