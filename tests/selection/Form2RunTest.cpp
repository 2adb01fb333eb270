#include "SelectionBench.h"

#include "DBEngine.h"
#include "Globals.h"

#include <QApplication>
#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace lingomat;

namespace {

using Entry = SelectionBench::Entry;

/// Five entries, each different in everything that can be filtered.
QList<Entry> fiveEntries() {
    return {
        {u"Haus"_s,
         {{u"Lang1_Prefix"_s, u"das"_s},
          {u"Lang1_Suffix"_s, u"Häuser"_s},
          {u"Lang1_Kommentar"_s, u"Gebäude"_s},
          {u"Lang2_Main"_s, u"house"_s},
          {u"Lang2_Prefix"_s, u"the"_s},
          {u"Wortart"_s, u"noun"_s},
          {u"Quelle"_s, u"Book"_s},
          {u"Score"_s, 1},
          {u"Eingabedatum"_s, u"20010105"_s},
          {u"Aenderungsdatum"_s, u"20010110"_s},
          {u"Beispielsatz"_s, u"Mein Haus ist rot."_s}},
         {u"Sport"_s, u"Reisen"_s},
         {u"Plural"_s},
         {u"formal"_s}},
        {u"gehen"_s,
         {{u"Lang2_Main"_s, u"go"_s},
          {u"Lang2_Prefix"_s, u"to"_s},
          {u"Wortart"_s, u"verb"_s},
          {u"Quelle"_s, u"Radio"_s},
          {u"Score"_s, 3},
          {u"Eingabedatum"_s, u"20010205"_s},
          {u"Aenderungsdatum"_s, u"20010210"_s},
          {u"Zusatzinfo"_s, u"irregular"_s}},
         {u"Reisen"_s}},
        {u"rot"_s,
         {{u"Lang2_Main"_s, u"red"_s},
          {u"Wortart"_s, u"adjective"_s},
          {u"Quelle"_s, u"Book"_s},
          {u"Score"_s, 4},
          {u"Eingabedatum"_s, u"20010305"_s},
          {u"Aenderungsdatum"_s, u"20010310"_s}},
         {},
         {u"Singular"_s, u"Plural"_s}},
        {u"Hausboot"_s,
         {{u"Lang2_Main"_s, u"houseboat"_s},
          {u"Wortart"_s, u"noun"_s},
          {u"Quelle"_s, u"Film"_s},
          {u"Score"_s, 6},
          {u"Eingabedatum"_s, u"20010405"_s},
          {u"Aenderungsdatum"_s, u"20010410"_s}},
         {u"Sport"_s},
         {},
         {u"formal"_s, u"vulgar"_s}},
        {u"Idee"_s, {{u"Lang2_Main"_s, u"idea"_s}, {u"Score"_s, 5}, {u"Eingabedatum"_s, u"20010505"_s}}},
    };
}

struct SelectionRun : testing::Test {
    SelectionBench bench;
    ScriptedPrompts& prompts = bench.context.prompts;

    void SetUp() override {
        bench.openDatabase();
        QStringList ids;
        for (const Entry& entry : fiveEntries())
            ids.append(bench.add(entry));
        bench.addReference(ids[0], ids[3], u"See also"_s);
        bench.addReference(ids[3], ids[1], u"Opposite of"_s);
        bench.load();
    }

    QStringList runAndList() {
        bench.run();
        return bench.listed();
    }

    [[nodiscard]] static bool cursorIsBusy() { return QApplication::overrideCursor() != nullptr; }

    void TearDown() override {
        while (QApplication::overrideCursor())
            QApplication::restoreOverrideCursor();
    }
};

QStringList sorted(QStringList texts) {
    texts.sort();
    return texts;
}

} // namespace

