#include "frmVokabelEingabe.h"

#include "FontHelp.h"
#include "ReferencesBench.h"

#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace lingomat;

namespace {

const QString saveFirstText =
    u"Synonyms can only be edited, after the vocab entry has been saved to the database. Shall the data of "
    "the current line as well as all other changes be saved now?"_s;
const QString failedText = u"Error occured while processing synonyms!"_s;

struct Editor : testing::Test {
    explicit Editor(const QString& language = u"En"_s)
        : bench(language),
          form(bench.context.forms, pad,
               {bench.grid, [this] { save(); }, [this](const ExpressionParts& parts) { entered << parts; }}) {
        a = bench.add(u"Hund"_s, u"dog"_s);
        bench.goTo(a);
    }
    /// What the list does when it saves: here it only gives the current row its ID.
    void save() {
        ++saves;
        if (!saveFails)
            bench.grid.setTextMatrix(bench.grid.Row(), 1, a);
    }
    void show() {
        form.initializeForm();
        form.show();
        form.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&form));
    }
    void showWithSynonyms() {
        show();
        click("cmdSynonyme");
        ASSERT_TRUE(form.SynonymeSichtbar);
    }
    QLineEdit& field(const char* name) { return child<QLineEdit>(form, name); }
    QPushButton& button(const char* name) { return child<QPushButton>(form, name); }
    void click(const char* name) { QTest::mouseClick(&button(name), Qt::LeftButton); }
    QStringList items(const char* list) {
        const auto& box = child<QListWidget>(form, list);
        QStringList all;
        for (int i = 0; i < box.count(); ++i)
            all << box.item(i)->text();
        return all;
    }
    QList<int> counts() {
        QList<int> all;
        for (const char* name : {"lstSynonyme", "lstID", "lstPrefix", "lstMain", "lstSuffix", "lstKommentar"})
            all << child<QListWidget>(form, name).count();
        return all;
    }
    void choose(int index) {
        auto& list = child<QListWidget>(form, "lstSynonyme");
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {},
                          list.visualItemRect(list.item(index)).center());
    }
    /// The dialog that comes up next is given this main part and confirmed.
    void expectSynonym(const QString& main, const QString& shownBefore = {}) {
        bench.context.prompts.expectDialog("AusdruckForm", [main, shownBefore](QDialog& dialog) {
            auto& text = child<QLineEdit>(dialog, "txtMain");
            EXPECT_EQ(text.text(), shownBefore);
            text.setText(main);
            child<QPushButton>(dialog, "cmdOK").click();
        });
    }
    void add(const QString& main) {
        expectSynonym(main);
        click("cmdAdd");
    }
    bool lowerHalfIsOpen() { return child<QListWidget>(form, "lstSynonyme").isVisible(); }

    ReferencesBench bench;
    QString a;
    QList<ExpressionParts> entered;
    int saves = 0;
    bool saveFails = false;
    FontHelp pad;
    frmVokabelEingabe form;
};

struct GermanEditor : Editor {
    GermanEditor() : Editor(u"De"_s) {}
};

} // namespace

// The expression.

TEST_F(Editor, ShowsTheFourPartsAndHandsThemBack) {
    bench.context.prompts.expectDialog("frmVokabelEingabe", [this](QDialog&) {
        EXPECT_EQ(field("txtPrefix").text(), u"der"_s);
        EXPECT_EQ(field("txtMain").text(), u"Hund"_s);
        EXPECT_EQ(field("txtSuffix").text(), u"e"_s);
        EXPECT_EQ(field("txtComment").text(), u"Tier"_s);
        field("txtMain").setText(u"Hase "_s);
        click("cmdOK");
        EXPECT_FALSE(form.isVisible());
    });
    form.edit({u"der"_s, u"Hund"_s, u"e"_s, u"Tier"_s}, {}, {100, 100, 80, 20});
    EXPECT_EQ(entered, (QList<ExpressionParts>{{u"der"_s, u"Hase "_s, u"e"_s, u"Tier"_s}}));
}

