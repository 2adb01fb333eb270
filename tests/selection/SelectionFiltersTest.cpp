#include "SelectionFilters.h"
#include "CQuery.h"
#include "Database.h"
#include "EqualCharacters.h"
#include "LanguageFields.h"

#include <gtest/gtest.h>

#include "QtPrinters.h"

using namespace Qt::StringLiterals;
using namespace lingomat;

namespace {

const LanguageFields fields{
    .Lang1Name = u"German"_s,
    .Lang2Name = u"Spanish"_s,
    .Lang1PrefixField = u"Lang1_Prefix"_s,
    .Lang1MainField = u"Lang1_Main"_s,
    .Lang1SuffixField = u"Lang1_Suffix"_s,
    .Lang1KommentarField = u"Lang1_Kommentar"_s,
    .Lang2PrefixField = u"Lang2_Prefix"_s,
    .Lang2MainField = u"Lang2_Main"_s,
    .Lang2SuffixField = u"Lang2_Suffix"_s,
    .Lang2KommentarField = u"Lang2_Kommentar"_s,
};

EqualCharacters defaultPairs() {
    EqualCharacters pairs;
    pairs.readExceptions([](int number) {
        return number == 1 ? u"!¡"_s : number == 2 ? u"?¿"_s : EqualCharacters::missingValue();
    });
    return pairs;
}

struct Texts {
    QString statement;
    QString criterion;
    QString searched;
};

Texts textsOf(const SelectionFilters& filters, const EqualCharacters& pairs = {}) {
    const dao::Database none;
    CQuery query(none);
    buildStatement(query, filters);
    buildCriterion(query, filters, fields, pairs);
    return {query.RelQueryString, query.QueryString, searchCriterion(query)};
}

} // namespace

TEST(AllSelected, RestrictsOnlyWhereSomethingIsChosenAndSomethingLeft) {
    struct Case {
        int offered;
        int chosen;
        bool all;
    };
    for (const auto& [offered, chosen, all] :
         {Case{0, 0, true}, Case{1, 0, true}, Case{0, 1, true}, Case{5, 0, true}, Case{0, 5, true},
          Case{1, 1, false}, Case{5, 1, false}, Case{1, 5, false}})
        EXPECT_EQ(allSelected(offered, chosen), all) << offered << " left, " << chosen << " chosen";
}

TEST(Filters, AtTheirDefaultsSelectAllEntries) {
    const Texts texts = textsOf({});
    EXPECT_EQ(texts.statement, u"SELECT DISTINCT * FROM Vokabular"_s);
    EXPECT_EQ(texts.criterion, QString());
    EXPECT_EQ(texts.searched, u"Vokabular.ID LIKE '*'"_s);
}

TEST(Filters, WorkedExample) {
    const SelectionFilters filters{
        .bereich = {3, {u"Sport"_s, u"Reisen"_s}},
        .grammatikalisch = {2, {u"Plural"_s}},
        .lang1 = {.main = u"Haus*"_s},
        .wortart = {1, {u"Substantiv"_s, u"Verb"_s}},
        .minScore = u"2"_s,
        .maxScore = u"4"_s,
    };
    const Texts texts = textsOf(filters, defaultPairs());
    EXPECT_EQ(
        texts.statement,
        u"SELECT DISTINCT * FROM Vokabular, Bereiche, Bereiche_Zwischen, GrammatikalischeAttribute,"
        " [GrammatikalischeAttribute_Zwischen] WHERE (Bereich_Text='Sport' OR Bereich_Text='Reisen') AND"
        " Bereiche.ID=Bereiche_Zwischen.ID AND Bereiche_Zwischen.IDV=Vokabular.ID AND"
        " (GrammatikalischeAttribute.[Attribut_Text]='Plural') AND GrammatikalischeAttribute.IDA="
        "GrammatikalischeAttribute_Zwischen.ID AND GrammatikalischeAttribute_Zwischen.IDV=Vokabular.ID"_s);
    EXPECT_EQ(texts.criterion,
              u"Vokabular.[Lang1_Main] LIKE 'Haus*' AND (Vokabular.[Wortart] LIKE 'Substantiv' OR"
              " Vokabular.[Wortart] LIKE 'Verb') AND (Score >=2 AND Score <=4)"_s);
    EXPECT_EQ(texts.searched, texts.criterion);
}