TEST_F(SelectionRun, WithEveryFilterAtItsDefaultListsAllEntries) {
    EXPECT_EQ(runAndList(), (QStringList{u"Haus"_s, u"gehen"_s, u"rot"_s, u"Hausboot"_s, u"Idee"_s}));
    EXPECT_EQ(bench.statusText(), u"5 entries selected"_s);
    EXPECT_EQ(bench.list.windowTitle(), u"Vocab List - 5 entries"_s);
    EXPECT_EQ(bench.selection().RecordCount(), 5);
}

TEST_F(SelectionRun, FillsARowWithTheAttributesOfItsEntry) {
    bench.run();
    EXPECT_EQ(bench.cell(1, Liste::ColSprache1), u"das Haus Häuser (Gebäude)"_s);
    EXPECT_EQ(bench.cell(1, Liste::ColSprache2), u"the house"_s);
    EXPECT_EQ(bench.cell(1, Liste::ColBereich), u"Sport; Reisen;"_s);
    EXPECT_EQ(bench.cell(3, Liste::ColGrammatikalisch), u"Singular; Plural;"_s);
    EXPECT_EQ(bench.cell(4, Liste::ColFunktional), u"formal; vulgar;"_s);
    EXPECT_EQ(bench.cell(5, Liste::ColBereich), QString());
}

TEST_F(SelectionRun, LeavesEverythingReadyForTheTrainer) {
    bench.list.AnzahlGeaendert = 0;
    bench.list.MarkierteZeile = 3;
    QSignalSpy made(&bench.form, &Form2::selectionMade);
    bench.run();
    EXPECT_EQ(made.count(), 1);
    EXPECT_TRUE(bench.context.state.SelectionValid);
    EXPECT_EQ(bench.list.MarkierteZeile, 0);
    EXPECT_EQ(bench.list.MSFlexGrid1().Row(), 1);
    EXPECT_EQ(bench.list.MSFlexGrid1().Col(), 1);
    EXPECT_FALSE(bench.form.AuswahlGeaendert);
    EXPECT_FALSE(bench.context.progress.isVisible());
    EXPECT_EQ(bench.context.progress.status(), QString());
    EXPECT_EQ(bench.context.progress.windowTitle(), QString());
    EXPECT_FALSE(cursorIsBusy());
}

TEST_F(SelectionRun, RestartsTheTrainerOnTheNewRows) {
    bench.run();
    EXPECT_EQ(bench.trainer.AnzahlEintraege, 5);
    bench.trainer.Command2_Click();
    EXPECT_EQ(bench.trainer.Position, 1);
    bench.type("Lang1Main", u"Haus*"_s);
    bench.run();
    EXPECT_EQ(bench.trainer.AnzahlEintraege, 2);
    EXPECT_EQ(bench.trainer.Position, 0);
    bench.type("Lang1Main", u"nothing"_s);
    prompts.expectExclamation(u"There were no entries found.");
    bench.run();
    EXPECT_EQ(bench.trainer.AnzahlEintraege, 2) << "a run without a hit does not tell the Trainer";
}

TEST_F(SelectionRun, SetsSelectionValidBeforeItTellsTheMainWindow) {
    bool validWhenTold = false;
    QObject::connect(&bench.form, &Form2::selectionMade, &bench.form,
                     [&] { validWhenTold = bench.context.state.SelectionValid; });
    bench.run();
    EXPECT_TRUE(validWhenTold);
}

TEST_F(SelectionRun, PartsOfAnExpressionMustMatchWholeFields) {
    bench.type("Lang1Main", u"haus"_s);
    EXPECT_EQ(runAndList(), QStringList{u"Haus"_s});
    bench.type("Lang1Main", u"Haus*"_s);
    EXPECT_EQ(runAndList(), (QStringList{u"Haus"_s, u"Hausboot"_s}));
    bench.type("Lang1Prefix", u"das"_s);
    EXPECT_EQ(runAndList(), QStringList{u"Haus"_s});
}

