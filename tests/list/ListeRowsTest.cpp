#include "ListBench.h"

#include "EngineError.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace lingomat;

namespace {

struct RowBench : ListBench {
    RowBench() {
        openDatabase();
        list.Form_Load();
    }

    void selectAll() { select(u"SELECT * FROM Vokabular"_s); }
};

EntryLookups echoLookups() {
    return {[](const QString& id) { return u"area"_s + id + u";"_s; },
            [](const QString& id) { return u"gram"_s + id + u";"_s; },
            [](const QString& id) { return u"func"_s + id + u";"_s; }};
}

} // namespace

TEST(ZeileAusDatensatz, FillsEveryColumn) {
    RowBench bench;
    const QString id = bench.addEntry({{u"Lang1_Prefix"_s, u"der"_s},
                                       {u"Lang1_Main"_s, u"Hund"_s},
                                       {u"Lang1_Suffix"_s, u"e"_s},
                                       {u"Lang1_Kommentar"_s, u"Tier"_s},
                                       {u"Lang2_Prefix"_s, u"the"_s},
                                       {u"Lang2_Main"_s, u"dog"_s},
                                       {u"Wortart"_s, u"noun"_s},
                                       {u"Beispielsatz"_s, u"The dog barks."_s},
                                       {u"Zusatzinfo"_s, u"see cat"_s},
                                       {u"Quelle"_s, u"Book 1"_s},
                                       {u"Eingabedatum"_s, u"19991231"_s},
                                       {u"Aenderungsdatum"_s, u"20020301"_s},
                                       {u"Score"_s, 4}});
    bench.selectAll();

    EXPECT_TRUE(bench.fillRow(echoLookups()));

    QStringList row;
    for (int column = 0; column < 24; ++column)
        row << bench.cell(1, column);
    const QStringList expected{QString(),
                               id,
                               u"der Hund e (Tier)"_s,
                               u"the dog"_s,
                               u"noun"_s,
                               u"gram"_s + id + u";"_s,
                               u"func"_s + id + u";"_s,
                               u"area"_s + id + u";"_s,
                               u"The dog barks."_s,
                               u"see cat"_s,
                               u"Book 1"_s,
                               u"31.12.99"_s,
                               u"01.03.02"_s,
                               u"4"_s,
                               u"der"_s,
                               u"Hund"_s,
                               u"e"_s,
                               u"Tier"_s,
                               u"the"_s,
                               u"dog"_s,
                               QString(),
                               QString(),
                               u"19991231"_s,
                               u"20020301"_s};
    EXPECT_EQ(row, expected);
    EXPECT_EQ(bench.grid.Row(), 1);
}

TEST(ZeileAusDatensatz, NullFieldsGiveEmptyCellsAndScoreSix) {
    RowBench bench;
    bench.addEntry({{u"Score"_s, dao::Value()}});
    bench.selectAll();
    ASSERT_TRUE(bench.selection().field(u"Score"_s).isNull());
    EXPECT_TRUE(bench.fillRow());
    EXPECT_EQ(bench.cell(1, Liste::ColScore), u"6"_s);
    for (const int column : {4, 8, 9, 10, 11, 12, 22, 23})
        EXPECT_EQ(bench.cell(1, column), QString()) << column;
}

TEST(ZeileAusDatensatz, BlanksAtTheEndsGo) {
    RowBench bench;
    bench.addEntry({{u"Wortart"_s, u"  noun "_s},
                    {u"Beispielsatz"_s, u"  "_s},
                    {u"Quelle"_s, u" Book "_s},
                    {u"Eingabedatum"_s, u" 19991231"_s},
                    {u"Lang1_Main"_s, u"  Hund "_s}});
    bench.selectAll();
    bench.fillRow();
    EXPECT_EQ(bench.cell(1, Liste::ColWortart), u"noun"_s);
    EXPECT_EQ(bench.cell(1, Liste::ColBeispielsatz), QString());
    EXPECT_EQ(bench.cell(1, Liste::ColQuelle), u"Book"_s);
    EXPECT_EQ(bench.cell(1, Liste::ColEingabedatum), u"31.12.99"_s);
    EXPECT_EQ(bench.cell(1, Liste::ColEingabeKey), u"19991231"_s);
    EXPECT_EQ(bench.cell(1, Liste::ColSprache1), u"Hund"_s);
    EXPECT_EQ(bench.cell(1, Liste::ColHaupt1), u"  Hund "_s) << "a part stays as it is stored";
}