TEST_F(Editor, CharacterTypedInTheListArrivesBehindTheMainPart) {
    bench.context.prompts.expectDialog("frmVokabelEingabe", [this](QDialog&) {
        EXPECT_TRUE(QTest::qWaitForWindowActive(&form));
        EXPECT_EQ(field("txtMain").text(), u"Hunde"_s);
        EXPECT_TRUE(field("txtMain").hasFocus());
        QTest::keyClicks(&field("txtMain"), u"n"_s);
        EXPECT_EQ(field("txtMain").text(), u"Hunden"_s) << "typing goes on at the end";
        click("cmdCancel");
    });
    form.edit({{}, u"Hund"_s, {}, {}}, u"e"_s, {});
    EXPECT_EQ(entered, QList<ExpressionParts>());
}

TEST_F(Editor, ReturnIsOkAndEscapeIsCancelWhereverTheFocusIs) {
    bench.addSynonym(a, 1, u"Köter"_s);
    for (const char* name : {"txtPrefix", "txtMain", "txtSuffix", "txtComment", "cmdCancel", "cmdFont",
                             "cmdSynonyme", "cmdAdd", "lstSynonyme"}) {
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape}) {
            entered.clear();
            showWithSynonyms();
            auto& control = child<QWidget>(form, name);
            control.setFocus();
            QTest::keyClick(&control, key);
            EXPECT_FALSE(form.isVisible()) << name << ' ' << key;
            EXPECT_EQ(entered.size(), key == Qt::Key_Escape ? 0 : 1) << name << ' ' << key;
        }
    }
}

TEST_F(Editor, ClosingTheWindowEntersNothing) {
    show();
    field("txtMain").setText(u"x"_s);
    form.close();
    EXPECT_EQ(entered.size(), 0);
}

TEST_F(Editor, StandsBelowItsCellAndOnTheScreen) {
    const QRect screen = form.screen()->availableGeometry();
    for (const QRect& cell :
         {QRect(100, 50, 80, 20), QRect(screen.right() - 10, screen.bottom() - 10, 80, 20)}) {
        bench.context.prompts.expectDialog("frmVokabelEingabe", [&](QDialog&) {
            EXPECT_TRUE(screen.contains(form.frameGeometry()));
            EXPECT_FALSE(form.frameGeometry().intersects(cell & screen));
            form.close();
        });
        form.edit({}, {}, cell);
    }
}

TEST_F(Editor, CutsLongTextsWithABeep) {
    show();
    for (const char* name : {"txtPrefix", "txtMain", "txtSuffix", "txtComment"}) {
        field(name).setText(QString(101, u'x'));
        EXPECT_EQ(field(name).text().size(), 100) << name;
    }
    EXPECT_EQ(bench.context.prompts.beeps(), 4);
}

TEST_F(Editor, OpensThePad) {
    show();
    field("txtSuffix").setFocus();
    click("cmdFont");
    EXPECT_TRUE(pad.isVisible());
    form.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&form));
    EXPECT_TRUE(field("txtSuffix").hasFocus());
}

// The lower half.

TEST_F(Editor, OpensWithTheLowerHalfClosed) {
    show();
    EXPECT_FALSE(form.SynonymeSichtbar);
    EXPECT_FALSE(lowerHalfIsOpen());
    EXPECT_FALSE(child<QLabel>(form, "lblSynonyme").isVisible());
    EXPECT_EQ(button("cmdSynonyme").text(), u"Edit Synonyms"_s);
    EXPECT_LT(form.height(), form.VolleHoehe);
}