TEST_F(SelectionRun, EachLanguageBoxFiltersItsOwnPart) {
    const QHash<const char*, std::pair<QString, QString>> cases{
        {"Lang1Prefix", {u"das"_s, u"Haus"_s}},    {"Lang1Main", {u"rot"_s, u"rot"_s}},
        {"Lang1Suffix", {u"Häuser"_s, u"Haus"_s}}, {"Lang1Kommentar", {u"Geb*"_s, u"Haus"_s}},
        {"Lang2Prefix", {u"to"_s, u"gehen"_s}},    {"Lang2Main", {u"red"_s, u"rot"_s}},
    };
    for (auto test = cases.cbegin(); test != cases.cend(); ++test) {
        bench.click("Command2");
        bench.type(test.key(), test.value().first);
        EXPECT_EQ(runAndList(), QStringList{test.value().second}) << test.key();
    }
    for (const char* box : {"Lang2Suffix", "Lang2Kommentar"}) {
        bench.click("Command2");
        bench.type(box, u"x"_s);
        prompts.expectExclamation(u"There were no entries found.");
        EXPECT_EQ(runAndList(), QStringList{}) << box;
    }
}

TEST_F(SelectionRun, ClosedGateDropsTheBoxesButKeepsTheirText) {
    bench.type("Lang1Main", u"Haus"_s);
    auto& gate = child<QCheckBox>(bench.form, "Lang1Check");
    EXPECT_TRUE(gate.isChecked());
    bench.run();
    gate.click();
    EXPECT_TRUE(bench.form.AuswahlGeaendert);
    EXPECT_EQ(runAndList().size(), 5);
    EXPECT_EQ(bench.text("Lang1Main"), u"Haus"_s);
    bench.click("Command2");
    EXPECT_FALSE(gate.isChecked()) << "clearing leaves the gates alone";
}

TEST_F(SelectionRun, ValuesOfOneListAreAlternatives) {
    bench.choose(u"Wortart"_s, {u"noun"_s, u"verb"_s});
    EXPECT_EQ(runAndList(), (QStringList{u"Haus"_s, u"gehen"_s, u"Hausboot"_s}));
}

TEST_F(SelectionRun, ListsAreConjoined) {
    bench.choose(u"Wortart"_s, {u"noun"_s});
    bench.choose(u"Bereich"_s, {u"Sport"_s});
    bench.choose(u"Funktional"_s, {u"vulgar"_s});
    EXPECT_EQ(runAndList(), QStringList{u"Hausboot"_s});
}

TEST_F(SelectionRun, EachListFiltersByItsOwnValues) {
    struct Case {
        const char16_t* kind;
        const char16_t* value;
        QStringList found;
    };
    for (const auto& [kind, value, found] : {
             Case{u"Quelle", u"Book", {u"Haus"_s, u"rot"_s}},
             Case{u"Bereich", u"Reisen", {u"Haus"_s, u"gehen"_s}},
             Case{u"Wortart", u"adjective", {u"rot"_s}},
             Case{u"Grammatikalisch", u"Singular", {u"rot"_s}},
             Case{u"Funktional", u"formal", {u"Haus"_s, u"Hausboot"_s}},
         }) {
        bench.click("Command2");
        bench.choose(QString::fromUtf16(kind), {QString::fromUtf16(value)});
        EXPECT_EQ(sorted(runAndList()), sorted(found)) << QString::fromUtf16(kind).toStdString();
    }
}

TEST_F(SelectionRun, ReferenceFilterSelectsWhereAReferenceStarts) {
    bench.choose(u"Referenzen"_s, {u"See also"_s});
    EXPECT_EQ(runAndList(), QStringList{u"Haus"_s}) << "not Hausboot, the reference's target";
    for (const char* option : {"chkRefOption1", "chkRefOption2"}) {
        child<QCheckBox>(bench.form, option).click();
        EXPECT_EQ(runAndList(), QStringList{u"Haus"_s}) << "nothing reads the two boxes";
    }
}