TEST(ZeileAusDatensatz, DateOfAnotherLengthIsShownAsItIs) {
    RowBench bench;
    bench.addEntry({{u"Eingabedatum"_s, u"1999"_s}, {u"Aenderungsdatum"_s, u"spring 2002"_s}});
    bench.selectAll();
    bench.fillRow();
    EXPECT_EQ(bench.cell(1, Liste::ColEingabedatum), u"1999"_s);
    EXPECT_EQ(bench.cell(1, Liste::ColEingabeKey), u"1999"_s);
    EXPECT_EQ(bench.cell(1, Liste::ColAenderungsdatum), u"spring 2002"_s);
    EXPECT_EQ(bench.cell(1, Liste::ColAenderungKey), u"spring 2002"_s);
}

TEST(ZeileAusDatensatz, AnyTextSurvives) {
    RowBench bench;
    const QString odd = u"it's \"a\" [*] ?#%_;@ \U0001F600"_s;
    bench.addEntry({{u"Wortart"_s, odd}, {u"Lang2_Main"_s, odd}});
    bench.selectAll();
    bench.fillRow();
    EXPECT_EQ(bench.cell(1, Liste::ColWortart), odd);
    EXPECT_EQ(bench.cell(1, Liste::ColSprache2), odd);
}

TEST(ZeileAusDatensatz, NeighboursWithOneIdAreOneRow) {
    RowBench bench;
    const QString id = bench.addEntry({{u"Lang1_Main"_s, u"Hund"_s}});
    CDBHandler& session = bench.context.state.DBHandler;
    for (const int area : {1, 2})
        bench.addRow(session.RecordsetBereiche_Z, {{u"IDV"_s, id.toInt()}, {u"ID"_s, area}});
    bench.select(u"SELECT * FROM Vokabular, Bereiche_Zwischen WHERE Vokabular.ID=Bereiche_Zwischen.IDV"_s);

    EXPECT_TRUE(bench.fillRow());
    bench.selection().MoveNext();
    ASSERT_FALSE(bench.selection().EOF_());
    EXPECT_FALSE(bench.fillRow());
    EXPECT_EQ(bench.grid.Rows(), 2);
    EXPECT_EQ(bench.cell(1, Liste::ColSprache1), u"Hund"_s);
}

TEST(ZeileAusDatensatz, OneIdInRowsApartIsTwoRows) {
    RowBench bench;
    bench.addEntry({{u"Lang1_Main"_s, u"Hund"_s}});
    bench.addEntry({{u"Lang1_Main"_s, u"Katze"_s}});
    bench.selectAll();
    EXPECT_TRUE(bench.fillRow());
    bench.selection().MoveNext();
    EXPECT_TRUE(bench.fillRow());
    bench.selection().MovePrevious();
    EXPECT_TRUE(bench.fillRow());
    EXPECT_EQ(bench.grid.Rows(), 4);
    EXPECT_EQ(bench.cell(3, Liste::ColSprache1), u"Hund"_s);
}

TEST(ZeileAusDatensatz, RowNumberCountsUnlessItIsTheLast) {
    RowBench bench;
    bench.addEntry({{u"Lang1_Main"_s, u"Hund"_s}});
    bench.selectAll();
    for (int row = 0; row < 3; ++row)
        bench.grid.AddItem(QString());
    EXPECT_TRUE(bench.list.ZeileAusDatensatz(1, false, ListBench::emptyLookups()));
    EXPECT_TRUE(bench.list.ZeileAusDatensatz(1, true, ListBench::emptyLookups()));
    EXPECT_EQ(bench.cell(1, Liste::ColSprache1), u"Hund"_s);
    EXPECT_EQ(bench.cell(2, Liste::ColSprache1), QString());
    EXPECT_EQ(bench.cell(3, Liste::ColSprache1), u"Hund"_s);
}

