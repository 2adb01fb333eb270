#include "CQuery.h"
#include "EngineError.h"
#include "SelectionBench.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace lingomat;

namespace {

const QString table = u"Vokabular"_s;

struct QueryTest : testing::Test {
    QueryTest() {
        query.RelInitQuery();
        query.InitQuery();
    }

    dao::Database noDatabase;
    CQuery query{noDatabase};
};

using Criterion = QueryTest;
using Statement = QueryTest;

} // namespace

TEST_F(Criterion, IsEmptyToBeginWith) {
    EXPECT_EQ(query.QueryString, QString());
}

TEST_F(Criterion, ConditionNamesTableFieldAndPattern) {
    EXPECT_EQ(query.ExtendQueryString(table, u"Lang1_Main"_s, u"Haus*"_s, true), QString());
    EXPECT_EQ(query.QueryString, u"Vokabular.[Lang1_Main] LIKE 'Haus*'"_s);
}

TEST_F(Criterion, EmptyValueChangesNothing) {
    query.ExtendQueryString(table, u"Quelle"_s, QString(), true);
    EXPECT_EQ(query.QueryString, QString());
    query.ExtendQueryString(table, u"Quelle"_s, u"x"_s, true); // still the first: no joining word
    query.ExtendQueryString(table, u"Quelle"_s, QString(), true);
    EXPECT_EQ(query.QueryString, u"Vokabular.[Quelle] LIKE 'x'"_s);
}

TEST_F(Criterion, FirstConditionTakesNoJoiningWordWhateverItAsksFor) {
    for (const bool rel : {true, false}) {
        query.InitQuery();
        query.ExtendQueryString(table, u"A"_s, u"1"_s, rel);
        EXPECT_EQ(query.QueryString, u"Vokabular.[A] LIKE '1'"_s);
    }
}

TEST_F(Criterion, LaterConditionsAreJoinedByAndOrOr) {
    query.ExtendQueryString(table, u"A"_s, u"1"_s, true);
    query.ExtendQueryString(table, u"B"_s, u"2"_s, true);
    query.ExtendQueryString(table, u"C"_s, u"3"_s, false);
    EXPECT_EQ(query.QueryString,
              u"Vokabular.[A] LIKE '1' AND Vokabular.[B] LIKE '2' OR Vokabular.[C] LIKE '3'"_s);
}

TEST_F(Criterion, JoiningWordAloneLeavesTheBeginningABeginning) {
    query.AddRel(true);
    query.AddRel(false);
    EXPECT_EQ(query.QueryString, QString());
    query.ExtendQueryString(table, u"A"_s, u"1"_s, true);
    query.AddRel(true);
    query.AddRel(false);
    EXPECT_EQ(query.QueryString, u"Vokabular.[A] LIKE '1' AND  OR "_s);
}

TEST_F(Criterion, ScoresStandWithoutQuotesOrBlanks) {
    query.ExtendQueryStringByScore(u"2"_s, u"4"_s);
    EXPECT_EQ(query.QueryString, u"(Score >=2 AND Score <=4)"_s);
    query.ExtendQueryStringByScore(u"1"_s, u"5"_s);
    EXPECT_EQ(query.QueryString, u"(Score >=2 AND Score <=4) AND (Score >=1 AND Score <=5)"_s);
}

TEST_F(Criterion, DatesAreComparedAsTexts) {
    query.ExtendQueryStringByRegion(u"Eingabedatum"_s, u"20010101"_s, u"20011231"_s);
    EXPECT_EQ(query.QueryString, u"(Eingabedatum >='20010101' AND Eingabedatum <='20011231')"_s);
    query.ExtendQueryStringByRegion(u"Aenderungsdatum"_s, u"1"_s, u"2"_s);
    EXPECT_EQ(query.QueryString, u"(Eingabedatum >='20010101' AND Eingabedatum <='20011231')"
                                 " AND (Aenderungsdatum >='1' AND Aenderungsdatum <='2')"_s);
}

TEST_F(Criterion, RangeWithOneEmptyBoundWritesNothing) {
    query.ExtendQueryStringByRegion(u"Eingabedatum"_s, QString(), u"20011231"_s);
    query.ExtendQueryStringByRegion(u"Eingabedatum"_s, u"20010101"_s, QString());
    query.ExtendQueryStringByScore(QString(), u"4"_s);
    query.ExtendQueryStringByScore(u"2"_s, QString());
    EXPECT_EQ(query.QueryString, QString());
    query.ExtendQueryString(table, u"A"_s, u"1"_s, true);
    EXPECT_EQ(query.QueryString, u"Vokabular.[A] LIKE '1'"_s);
}

TEST_F(Criterion, SectionThatOpensTheCriterionBeginsWithABracket) {
    query.StartSection();
    query.ExtendQueryString(table, u"A"_s, u"1"_s, false);
    query.ExtendQueryString(table, u"A"_s, u"2"_s, false);
    query.StopSection();
    EXPECT_EQ(query.QueryString, u"(Vokabular.[A] LIKE '1' OR Vokabular.[A] LIKE '2')"_s);
}