TEST_F(SelectionRun, EntryThatMatchesTwoChosenAreasIsListedOnce) {
    bench.choose(u"Bereich"_s, {u"Reisen"_s, u"Sport"_s});
    // A third area keeps the left list from being empty.
    EXPECT_EQ(runAndList().size(), 5) << "both areas chosen: nothing is left, so nothing restricts";

    bench.context.values.AddToComboBoxes(u"Kunst"_s, u"Bereich"_s);
    bench.click("Command2");
    bench.choose(u"Bereich"_s, {u"Reisen"_s, u"Sport"_s});
    EXPECT_EQ(sorted(runAndList()), (QStringList{u"Haus"_s, u"Hausboot"_s, u"gehen"_s}));
    EXPECT_EQ(bench.statusText(), u"3 entries selected"_s);
}

TEST_F(SelectionRun, AllItemsMovedToTheRightRestrictNothing) {
    bench.selectTab(1);
    bench.click("cmdAddAll");
    EXPECT_EQ(bench.items(u"lstQuelleLinks"_s), QStringList{});
    EXPECT_EQ(runAndList().size(), 5) << "Idee has no source, but is found";
}

TEST_F(SelectionRun, SampleAndInformationFilterByPatterns) {
    bench.type("Beispielsatz", u"*Haus*"_s);
    EXPECT_EQ(runAndList(), QStringList{u"Haus"_s});
    bench.click("Command2");
    bench.type("Zusatzinfo", u"irr*"_s);
    EXPECT_EQ(runAndList(), QStringList{u"gehen"_s});
}

TEST_F(SelectionRun, ScoreRangeIsInclusive) {
    bench.type("MaxScore", u"4"_s);
    bench.type("MinScore", u"3"_s);
    EXPECT_EQ(runAndList(), (QStringList{u"gehen"_s, u"rot"_s}));
}

TEST_F(SelectionRun, DateRangesAreInclusive) {
    bench.type("txtEingabeVonMonat", u"02"_s);
    EXPECT_EQ(runAndList(), (QStringList{u"gehen"_s, u"rot"_s, u"Hausboot"_s, u"Idee"_s}));
    bench.click("Command2");
    bench.type("txtAenderungBisJahr", u"2001"_s);
    bench.type("txtAenderungBisTag", u"10"_s); // 10.03.2001
    EXPECT_EQ(sorted(runAndList()), (QStringList{u"Haus"_s, u"Idee"_s, u"gehen"_s, u"rot"_s}));
}

TEST_F(SelectionRun, WithoutAHitEmptiesTheListButNotTheTrainer) {
    bench.run();
    QSignalSpy made(&bench.form, &Form2::selectionMade);
    bench.type("Lang1Main", u"nothing"_s);
    prompts.expectExclamation(u"There were no entries found.");
    bench.run();
    EXPECT_EQ(bench.listed(), QStringList{});
    EXPECT_EQ(bench.statusText(), u"0 entries selected"_s);
    EXPECT_TRUE(bench.form.AuswahlGeaendert);
    EXPECT_TRUE(bench.context.state.SelectionValid) << "keeps its value";
    EXPECT_EQ(made.count(), 0);
    EXPECT_FALSE(bench.context.progress.isVisible());
    EXPECT_FALSE(cursorIsBusy());
}

TEST(SelectionRunInGerman, SpeaksGerman) {
    SelectionBench bench(u"De"_s);
    bench.loadWith(fiveEntries());
    EXPECT_EQ(bench.statusText(), u"0 Vokabeln ausgewählt"_s);
    bench.run();
    EXPECT_EQ(bench.statusText(), u"5 Vokabeln ausgewählt"_s);
    bench.type("Lang1Main", u"x"_s);
    bench.context.prompts.expectExclamation(u"Es wurden keine Einträge gefunden.");
    bench.run();
    EXPECT_EQ(bench.statusText(), u"0 Vokabeln ausgewählt"_s);
    bench.list.AnzahlNeu = 1;
    bench.context.prompts.expectYesNo(u"Es wurden noch nicht alle Änderungen gesichert! Wirklich fortsetzen?",
                                      false);
    bench.run();
    QApplication::restoreOverrideCursor();
}