TEST(ZeileAusDatensatz, MissingPartOfAnExpressionIsAnErrorOfThatRowOnly) {
    RowBench bench;
    const QString id = bench.addEntry({{u"Lang1_Prefix"_s, dao::Value()}, {u"Lang1_Main"_s, u"Hund"_s}});
    bench.addEntry({{u"Lang1_Main"_s, u"Katze"_s}});
    bench.selectAll();
    try {
        bench.fillRow();
        FAIL() << "a Null was taken for a text";
    } catch (const dao::Error& error) {
        EXPECT_EQ(error.Number(), dao::ErrorNumber::InvalidUseOfNull);
    }
    EXPECT_EQ(bench.cell(1, Liste::ColSchluessel), id);
    EXPECT_EQ(bench.cell(1, Liste::ColSprache1), QString());
    bench.selection().MoveNext();
    EXPECT_TRUE(bench.fillRow());
    EXPECT_EQ(bench.cell(2, Liste::ColSprache1), u"Katze"_s);
}

TEST(SetzeAusdruck, WritesExpressionAndPartsOfTheLanguageIntoTheCurrentRow) {
    RowBench bench;
    bench.addEntry({{u"Lang1_Main"_s, u"Hund"_s},
                    {u"Lang2_Prefix"_s, u"the"_s},
                    {u"Lang2_Main"_s, u"dog"_s},
                    {u"Lang2_Kommentar"_s, u"animal"_s}});
    bench.selectAll();
    for (const QString& key : {u"1"_s, u"2"_s})
        bench.addPlainRow(key);
    bench.grid.setRow(2);
    bench.list.SetzeAusdruckAusDBinGrid(7);
    EXPECT_EQ(bench.cell(2, Liste::ColSprache2), u"the dog (animal)"_s) << "any number but 1 is language 2";
    EXPECT_EQ(bench.cell(2, Liste::ColPrefix2), u"the"_s);
    EXPECT_EQ(bench.cell(2, Liste::ColHaupt2), u"dog"_s);
    EXPECT_EQ(bench.cell(2, Liste::ColSuffix2), QString());
    EXPECT_EQ(bench.cell(2, Liste::ColKommentar2), u"animal"_s);
    EXPECT_EQ(bench.cell(2, Liste::ColSprache1), QString());
    EXPECT_EQ(bench.cell(1, Liste::ColSprache2), QString());
    EXPECT_EQ(bench.grid.Col(), Liste::ColSprache2);
}

TEST(InitialisiereListe, LeavesTheHeaderAlone) {
    RowBench bench;
    bench.addPlainRow(u"1"_s);
    bench.addPlainRow(u"2"_s);
    bench.list.initialisiereListe();
    EXPECT_EQ(bench.grid.Rows(), 1);
    EXPECT_EQ(bench.cell(0, Liste::ColSprache1), u"German"_s);
    EXPECT_EQ(bench.cell(0, Liste::ColScore), u"Error Score"_s);
}

TEST(InitialisiereListe, RowsAddedThenCanBeSeen) {
    RowBench bench;
    bench.list.initialisiereListe();
    bench.addPlainRow(u"1"_s);
    EXPECT_GT(bench.grid.RowHeight(1), 0) << "not the placeholder of the row that stood there";
    EXPECT_EQ(bench.list.countRows(), 1);
}

TEST(LoescheListe, LeavesHeaderAndPlaceholder) {
    RowBench bench;
    for (const QString& key : {u"1"_s, u"2"_s, u"3"_s})
        bench.addPlainRow(key);
    bench.list.LoescheListe();
    EXPECT_EQ(bench.grid.Rows(), 2);
    EXPECT_EQ(bench.grid.RowHeight(1), 0);
    EXPECT_EQ(bench.cell(1, Liste::ColSchluessel), QString());
    EXPECT_EQ(bench.cell(0, Liste::ColSprache2), u"English"_s);
    EXPECT_EQ(bench.list.countRows(), 0);
    EXPECT_EQ(bench.list.windowTitle(), u"Vocab List - 0 entries"_s);
}

TEST(LoescheListe, OfAListWithoutRowsAddsNone) {
    RowBench bench;
    bench.list.LoescheListe();
    EXPECT_EQ(bench.grid.Rows(), 1);
    EXPECT_EQ(bench.list.windowTitle(), u"Vocab List"_s);
}