TEST_F(Criterion, LaterSectionIsJoinedByAnd) {
    query.ExtendQueryString(table, u"A"_s, u"1"_s, true);
    query.StartSection();
    query.ExtendQueryString(table, u"B"_s, u"2"_s, false);
    query.StopSection();
    query.ExtendQueryString(table, u"C"_s, u"3"_s, true);
    EXPECT_EQ(query.QueryString,
              u"Vokabular.[A] LIKE '1' AND (Vokabular.[B] LIKE '2') AND Vokabular.[C] LIKE '3'"_s);
}

TEST_F(Criterion, SectionOfEmptyValuesLeavesItsBracketsAndABeginning) {
    query.StartSection();
    query.ExtendQueryString(table, u"A"_s, QString(), false);
    query.StopSection();
    query.ExtendQueryString(table, u"B"_s, u"1"_s, true);
    EXPECT_EQ(query.QueryString, u"()Vokabular.[B] LIKE '1'"_s);
}

TEST_F(Criterion, QuotesGoInAsTheyStand) {
    query.ExtendQueryString(table, u"A"_s, u"l'eau \"x\""_s, true);
    EXPECT_EQ(query.QueryString, u"Vokabular.[A] LIKE 'l'eau \"x\"'"_s);
}

TEST_F(Statement, WithoutAFilterIsAllEntries) {
    query.RelCreateQueryString();
    EXPECT_EQ(query.RelQueryString, u"SELECT DISTINCT * FROM Vokabular"_s);
    for (const QString& tables :
         {query.insertBereichPart(), query.insertWortartPart(), query.insertGrammatikalischPart(),
          query.insertFunktionalPart(), query.insertReferenzenPart()})
        EXPECT_EQ(tables, QString());
}

TEST_F(Statement, EachKindBringsItsTablesAndItsJoin) {
    struct Case {
        const char16_t* kind;
        const char16_t* statement;
    };
    const Case cases[] = {
        {u"Bereich", u"SELECT DISTINCT * FROM Vokabular, Bereiche, Bereiche_Zwischen WHERE (Bereich_Text='x')"
                     " AND Bereiche.ID=Bereiche_Zwischen.ID AND Bereiche_Zwischen.IDV=Vokabular.ID"},
        {u"Grammatikalisch",
         u"SELECT DISTINCT * FROM Vokabular, GrammatikalischeAttribute, [GrammatikalischeAttribute_Zwischen]"
         " WHERE (GrammatikalischeAttribute.[Attribut_Text]='x') AND GrammatikalischeAttribute.IDA="
         "GrammatikalischeAttribute_Zwischen.ID AND GrammatikalischeAttribute_Zwischen.IDV=Vokabular.ID"},
        {u"Funktional",
         u"SELECT DISTINCT * FROM Vokabular, FunktionaleAttribute, [FunktionaleAttribute_Zwischen]"
         " WHERE (FunktionaleAttribute.[Attribut_Text]='x') AND FunktionaleAttribute.IDA="
         "FunktionaleAttribute_Zwischen.ID AND FunktionaleAttribute_Zwischen.IDV=Vokabular.ID"},
        {u"Referenzen", u"SELECT DISTINCT * FROM Vokabular, Referenzen WHERE (Referenzen.Typ='x')"
                        " AND Referenzen.von=Vokabular.ID"},
    };
    for (const Case& test : cases) {
        query.RelInitQuery();
        query.RelInsert(u"x"_s, QString::fromUtf16(test.kind));
        query.RelCreateQueryString();
        EXPECT_EQ(query.RelQueryString, QString::fromUtf16(test.statement));
    }
}

TEST_F(Statement, ValuesOfOneKindAreAlternativesAndTheKindsAreConjoined) {
    for (const char16_t* kind : {u"Referenzen", u"Funktional", u"Grammatikalisch", u"Bereich"}) {
        query.RelInsert(u"a"_s, QString::fromUtf16(kind));
        query.RelInsert(u"b"_s, QString::fromUtf16(kind));
    }
    query.RelCreateQueryString();
    EXPECT_EQ(query.RelQueryString,
              u"SELECT DISTINCT * FROM Vokabular, Bereiche, Bereiche_Zwischen, GrammatikalischeAttribute,"
              " [GrammatikalischeAttribute_Zwischen], FunktionaleAttribute, [FunktionaleAttribute_Zwischen],"
              " Referenzen WHERE (Bereich_Text='a' OR Bereich_Text='b') AND Bereiche.ID=Bereiche_Zwischen.ID"
              " AND Bereiche_Zwischen.IDV=Vokabular.ID AND (GrammatikalischeAttribute.[Attribut_Text]='a' OR"
              " GrammatikalischeAttribute.[Attribut_Text]='b') AND GrammatikalischeAttribute.IDA="
              "GrammatikalischeAttribute_Zwischen.ID AND GrammatikalischeAttribute_Zwischen.IDV=Vokabular.ID"
              " AND (FunktionaleAttribute.[Attribut_Text]='a' OR FunktionaleAttribute.[Attribut_Text]='b')"
              " AND FunktionaleAttribute.IDA=FunktionaleAttribute_Zwischen.ID AND"
              " FunktionaleAttribute_Zwischen.IDV=Vokabular.ID AND (Referenzen.Typ='a' OR Referenzen.Typ='b')"
              " AND Referenzen.von=Vokabular.ID"_s);
}