TEST_F(SelectionRun, AsksBeforeUnsavedRowsAreDropped) {
    for (qint16 Liste::*counter : {&Liste::AnzahlGeaendert, &Liste::AnzahlGeloescht, &Liste::AnzahlNeu}) {
        bench.list.*counter = 1;
        prompts.expectYesNo(u"Not all changes have been saved! Do you really want to proceed?", true);
        bench.run();
        EXPECT_EQ(bench.list.*counter, 0);
        EXPECT_EQ(bench.listed().size(), 5);
    }
}

TEST_F(SelectionRun, AnswerNoShowsTheListAndLeavesTheCursorBusy) {
    bench.run();
    bench.list.AnzahlGeaendert = 2;
    bench.type("Lang1Main", u"rot"_s);
    prompts.expectYesNo(u"Not all changes have been saved! Do you really want to proceed?", false);
    bench.run();
    EXPECT_TRUE(bench.list.isVisible());
    EXPECT_EQ(bench.listed().size(), 5);
    EXPECT_EQ(bench.list.AnzahlGeaendert, 2);
    EXPECT_TRUE(bench.form.AuswahlGeaendert);
    EXPECT_TRUE(cursorIsBusy());

    prompts.expectYesNo(u"Not all changes have been saved! Do you really want to proceed?", true);
    bench.run();
    EXPECT_EQ(bench.listed(), QStringList{u"rot"_s});
    EXPECT_FALSE(cursorIsBusy()) << "the next run restores it";
}

TEST_F(SelectionRun, MalformedCriterionIsReportedAndTheNextRunWorks) {
    bench.run();
    bench.type("Lang1Main", u"l'eau"_s);
    prompts.expectErrorContaining(u"l'eau"_s);
    bench.run();
    EXPECT_FALSE(bench.context.progress.isVisible());
    EXPECT_FALSE(cursorIsBusy());
    EXPECT_TRUE(bench.form.AuswahlGeaendert);
    bench.type("Lang1Main", u"rot"_s);
    EXPECT_EQ(runAndList(), QStringList{u"rot"_s});
}

TEST_F(SelectionRun, MalformedStatementIsReportedAfterTheOldSelectionWasClosed) {
    bench.context.values.AddToComboBoxes(u"l'eau"_s, u"Bereich"_s);
    bench.click("Command2");
    bench.choose(u"Bereich"_s, {u"l'eau"_s});
    prompts.expectErrorContaining(u"l'eau"_s);
    bench.run();
    EXPECT_FALSE(bench.selection().isOpen());
    EXPECT_FALSE(cursorIsBusy());
    prompts.expectErrorContaining(u"l'eau"_s);
    bench.run();
    bench.click("Command2");
    EXPECT_EQ(runAndList().size(), 5);
}

TEST_F(SelectionRun, RowThatCannotBeReadCostsOneMessageAndTheRestIsListed) {
    CDBHandler& session = bench.context.state.DBHandler;
    session.RecordsetVokabular.FindFirst(u"Lang1_Main='gehen'"_s);
    session.RecordsetVokabular.Edit();
    session.RecordsetVokabular.setField(u"Lang2_Main"_s, dao::Value());
    session.RecordsetVokabular.Update();
    prompts.expectErrorContaining(u"Null"_s);
    bench.run();
    EXPECT_EQ(bench.listed().size(), 5);
    EXPECT_EQ(bench.listed().last(), u"Idee"_s);
    EXPECT_EQ(bench.statusText(), u"5 entries selected"_s);
    EXPECT_TRUE(bench.context.state.SelectionValid);
}

TEST_F(SelectionRun, OkRunsOnlyAfterAChangeAndCloses) {
    bench.form.show();
    bench.click("Command1"); // fresh from the start: runs
    EXPECT_FALSE(bench.form.isVisible());
    EXPECT_EQ(bench.listed().size(), 5);

    bench.list.initialisiereListe();
    bench.form.show();
    bench.click("Command1");
    EXPECT_FALSE(bench.form.isVisible());
    EXPECT_EQ(bench.listed(), QStringList{}) << "nothing changed, so nothing ran";
}