TEST_F(Editor, ButtonOpensAndClosesTheLowerHalf) {
    show();
    const int closed = form.height();
    click("cmdSynonyme");
    EXPECT_TRUE(form.SynonymeSichtbar);
    EXPECT_TRUE(lowerHalfIsOpen());
    EXPECT_EQ(form.height(), form.VolleHoehe);
    EXPECT_TRUE(child<QLabel>(form, "lblSynonyme").isVisible());
    EXPECT_EQ(button("cmdSynonyme").text(), u"Hide synonyms"_s);
    EXPECT_EQ(button("cmdSynonyme").toolTip(), u"Hides the synonyms"_s);
    click("cmdSynonyme");
    EXPECT_FALSE(form.SynonymeSichtbar);
    EXPECT_FALSE(lowerHalfIsOpen());
    EXPECT_EQ(form.height(), closed);
    EXPECT_EQ(button("cmdSynonyme").text(), u"Edit Synonyms"_s);
    EXPECT_EQ(button("cmdSynonyme").toolTip(), u"Shows the Synonyms"_s);
}

TEST_F(Editor, StartsClosedAndEmptyTheNextTime) {
    showWithSynonyms();
    field("txtMain").setText(u"x"_s);
    click("cmdCancel");
    show();
    EXPECT_FALSE(lowerHalfIsOpen());
    EXPECT_EQ(field("txtMain").text(), QString());
    EXPECT_EQ(counts(), (QList<int>{0, 0, 0, 0, 0, 0}));
}

TEST_F(Editor, FiveOfTheSixListsAreHidden) {
    showWithSynonyms();
    for (const char* name : {"lstID", "lstPrefix", "lstMain", "lstSuffix", "lstKommentar"})
        EXPECT_FALSE(child<QListWidget>(form, name).isVisible()) << name;
}

// A new row.

TEST_F(Editor, NoOnANewRowLeavesTheLowerHalfClosed) {
    bench.addNewRow();
    show();
    bench.context.prompts.expectYesNo(saveFirstText, false);
    click("cmdSynonyme");
    EXPECT_FALSE(form.SynonymeSichtbar);
    EXPECT_FALSE(lowerHalfIsOpen());
    EXPECT_EQ(button("cmdSynonyme").text(), u"Edit Synonyms"_s);
    EXPECT_EQ(saves, 0);
}

TEST_F(Editor, YesOnANewRowSavesAndReadsItsKey) {
    bench.addSynonym(a, 1, u"Köter"_s);
    bench.addNewRow();
    show();
    bench.context.prompts.expectYesNo(saveFirstText, true);
    click("cmdSynonyme");
    EXPECT_EQ(saves, 1);
    EXPECT_EQ(form.VokabelID, a);
    EXPECT_EQ(items("lstSynonyme"), QStringList{u"Köter"_s});
}

TEST_F(Editor, FailedSaveLeavesTheLowerHalfClosed) {
    saveFails = true;
    bench.addNewRow();
    show();
    bench.context.prompts.expectYesNo(saveFirstText, true);
    click("cmdSynonyme");
    EXPECT_FALSE(lowerHalfIsOpen());
}

TEST_F(GermanEditor, QuestionOnANewRow) {
    bench.addNewRow();
    show();
    bench.context.prompts.expectYesNo(
        u"Synonyme können erst dann bearbeitet werden, wenn der Vokabeleintrag in die Datenbank "
        "zurückgeschrieben wurde. Sollen die Daten der aktuellen Zeile sowie eventuelle weitere gemachte "
        "Änderungen jetzt gesichert werden?"_s,
        false);
    click("cmdSynonyme");
}

// The synonyms.

TEST_F(Editor, EachLanguageHasSynonymsOfItsOwn) {
    const QString other = bench.add(u"Katze"_s, u"cat"_s);
    bench.addSynonym(a, 1, u"Köter"_s);
    bench.addSynonym(a, 2, u"hound"_s);
    bench.addSynonym(other, 1, u"Mieze"_s);
    bench.addSynonym(a, 2, u"mutt"_s);
    bench.goTo(a, Liste::ColSprache1);
    showWithSynonyms();
    EXPECT_EQ(form.SpracheNr, u"1"_s);
    EXPECT_EQ(items("lstSynonyme"), QStringList{u"Köter"_s});
    click("cmdCancel");
    bench.goTo(a, Liste::ColSprache2);
    showWithSynonyms();
    EXPECT_EQ(form.SpracheNr, u"2"_s);
    EXPECT_EQ(items("lstSynonyme"), (QStringList{u"hound"_s, u"mutt"_s}));
    EXPECT_EQ(counts(), (QList<int>{2, 2, 2, 2, 2, 2}));
}