TEST_F(Statement, UnknownKindChangesNothing) {
    for (const char16_t* kind : {u"bereich", u"Bereiche", u"Wortart", u"Quelle", u"Funktionales", u""})
        query.RelInsert(u"x"_s, QString::fromUtf16(kind));
    query.RelCreateQueryString();
    EXPECT_EQ(query.RelQueryString, u"SELECT DISTINCT * FROM Vokabular"_s);
}

TEST_F(Statement, StartsAfreshAfterInit) {
    query.RelInsert(u"x"_s, u"Bereich"_s);
    query.RelCreateQueryString();
    query.RelInitQuery();
    EXPECT_EQ(query.RelQueryString, QString());
    query.RelCreateQueryString();
    EXPECT_EQ(query.RelQueryString, u"SELECT DISTINCT * FROM Vokabular"_s);
}

TEST_F(Statement, AreaConditionByHandIsWrittenIntoTheStatementButJoinedInTheCriterion) {
    query.RelExtendQueryString(QString(), true);
    EXPECT_EQ(query.RelQueryString, QString());
    query.RelExtendQueryString(u"Sport"_s, true);
    query.RelExtendQueryString(u"Reisen"_s, false);
    EXPECT_EQ(query.RelQueryString, u"(Bereiche_Zwischen.IDV = Vokabular.ID AND Bereich_Text='Sport' AND"
                                    " Bereiche.ID=Bereiche_Zwischen.ID)(Bereiche_Zwischen.IDV = Vokabular.ID"
                                    " AND Bereich_Text='Reisen' AND Bereiche.ID=Bereiche_Zwischen.ID)"_s);
    EXPECT_EQ(query.QueryString, u" OR "_s);
}

namespace {

struct LookUp : testing::Test {
    LookUp() { bench.openDatabase(); }

    SelectionBench bench;
    CQuery query{bench.context.state.DBHandler.Database};
};

} // namespace

TEST_F(LookUp, JoinsTheValuesOfOneEntry) {
    bench.add({.main1 = u"other"_s, .bereiche = {u"Kunst"_s}, .grammatikalisch = {u"Dual"_s}});
    const QString id = bench.add({.main1 = u"Haus"_s,
                                  .bereiche = {u"Sport"_s, u"Reisen"_s},
                                  .grammatikalisch = {u"Plural"_s},
                                  .funktional = {u"formell"_s, u"vulgär"_s}});
    EXPECT_EQ(query.GetAllBereiche(id), u"Sport; Reisen;"_s);
    EXPECT_EQ(query.GetAllGrammatikalisch(id), u"Plural;"_s);
    EXPECT_EQ(query.GetAllFunktional(id), u"formell; vulgär;"_s);
}

TEST_F(LookUp, EntryWithoutValuesGivesAnEmptyText) {
    bench.add({.main1 = u"other"_s, .bereiche = {u"Kunst"_s}, .grammatikalisch = {u"Dual"_s}});
    const QString id = bench.add({.main1 = u"Haus"_s});
    EXPECT_EQ(query.GetAllBereiche(id), QString());
    EXPECT_EQ(query.GetAllGrammatikalisch(id), QString());
    EXPECT_EQ(query.GetAllFunktional(id), QString());
}

TEST_F(LookUp, StripsBlanksButNotWhatIsBetween) {
    const QString id = bench.add({.main1 = u"Haus"_s, .bereiche = {u"  Haus und Hof "_s, u"   "_s}});
    EXPECT_EQ(query.GetAllBereiche(id), u"Haus und Hof; ;"_s);
}

TEST_F(LookUp, KeepsAttributesAtTheirFullLength) {
    const QString longest(200, u'x');
    const QString id = bench.add({.main1 = u"Haus"_s, .grammatikalisch = {longest}});
    EXPECT_EQ(query.GetAllGrammatikalisch(id), longest + u';');
}

TEST_F(LookUp, ErrorsOfTheDatabasePassThrough) {
    EXPECT_THROW((void)query.GetAllBereiche(u"x'"_s), dao::Error);
    const dao::Database none;
    const CQuery closed{none};
    EXPECT_THROW((void)closed.GetAllFunktional(u"1"_s), dao::Error);
}
