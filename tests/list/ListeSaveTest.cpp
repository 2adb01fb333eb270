// The record of changes, and what a save makes of it.

#include "StoredList.h"

#include "Globals.h"
#include "ListSave.h"

#include <QLabel>
#include <QProgressBar>
#include <QSignalSpy>

using namespace Qt::StringLiterals;

namespace lingomat {
namespace {

using Column = ListColumnNumbers;

TEST(ListeSave, ChangeInANewRowIsNotRecordedAndTheRowIsAddedOnceWithBothDates) {
    StoredList bench;
    bench.fill({u"one"_s});
    const int row = bench.addNew(Column::ColHaupt1, u"two"_s);
    bench.change(row, Column::ColQuelle, u"book"_s);
    EXPECT_EQ(bench.list.AnzahlGeaendert, 0);
    EXPECT_EQ(bench.list.AnzahlNeu, 1);
    bench.save();
    EXPECT_EQ(
        bench.stored("SELECT Lang1_Main, Quelle, Eingabedatum, Aenderungsdatum FROM Vokabular WHERE ID > 1"),
        QStringList{u"two | book | 20020301 | 20020301"_s});
    EXPECT_EQ(bench.cell(row, Column::ColEingabedatum), u"01.03.02"_s);
    EXPECT_EQ(bench.cell(row, Column::ColAenderungsdatum), u"01.03.02"_s);
    EXPECT_EQ(bench.cell(row, Column::ColEingabeKey), u"20020301"_s);
    EXPECT_EQ(bench.cell(row, Column::ColAenderungKey), u"20020301"_s);
    EXPECT_EQ(bench.cell(row, Column::ColSchluessel), bench.file().cell(u"SELECT max(ID) FROM Vokabular"_s));
    bench.save();
    EXPECT_EQ(bench.storedMains(), (QStringList{u"one"_s, u"two"_s}));
}

TEST(ListeSave, RowThatIsChangedTwiceIsRecordedOnce) {
    StoredList bench;
    bench.fill({u"one"_s, u"two"_s});
    bench.change(2, Column::ColQuelle, u"book"_s);
    bench.change(2, Column::ColHaupt1, u"deux"_s);
    EXPECT_EQ(bench.list.AnzahlGeaendert, 1);
    bench.save();
    EXPECT_EQ(
        bench.stored("SELECT Lang1_Main, Quelle, Aenderungsdatum, Eingabedatum FROM Vokabular ORDER BY ID"),
        (QStringList{u"one | NULL | NULL | NULL"_s, u"deux | book | 20020301 | NULL"_s}))
        << "only the changed row, and not its date of entry";
    EXPECT_EQ(bench.list.AnzahlGeaendert, 0);
    bench.change(2, Column::ColHaupt1, u"dos"_s);
    EXPECT_EQ(bench.list.AnzahlGeaendert, 1) << "after a save it can be changed anew";
}

TEST(ListeSave, RowThatIsChangedAndDeletedIsOnlyDeletedAndCountsOnce) {
    StoredList bench;
    bench.fill({u"one"_s, u"two"_s, u"three"_s});
    bench.change(2, Column::ColQuelle, u"book"_s);
    bench.remove(2);
    EXPECT_EQ(bench.list.AnzahlGeaendert, 1);
    EXPECT_EQ(bench.list.AnzahlGeloescht, 1);
    bench.save();
    EXPECT_EQ(child<QProgressBar>(bench.list, "ProgressBar1").maximum(), 1);
    EXPECT_EQ(bench.storedMains(), (QStringList{u"one"_s, u"three"_s}));
    EXPECT_EQ(bench.list.pendingChanges(), 0);
}

TEST(ListeSave, NewRowThatIsDeletedAgainWritesNothing) {
    StoredList bench;
    bench.fill({u"one"_s});
    bench.addNew(Column::ColHaupt1, u"two"_s);
    bench.list.Command4_Click();
    EXPECT_EQ(bench.list.AnzahlNeu, 0);
    EXPECT_EQ(bench.list.AnzahlGeloescht, 0);
    const QString version = bench.file().cell(u"SELECT seq FROM sqlite_sequence WHERE name = 'Vokabular'"_s);
    bench.save();
    EXPECT_EQ(bench.storedMains(), QStringList{u"one"_s});
    EXPECT_EQ(bench.file().cell(u"SELECT seq FROM sqlite_sequence WHERE name = 'Vokabular'"_s), version);
}

TEST(ListeSave, NewRowsAreFoundAfterASort) {
    StoredList bench;
    bench.fill({u"m"_s});
    bench.addNew(Column::ColHaupt1, u"a"_s);
    bench.grid.setCol(Column::ColHaupt1);
    bench.grid.Sort();
    bench.addNew(Column::ColHaupt1, u"z"_s);
    ASSERT_EQ(bench.keys(), (QStringList{u"*"_s, u"1"_s, u"*"_s}));
    bench.save();
    EXPECT_EQ(bench.storedMains(), (QStringList{u"m"_s, u"z"_s, u"a"_s})) << "from the last row up";
    EXPECT_EQ(bench.keys(), (QStringList{u"3"_s, u"1"_s, u"2"_s}));
}

TEST(ListeSave, ChangedRowsAreFoundAfterASort) {
    StoredList bench;
    bench.fill({u"a"_s, u"b"_s, u"c"_s});
    bench.change(1, Column::ColHaupt1, u"z"_s);
    bench.grid.setCol(Column::ColHaupt1);
    bench.grid.Sort();
    ASSERT_EQ(bench.keys(), (QStringList{u"2"_s, u"3"_s, u"1"_s}));
    bench.save();
    EXPECT_EQ(bench.storedMains(), (QStringList{u"z"_s, u"b"_s, u"c"_s}));
}

class MarkOfAMissingValue : public testing::TestWithParam<const char*> {};

TEST_P(MarkOfAMissingValue, IsStoredAsAnEmptyText) {
    StoredList bench(QString::fromLatin1(GetParam()));
    bench.fill({u"one"_s});
    for (const int column : {Column::ColWortart, Column::ColBeispielsatz, Column::ColZusatzinfo,
                             Column::ColQuelle, Column::ColBereich})
        bench.change(1, column, KeinEintrag);
    bench.save();
    EXPECT_EQ(bench.stored("SELECT Wortart, Beispielsatz, Zusatzinfo, Quelle FROM Vokabular"),
              QStringList{u" |  |  | "_s});
    EXPECT_EQ(bench.stored("SELECT * FROM Bereiche"), QStringList());
}

INSTANTIATE_TEST_SUITE_P(InBothLanguages, MarkOfAMissingValue, testing::Values("En", "De"));

TEST(ListeSave, EveryFieldOfARowIsWritten) {
    StoredList bench;
    bench.fill({u"one"_s});
    const QStringList parts{u"p1"_s, u"m1"_s, u"s1"_s, u"k1"_s, u"p2"_s, u"m2"_s, u"s2"_s, u"k2"_s};
    for (int i = 0; i < 8; ++i)
        bench.change(1, Column::ColPrefix1 + i, parts[i]);
    bench.change(1, Column::ColWortart, u"noun"_s);
    bench.change(1, Column::ColBeispielsatz, u"phrase"_s);
    bench.change(1, Column::ColZusatzinfo, u"info"_s);
    bench.change(1, Column::ColQuelle, u"book"_s);
    bench.change(1, Column::ColGrammatikalisch, u"plural;weak;"_s);
    bench.change(1, Column::ColFunktional, u"formal;"_s);
    bench.change(1, Column::ColBereich, u"home;work;"_s);
    bench.change(1, Column::ColScore, u"3"_s);
    bench.save();
    EXPECT_EQ(bench.stored("SELECT Lang1_Prefix, Lang1_Main, Lang1_Suffix, Lang1_Kommentar, Lang2_Prefix, "
                           "Lang2_Main, Lang2_Suffix, Lang2_Kommentar FROM Vokabular"),
              QStringList{parts.join(u" | "_s)});
    EXPECT_EQ(bench.stored("SELECT Wortart, Beispielsatz, Zusatzinfo, Quelle FROM Vokabular"),
              QStringList{u"noun | phrase | info | book"_s});
    EXPECT_EQ(bench.stored("SELECT Score FROM Vokabular"), QStringList{u"6"_s})
        << "the score is the Trainer's";
    EXPECT_EQ(bench.stored("SELECT IDV, Attribut_Text FROM GrammatikalischeAttribute_Zwischen z JOIN "
                           "GrammatikalischeAttribute ON z.ID = IDA ORDER BY 2"),
              (QStringList{u"1 | plural"_s, u"1 | weak"_s}));
    EXPECT_EQ(bench.stored("SELECT IDV, Attribut_Text FROM FunktionaleAttribute_Zwischen z JOIN "
                           "FunktionaleAttribute ON z.ID = IDA"),
              QStringList{u"1 | formal"_s});
    EXPECT_EQ(bench.stored("SELECT IDV, Bereich_Text FROM Bereiche_Zwischen z JOIN Bereiche b ON z.ID = b.ID "
                           "ORDER BY 2"),
              (QStringList{u"1 | home"_s, u"1 | work"_s}));
}

TEST(ListeSave, AttributesOfANewRowAreLinkedToIt) {
    StoredList bench;
    bench.fill({u"one"_s});
    const int row = bench.addNew(Column::ColHaupt1, u"two"_s);
    bench.grid.setTextMatrix(row, Column::ColBereich, u"home;"_s);
    bench.grid.setTextMatrix(row, Column::ColGrammatikalisch, u"plural;"_s);
    bench.grid.setTextMatrix(row, Column::ColFunktional, u"formal;"_s);
    bench.save();
    EXPECT_EQ(bench.stored("SELECT v.Lang1_Main, b.Bereich_Text FROM Bereiche_Zwischen z JOIN Bereiche b ON "
                           "z.ID = b.ID JOIN Vokabular v ON v.ID = IDV"),
              QStringList{u"two | home"_s});
    EXPECT_EQ(bench.stored("SELECT IDV FROM GrammatikalischeAttribute_Zwischen"), QStringList{u"2"_s});
    EXPECT_EQ(bench.stored("SELECT IDV FROM FunktionaleAttribute_Zwischen"), QStringList{u"2"_s});
}

TEST(ListeSave, DeletesFirstThenCleansUpThenChangesThenAdds) {
    StoredList bench;
    bench.fill({u"one"_s, u"two"_s});
    bench.change(1, Column::ColBereich, u"home;"_s);
    bench.save();
    ASSERT_EQ(bench.stored("SELECT ID, Bereich_Text FROM Bereiche"), QStringList{u"1 | home"_s});
    bench.addNew(Column::ColBereich, u"last;"_s);
    bench.change(2, Column::ColBereich, u"home;"_s);
    bench.remove(1);
    bench.save();
    EXPECT_EQ(bench.stored("SELECT ID, Bereich_Text FROM Bereiche ORDER BY ID"),
              (QStringList{u"2 | home"_s, u"3 | last"_s}))
        << "the area had vanished before it was needed again";
}

TEST(ListeSave, DeletedEntryTakesItsLinksReferencesAndSynonymsAlong) {
    StoredList bench;
    bench.fill({u"one"_s, u"two"_s});
    bench.change(1, Column::ColBereich, u"home;"_s);
    bench.save();
    bench.file().run(
        u"INSERT INTO Referenzen(von, nach, Typ, SubTyp) VALUES(1, 2, 'a', 'b'), (2, 1, 'a', 'b');"
        "INSERT INTO Synonyme(VID, Sprache) VALUES(1, 1), (2, 1)"_s);
    CDBHandler& session = bench.context.state.DBHandler;
    session.RecordsetReferenzen.Requery();
    session.RecordsetSynonyme.Requery();
    bench.remove(1);
    EXPECT_EQ(bench.storedMains().size(), 2) << "nothing is written before the save";
    bench.save();
    EXPECT_EQ(bench.storedMains(), QStringList{u"two"_s});
    for (const char* table : {"Referenzen", "Bereiche", "Bereiche_Zwischen"})
        EXPECT_EQ(bench.file().cell(u"SELECT count(*) FROM "_s + QString::fromLatin1(table)), u"0"_s)
            << table;
    EXPECT_EQ(bench.stored("SELECT VID FROM Synonyme"), QStringList{u"2"_s});
}

TEST(ListeSave, LeavesTheCurrentCellAndTheSelection) {
    StoredList bench;
    bench.fill({u"one"_s, u"two"_s, u"three"_s});
    bench.change(3, Column::ColQuelle, u"book"_s);
    bench.addNew(Column::ColHaupt1, u"four"_s);
    bench.grid.setRow(2);
    bench.grid.setCol(Column::ColQuelle);
    bench.grid.setRowSel(3);
    bench.save();
    EXPECT_EQ(bench.grid.Row(), 2);
    EXPECT_EQ(bench.grid.Col(), Column::ColQuelle);
    EXPECT_EQ(bench.grid.RowSel(), 3);
}

TEST(ListeSave, ShowsItsProgressOnlyMeanwhile) {
    for (const QString& language : {u"En"_s, u"De"_s}) {
        StoredList bench(language);
        bench.fill({u"one"_s, u"two"_s});
        bench.list.show();
        const auto& bar = child<QProgressBar>(bench.list, "ProgressBar1");
        const auto& label = child<QLabel>(bench.list, "lblProgress");
        EXPECT_FALSE(bar.isVisible());
        QList<int> values;
        QObject::connect(&bar, &QProgressBar::valueChanged, &bench.list, [&](int value) {
            if (!bar.isVisible())
                return;
            values << value;
            EXPECT_TRUE(label.isVisible());
            EXPECT_EQ(label.text(), language == u"En"_s ? u"Changes are being saved"_s
                                                        : u"Änderungen werden zurückgeschrieben"_s);
        });
        bench.change(2, Column::ColQuelle, u"book"_s);
        bench.remove(1);
        bench.addNew(Column::ColHaupt1, u"three"_s);
        bench.addNew(Column::ColHaupt1, u"four"_s);
        bench.save();
        EXPECT_EQ(bar.maximum(), 4);
        EXPECT_EQ(values, (QList<int>{1, 2, 3})) << "new rows count what was added before them";
        EXPECT_FALSE(bar.isVisible());
        EXPECT_FALSE(label.isVisible());
    }
}

TEST(ListeSave, WithNothingToDoChangesNothing) {
    StoredList bench;
    bench.fill({u"one"_s});
    const QString title = bench.list.windowTitle();
    bench.context.state.DBHandler.Database.Close();
    QSignalSpy changed(&bench.list, &Liste::stateChanged);
    bench.save();
    EXPECT_EQ(bench.list.pendingChanges(), 0);
    EXPECT_FALSE(bench.button("Command2").isEnabled());
    EXPECT_EQ(bench.list.windowTitle(), title);
    EXPECT_EQ(changed.count(), 1);
}

TEST(ListeSave, TellsWhetherTheDatabaseIsEmpty) {
    StoredList bench;
    bench.fill({u"one"_s});
    bench.context.state.DBIsEmpty = true;
    bench.change(1, Column::ColQuelle, u"book"_s);
    bench.save();
    EXPECT_FALSE(bench.context.state.DBIsEmpty);
    bench.remove(1);
    bench.save();
    EXPECT_TRUE(bench.context.state.DBIsEmpty);
}

TEST(ListSave, AttributesOfTheCurrentEntryAreReplacedKindByKind) {
    StoredList bench;
    bench.fill({u"one"_s, u"two"_s});
    ListSave save(bench.context.forms, bench.grid);
    ASSERT_EQ(bench.list.RowPos_To_RecPos(2), 2);
    save.SchreibeGrammatikalischeAttributeFromGridToDB(u"weak;plural;tail"_s);
    save.SchreibeFunktionaleAttributeFromGridToDB(u"formal;"_s);
    save.SchreibeGrammatikalischeAttributeFromGridToDB(u"plural;"_s);
    EXPECT_TRUE(save.SchreibeFunktionalesToDB(u"vulgar"_s));
    EXPECT_EQ(bench.stored("SELECT IDV, Attribut_Text FROM GrammatikalischeAttribute_Zwischen z JOIN "
                           "GrammatikalischeAttribute ON z.ID = IDA"),
              QStringList{u"2 | plural"_s});
    EXPECT_EQ(bench.stored("SELECT IDV, Attribut_Text FROM FunktionaleAttribute_Zwischen z JOIN "
                           "FunktionaleAttribute ON z.ID = IDA ORDER BY 2"),
              (QStringList{u"2 | formal"_s, u"2 | vulgar"_s}));
    EXPECT_EQ(bench.stored("SELECT Attribut_Text FROM GrammatikalischeAttribute ORDER BY 1"),
              (QStringList{u"plural"_s, u"weak"_s}))
        << "only the clean-up takes values out";

    bench.change(2, Column::ColBereich, u"home;"_s);
    bench.save();
    ASSERT_EQ(bench.list.RowPos_To_RecPos(2), 2);
    EXPECT_TRUE(save.EntferneAllBereicheForCurrent());
    EXPECT_TRUE(save.EntferneAllGrammatischesForCurrent());
    EXPECT_TRUE(save.EntferneAllFunktionalesForCurrent());
    for (const char* table :
         {"Bereiche_Zwischen", "GrammatikalischeAttribute_Zwischen", "FunktionaleAttribute_Zwischen"})
        EXPECT_EQ(bench.file().cell(u"SELECT count(*) FROM "_s + QString::fromLatin1(table)), u"0"_s)
            << table;
    bench.context.prompts.expectErrorContaining(u"l'eau"_s);
    EXPECT_FALSE(save.SchreibeGrammatikalischesToDB(u"l'eau"_s));
}

TEST(ListSave, ResultsTellTheKeyOrThatThereWasNone) {
    StoredList bench;
    bench.fill({u"one"_s, u"two"_s});
    ListSave save(bench.context.forms, bench.grid);
    EXPECT_EQ(save.UpdateOneRow(2), 2);
    EXPECT_EQ(save.DeleteOneRow(1), 1);
    EXPECT_EQ(save.DeleteOneRow(1), 0) << "gone already";
    EXPECT_EQ(save.DeleteOneRow(-1), 0);
    bench.context.prompts.expectError(u"No current record."_s);
    EXPECT_EQ(save.UpdateOneRow(1), 0);
}

TEST(ListeChanges, KeyOfARowIsThatOfItsRecord) {
    StoredList bench;
    bench.fill({u"one"_s, u"two"_s});
    bench.grid.setRow(1);
    bench.grid.setCol(Column::ColQuelle);
    EXPECT_EQ(bench.list.RowPos_To_RecPos(2), 2);
    EXPECT_EQ(bench.context.state.DBHandler.RecordsetVokabular.field(u"Lang1_Main"_s).toText(), u"two"_s);
    EXPECT_EQ(bench.grid.Row(), 1);
    EXPECT_EQ(bench.grid.Col(), Column::ColQuelle);
    bench.file().run(u"DELETE FROM Vokabular WHERE ID = 2"_s);
    EXPECT_EQ(bench.list.RowPos_To_RecPos(2), -1);
}

TEST(ListeChanges, EntryThatIsGoneIsToldAndNotRecorded) {
    for (const QString& language : {u"En"_s, u"De"_s}) {
        StoredList bench(language);
        bench.fill({u"one"_s, u"two"_s});
        bench.file().run(u"DELETE FROM Vokabular WHERE ID = 1"_s);
        bench.context.prompts.expectExclamation(language == u"En"_s ? u"Row not found in database!"
                                                                    : u"Zeile nicht in Datenbank gefunden!");
        bench.change(1, Column::ColQuelle, u"book"_s);
        EXPECT_EQ(bench.list.AnzahlGeaendert, 0);
        bench.remove(1);
        EXPECT_EQ(bench.list.AnzahlGeloescht, 1);
        bench.save();
        EXPECT_EQ(bench.storedMains(), QStringList{u"two"_s}) << "it goes in silence";
    }
}

TEST(ListeChanges, CountersSetToNoneForgetWhatWasRecorded) {
    StoredList bench;
    bench.fill({u"one"_s, u"two"_s});
    bench.change(1, Column::ColQuelle, u"book"_s);
    bench.list.AnzahlGeaendert = 0;
    bench.change(1, Column::ColQuelle, u"page"_s);
    EXPECT_EQ(bench.list.AnzahlGeaendert, 1) << "recorded anew";
    bench.list.AnzahlGeaendert = 0;
    bench.save();
    EXPECT_EQ(bench.stored("SELECT Quelle FROM Vokabular"), (QStringList{u"NULL"_s, u"NULL"_s}));
}

TEST(ListeChanges, RowsSelectedTogetherAreRecordedButForTheFirst) {
    for (const auto& [start, end] : {std::pair{2, 4}, std::pair{4, 2}, std::pair{3, 3}}) {
        StoredList bench;
        bench.fill({u"one"_s, u"two"_s, u"three"_s, u"four"_s, u"five"_s});
        bench.list.MehrfachStart = static_cast<qint16>(start);
        bench.list.MehrfachEnde = static_cast<qint16>(end);
        bench.grid.setRow(start);
        bench.grid.setCol(Column::ColQuelle);
        bench.grid.setRowSel(end);
        bench.list.SetzeSelectedZeilenGeaendert();
        EXPECT_EQ(bench.grid.Row(), start);
        EXPECT_EQ(bench.grid.RowSel(), end);
        EXPECT_EQ(bench.list.AnzahlGeaendert, std::abs(start - end));
        bench.save();
        QStringList expected(5, u"NULL"_s);
        for (int row = 2; row <= 4; ++row)
            if (row != start && start != end)
                expected[row - 1] = u"20020301"_s;
        EXPECT_EQ(bench.stored("SELECT Aenderungsdatum FROM Vokabular ORDER BY ID"), expected);
    }
}

class KeysBeyondSixteenBits : public testing::Test {
protected:
    KeysBeyondSixteenBits() {
        bench.fill({u"one"_s});
        bench.file().run(
            u"INSERT INTO Vokabular(ID, Lang1_Prefix, Lang1_Main, Lang1_Suffix, Lang1_Kommentar, "
            "Lang2_Prefix, Lang2_Main, Lang2_Suffix, Lang2_Kommentar) "
            "VALUES(32767, '', 'last', '', '', '', '', '', ''), "
            "(32768, '', 'beyond', '', '', '', '', '', '')"_s);
        bench.context.state.DBHandler.RecordsetVokabular.Requery();
        bench.listEverything();
    }
    StoredList bench;
};

TEST_F(KeysBeyondSixteenBits, CannotBeRecordedAsChanged) {
    bench.change(2, Column::ColQuelle, u"book"_s);
    bench.context.prompts.expectError(u"Overflow"_s);
    bench.change(3, Column::ColQuelle, u"page"_s);
    EXPECT_EQ(bench.list.AnzahlGeaendert, 1);
    bench.save();
    EXPECT_EQ(bench.stored("SELECT Quelle FROM Vokabular ORDER BY ID"),
              (QStringList{u"NULL"_s, u"book"_s, u"NULL"_s}));
    EXPECT_EQ(bench.cell(3, Column::ColQuelle), u"page"_s);
}

TEST_F(KeysBeyondSixteenBits, CannotBeDeletedAndTheRowStays) {
    bench.context.prompts.expectError(u"Overflow"_s);
    bench.remove(3);
    EXPECT_EQ(bench.list.AnzahlGeloescht, 0);
    EXPECT_EQ(bench.keys(), (QStringList{u"1"_s, u"32767"_s, u"32768"_s}));
    bench.remove(2);
    bench.save();
    EXPECT_EQ(bench.storedMains(), (QStringList{u"one"_s, u"beyond"_s}));
}

TEST_F(KeysBeyondSixteenBits, CanBeAddedAllTheSame) {
    const int row = bench.addNew(Column::ColHaupt1, u"new"_s);
    bench.save();
    EXPECT_EQ(bench.cell(row, Column::ColSchluessel), u"32769"_s);
    EXPECT_EQ(bench.storedMains(), (QStringList{u"one"_s, u"last"_s, u"beyond"_s, u"new"_s}));
}

} // namespace
} // namespace lingomat