TEST_F(SelectionRun, ListButtonsAreNoChange) {
    bench.run();
    bench.choose(u"Wortart"_s, {u"verb"_s});
    bench.click("cmdRemoveAll");
    bench.click("cmdAddAll");
    bench.choose(u"Quelle"_s, {u"Book"_s});
    bench.click("cmdRemove");
    EXPECT_FALSE(bench.form.AuswahlGeaendert);
    bench.list.initialisiereListe();
    bench.click("Command1");
    EXPECT_EQ(bench.listed(), QStringList{});
    bench.run();
    EXPECT_EQ(bench.listed().size(), 5) << "Apply always runs";
}

TEST_F(SelectionRun, EveryFilterBoxMarksTheSelectionAsChanged) {
    bench.run();
    for (const char* box :
         {"Lang1Prefix", "Lang1Main", "Lang1Suffix", "Lang1Kommentar", "Lang2Prefix", "Lang2Main",
          "Lang2Suffix", "Lang2Kommentar", "Beispielsatz", "Zusatzinfo", "txtEingabeVonTag",
          "txtEingabeVonMonat", "txtEingabeBisTag", "txtEingabeBisMonat", "txtAenderungVonTag",
          "txtAenderungBisTag", "MinScore", "MaxScore"}) {
        bench.form.AuswahlGeaendert = false;
        bench.type(box, u"2"_s);
        EXPECT_TRUE(bench.form.AuswahlGeaendert) << box;
    }
}

TEST_F(SelectionRun, MenuMirrorsTheButtons) {
    bench.form.show();
    bench.trigger("mnSuchen");
    EXPECT_EQ(bench.listed().size(), 5);
    bench.type("Lang1Main", u"rot"_s);
    bench.trigger("mnSelectAll");
    EXPECT_EQ(bench.text("Lang1Main"), QString());
    bench.trigger("mnClose");
    EXPECT_FALSE(bench.form.isVisible());
}

TEST_F(SelectionRun, ReadsTheFileAsAnotherConnectionSeesIt) {
    bench.run();
    const dao::Database other = dao::DBEngine::OpenDatabase(bench.context.state.CurrentDBPath);
    const dao::Recordset rows = other.OpenRecordset(u"SELECT * FROM Vokabular"_s);
    EXPECT_EQ(rows.RecordCount(), 5) << "a run changes nothing";
}

TEST(SelectionRunWithoutADatabase, IsReported) {
    SelectionBench bench;
    bench.load();
    bench.context.prompts.expectErrorContaining(u"Object variable"_s);
    bench.run();
    EXPECT_FALSE(bench.context.progress.isVisible());
}

TEST(SelectionRunOnAnEmptyDatabase, FindsNothing) {
    SelectionBench bench;
    bench.loadWith({});
    bench.context.prompts.expectExclamation(u"There were no entries found.");
    bench.run();
    EXPECT_EQ(bench.statusText(), u"0 entries selected"_s);
}

TEST(AttributesOfAnEntry, AreEmptyWithoutLinks) {
    SelectionBench bench;
    bench.openDatabase();
    const QString id = bench.add({.main1 = u"x"_s});
    EXPECT_EQ(bench.form.AllGrammatikalisches(id), QString());
    EXPECT_EQ(bench.form.AllFunktionales(id), QString());
    EXPECT_EQ(Form2::QueryStringForExpression(u"x"_s), QString());
}

TEST(AttributesOfAnEntry, AskForFieldsThatTheLinksDoNotHave) {
    SelectionBench bench;
    bench.openDatabase();
    const QString id = bench.add({.main1 = u"x"_s, .grammatikalisch = {u"Plural"_s}});
    bench.context.prompts.expectErrorContaining(u"IDG"_s);
    EXPECT_EQ(bench.form.AllGrammatikalisches(id), QString());
}