TEST_F(Editor, AddStoresAtOnceAndEscapeDoesNotUndoIt) {
    showWithSynonyms();
    bench.context.prompts.expectDialog("AusdruckForm", [](QDialog& dialog) {
        child<QLineEdit>(dialog, "txtPrefix").setText(u"der"_s);
        child<QLineEdit>(dialog, "txtMain").setText(u"Köter"_s);
        child<QLineEdit>(dialog, "txtSuffix").setText(u"-"_s);
        child<QLineEdit>(dialog, "txtComment").setText(u"grob"_s);
        child<QPushButton>(dialog, "cmdOK").click();
    });
    click("cmdAdd");
    EXPECT_EQ(items("lstSynonyme"), QStringList{u"der Köter - (grob)"_s});
    EXPECT_EQ(counts(), (QList<int>{1, 1, 1, 1, 1, 1}));
    QTest::keyClick(&form, Qt::Key_Escape);
    EXPECT_EQ(bench.storedSynonyms(), QStringList{a + u"/1 der|Köter|-|grob"_s});
}

TEST_F(Editor, AddThatIsCancelledStoresNothing) {
    showWithSynonyms();
    bench.context.prompts.expectDialog(
        "AusdruckForm", [](QDialog& dialog) { child<QPushButton>(dialog, "cmdCancel").click(); });
    click("cmdAdd");
    EXPECT_EQ(counts(), (QList<int>{0, 0, 0, 0, 0, 0}));
    EXPECT_EQ(bench.storedSynonyms(), QStringList());
}

TEST_F(Editor, ChangeRewritesTheChosenOne) {
    showWithSynonyms();
    add(u"Köter"_s);
    add(u"Wauwau"_s);
    EXPECT_FALSE(button("cmdChange").isEnabled());
    choose(0);
    EXPECT_TRUE(button("cmdChange").isEnabled());
    expectSynonym(u"Töle"_s, u"Köter"_s);
    click("cmdChange");
    EXPECT_EQ(items("lstSynonyme"), (QStringList{u"Töle"_s, u"Wauwau"_s}));
    EXPECT_EQ(items("lstMain"), (QStringList{u"Töle"_s, u"Wauwau"_s}));
    EXPECT_EQ(bench.storedSynonyms(), (QStringList{a + u"/1 |Töle||"_s, a + u"/1 |Wauwau||"_s}));
}

TEST_F(Editor, DoubleClickChangesAsWell) {
    showWithSynonyms();
    add(u"Köter"_s);
    choose(0);
    auto& list = child<QListWidget>(form, "lstSynonyme");
    expectSynonym(u"Töle"_s, u"Köter"_s);
    QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, list.visualItemRect(list.item(0)).center());
    EXPECT_EQ(items("lstSynonyme"), QStringList{u"Töle"_s});
}

TEST_F(Editor, DeletingTheOnlyOneLeavesEmptyLists) {
    showWithSynonyms();
    add(u"Köter"_s);
    choose(0);
    click("cmdDelete");
    EXPECT_EQ(counts(), (QList<int>{0, 0, 0, 0, 0, 0}));
    EXPECT_FALSE(button("cmdChange").isEnabled());
    EXPECT_FALSE(button("cmdDelete").isEnabled());
    EXPECT_EQ(bench.storedSynonyms(), QStringList());
}

TEST_F(Editor, DeleteTakesTheChosenOneAndChoosesNoOther) {
    showWithSynonyms();
    for (const char16_t* main : {u"one", u"two", u"three"})
        add(QString::fromUtf16(main));
    choose(1);
    click("cmdDelete");
    EXPECT_EQ(items("lstSynonyme"), (QStringList{u"one"_s, u"three"_s}));
    EXPECT_FALSE(button("cmdDelete").isEnabled());
    choose(1);
    click("cmdDelete");
    EXPECT_EQ(bench.storedSynonyms(), QStringList{a + u"/1 |one||"_s});
}