TEST(Filters, StandInTheCriterionInAFixedOrder) {
    const SelectionFilters filters{
        .lang1 = {true, u"a"_s, u"b"_s, u"c"_s, u"d"_s},
        .lang2 = {true, u"e"_s, u"f"_s, u"g"_s, u"h"_s},
        .wortart = {1, {u"i"_s}},
        .beispielsatz = u"j"_s,
        .zusatzinfo = u"k"_s,
        .quelle = {1, {u"l"_s}},
        .eingabedatum = {u"1"_s, u"2"_s, u"0"_s, u"9"_s},
        .aenderungsdatum = {u"3"_s, u"4"_s, u"0"_s, u"9"_s},
        .minScore = u"5"_s,
        .maxScore = u"6"_s,
    };
    EXPECT_EQ(textsOf(filters).criterion,
              u"Vokabular.[Lang1_Prefix] LIKE 'a' AND Vokabular.[Lang1_Main] LIKE 'b' AND"
              " Vokabular.[Lang1_Suffix] LIKE 'c' AND Vokabular.[Lang1_Kommentar] LIKE 'd' AND"
              " Vokabular.[Lang2_Prefix] LIKE 'e' AND Vokabular.[Lang2_Main] LIKE 'f' AND"
              " Vokabular.[Lang2_Suffix] LIKE 'g' AND Vokabular.[Lang2_Kommentar] LIKE 'h' AND"
              " (Vokabular.[Wortart] LIKE 'i') AND Vokabular.[Beispielsatz] LIKE 'j' AND"
              " Vokabular.[Zusatzinfo] LIKE 'k' AND (Vokabular.[Quelle] LIKE 'l') AND"
              " (Eingabedatum >='1' AND Eingabedatum <='2') AND"
              " (Aenderungsdatum >='3' AND Aenderungsdatum <='4') AND (Score >=5 AND Score <=6)"_s);
}

TEST(Filters, LanguageWithItsGateClosedIsLeftOut) {
    const SelectionFilters filters{.lang1 = {false, u"a"_s, u"b"_s, u"c"_s, u"d"_s},
                                   .lang2 = {.main = u"f"_s}};
    EXPECT_EQ(textsOf(filters).criterion, u"Vokabular.[Lang2_Main] LIKE 'f'"_s);
}

TEST(Filters, EqualCharactersCountInTheCriterionOnly) {
    const SelectionFilters filters{
        .bereich = {1, {u"what?"_s}},
        .lang1 = {.main = u"!que?"_s},
        .wortart = {1, {u"a!"_s}},
        .beispielsatz = u"b?"_s,
        .zusatzinfo = u"c?"_s,
        .quelle = {1, {u"d?"_s}},
    };
    const Texts texts = textsOf(filters, defaultPairs());
    EXPECT_TRUE(texts.statement.contains(u"(Bereich_Text='what?')"_s));
    EXPECT_EQ(texts.criterion, u"Vokabular.[Lang1_Main] LIKE '¡que¿' AND (Vokabular.[Wortart] LIKE 'a¡') AND"
                               " Vokabular.[Beispielsatz] LIKE 'b¿' AND Vokabular.[Zusatzinfo] LIKE 'c¿' AND"
                               " (Vokabular.[Quelle] LIKE 'd¿')"_s);
}

TEST(Filters, PairWithAnEmptySideRestrictsNothing) {
    const SelectionFilters filters{
        .bereich = {0, {u"a"_s, u"b"_s}},
        .grammatikalisch = {0, {u"a"_s}},
        .funktional = {4, {}},
        .wortart = {0, {u"a"_s, u"b"_s}},
        .quelle = {0, {u"a"_s}},
    };
    const Texts texts = textsOf(filters);
    EXPECT_EQ(texts.statement, u"SELECT DISTINCT * FROM Vokabular"_s);
    EXPECT_EQ(texts.criterion, QString());
}

TEST(Filters, ScoresFromOneToSixAreNoCondition) {
    EXPECT_EQ(textsOf({.minScore = u"1"_s, .maxScore = u"5"_s}).criterion, u"(Score >=1 AND Score <=5)"_s);
    EXPECT_EQ(textsOf({.minScore = u"2"_s, .maxScore = u"6"_s}).criterion, u"(Score >=2 AND Score <=6)"_s);
    EXPECT_EQ(textsOf({.minScore = u" 2 "_s, .maxScore = u"6"_s}).criterion, u"(Score >=2 AND Score <=6)"_s);
}

TEST(Filters, RangeOfTheWholeDatabaseIsNoCondition) {
    const auto criterion = [](const char16_t* von, const char16_t* bis) {
        return textsOf({.eingabedatum = {QString::fromUtf16(von), QString::fromUtf16(bis), u"20010101"_s,
                                         u"20020301"_s}})
            .criterion;
    };
    EXPECT_EQ(criterion(u"20010101", u"20020301"), QString());
    EXPECT_EQ(criterion(u"20010102", u"20020301"),
              u"(Eingabedatum >='20010102' AND Eingabedatum <='20020301')"_s);
    EXPECT_EQ(criterion(u"20010101", u"20020228"),
              u"(Eingabedatum >='20010101' AND Eingabedatum <='20020228')"_s);
}