TEST_F(Editor, SynonymThatIsGoneGivesBothMessages) {
    showWithSynonyms();
    add(u"Köter"_s);
    dao::Recordset& synonyms = bench.session().RecordsetSynonyme;
    synonyms.MoveFirst();
    synonyms.Delete();

    choose(0);
    expectSynonym(u"Töle"_s, u"Köter"_s);
    bench.context.prompts.expectErrorContaining(u"Synonym not found in database!"_s);
    bench.context.prompts.expectCritical(failedText);
    click("cmdChange");
    EXPECT_EQ(items("lstSynonyme"), QStringList{u"Töle"_s}) << "the lists are changed before the store";

    bench.context.prompts.expectErrorContaining(u"Synonym not found in database!"_s);
    bench.context.prompts.expectCritical(failedText);
    click("cmdDelete");
    EXPECT_EQ(counts(), (QList<int>{0, 0, 0, 0, 0, 0}));
}

TEST_F(Editor, RowThatWasNotStoredNeverTakesTheKeyOfAnother) {
    showWithSynonyms();
    add(u"one"_s);
    form.VokabelID = u"99999"_s; // beyond what a store takes
    expectSynonym(u"lost"_s);
    bench.context.prompts.expectErrorContaining(QString());
    bench.context.prompts.expectCritical(failedText);
    click("cmdAdd");
    EXPECT_EQ(counts(), (QList<int>{2, 1, 2, 2, 2, 2}));

    form.VokabelID = a;
    add(u"three"_s);
    EXPECT_EQ(items("lstSynonyme"), (QStringList{u"one"_s, u"lost"_s, u"three"_s}));
    choose(1);
    bench.context.prompts.expectCritical(failedText);
    click("cmdDelete");
    EXPECT_EQ(bench.storedSynonyms(), (QStringList{a + u"/1 |one||"_s, a + u"/1 |three||"_s}));
    choose(1);
    click("cmdDelete");
    EXPECT_EQ(bench.storedSynonyms(), QStringList{a + u"/1 |one||"_s});
}

TEST_F(Editor, ErrorWhileLoadingIsReportedAndClosesTheLowerHalf) {
    show();
    bench.session().RecordsetSynonyme.Close();
    bench.context.prompts.expectErrorContaining(QString());
    click("cmdSynonyme");
    EXPECT_FALSE(lowerHalfIsOpen());
}

// Texts.

TEST_F(Editor, Texts) {
    EXPECT_EQ(form.objectName(), u"frmVokabelEingabe"_s);
    EXPECT_EQ(form.windowTitle(), u"Enter Vocabulary"_s);
    EXPECT_EQ(child<QLabel>(form, "lblMain").text(), u"Main Part"_s);
    EXPECT_EQ(button("cmdCancel").text(), u"Cancel"_s);
}

TEST_F(GermanEditor, Texts) {
    EXPECT_EQ(form.windowTitle(), u"Vokabel eingeben"_s);
    showWithSynonyms();
    EXPECT_EQ(button("cmdSynonyme").text(), u"Synonyme ausblenden"_s);
    EXPECT_EQ(button("cmdSynonyme").toolTip(), u"Blendet die Synonyme aus"_s);
    click("cmdSynonyme");
    EXPECT_EQ(button("cmdSynonyme").text(), u"Synonyme bearbeiten"_s);
    EXPECT_EQ(button("cmdSynonyme").toolTip(), u"Zeigt die Synonyme an"_s);
    click("cmdSynonyme");
    form.VokabelID = u"99999"_s;
    expectSynonym(u"x"_s);
    bench.context.prompts.expectErrorContaining(QString());
    bench.context.prompts.expectCritical(u"Fehler bei Bearbeitung der Synonyme!"_s);
    click("cmdAdd");
}
