#include "AnswerRules.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace lingomat;

namespace {

EqualCharacters equalCharacters(const QStringList& pairs) {
    EqualCharacters equal;
    equal.readExceptions([&pairs](int number) { return pairs.value(number - 1); });
    return equal;
}

const ExpressionParts House{u"das"_s, u"Haus"_s, u"es"_s, u"Gebäude"_s};

ExpressionParts plain(const QString& main) {
    return {{}, main, {}, {}};
}

} // namespace

TEST(AnswerRules, WholeExpressionOrMainPart) {
    const EqualCharacters none;
    struct Case {
        QString answer;
        bool whole;
        bool mainOnly;
    };
    for (const Case& test : {Case{u"das Haus es"_s, true, false}, Case{u"Haus"_s, false, true},
                             Case{u"  das Haus es  "_s, true, false}, Case{u"  Haus "_s, false, true},
                             Case{u"das  Haus es"_s, false, false}, Case{u"haus"_s, false, false},
                             Case{u"das Haus es (Gebäude)"_s, false, false}, Case{u""_s, false, false}}) {
        EXPECT_EQ(isExactAnswer(test.answer, House, {none, false}), test.whole) << test.answer.toStdString();
        EXPECT_EQ(isExactAnswer(test.answer, House, {none, true}), test.mainOnly)
            << test.answer.toStdString();
    }
}

TEST(AnswerRules, BlanksAroundStoredPartsDoNotCount) {
    const EqualCharacters none;
    const ExpressionParts padded{u" das "_s, u"  Haus "_s, u" es"_s, u" x "_s};
    EXPECT_TRUE(isExactAnswer(u"das Haus es"_s, padded, {none, false}));
    EXPECT_TRUE(isExactAnswer(u"Haus"_s, padded, {none, true}));
}

TEST(AnswerRules, AnEmptyAnswerIsRightWhereNothingIsStored) {
    const EqualCharacters none;
    EXPECT_TRUE(isExactAnswer(u""_s, plain(u""_s), {none, false}));
    EXPECT_TRUE(isExactAnswer(u"   "_s, plain(u"  "_s), {none, true}));
    EXPECT_FALSE(isExactAnswer(u""_s, plain(u"a"_s), {none, false}));
}

TEST(AnswerRules, EqualCharactersWorkOnEitherSide) {
    const EqualCharacters equal = equalCharacters({u"!¡"_s, u"äa"_s, u"ßs"_s});
    EXPECT_TRUE(isExactAnswer(u"Gebaude"_s, plain(u"Gebäude"_s), {equal, false}));
    EXPECT_TRUE(isExactAnswer(u"Gebäude"_s, plain(u"Gebaude"_s), {equal, false}));
    EXPECT_TRUE(isExactAnswer(u"hola¡"_s, plain(u"hola!"_s), {equal, true}));
    EXPECT_FALSE(isExactAnswer(u"Gebeude"_s, plain(u"Gebäude"_s), {equal, false}));
    EXPECT_TRUE(isNearAnswer(cleanedAnswer(u"  GEBAUDE"_s, equal), plain(u"Gebaude"_s), {equal, false}));
    EXPECT_TRUE(isNearAnswer(cleanedAnswer(u"gebäude"_s, equal), plain(u"gebaude"_s), {equal, true}));
    EXPECT_EQ(cleanedAnswer(u"  a!ä b  "_s, equal), u"a¡a b");
}

TEST(AnswerRules, PairsThatLeadOnTakeTheMainPartAsFarAsTheAnswer) {
    for (const QStringList& pairs : {QStringList{u"ab"_s, u"bc"_s}, QStringList{u"ab"_s, u"ba"_s}}) {
        const EqualCharacters equal = equalCharacters(pairs);
        for (const QString& text : {u"a"_s, u"b"_s, u"abba"_s})
            EXPECT_TRUE(isExactAnswer(cleanedAnswer(text, equal), plain(text), {equal, true}))
                << text.toStdString();
    }
}

TEST(AnswerRules, CaseCountsInEveryScriptForAnExactAnswerAndInNoneForANearOne) {
    const EqualCharacters none;
    for (const auto& [answer, stored] : {std::pair{u"haus"_s, u"Haus"_s}, std::pair{u"ΛΌΓΟΣ"_s, u"λόγος"_s},
                                         std::pair{u"слово"_s, u"Слово"_s}, std::pair{u"école"_s, u"École"_s},
                                         std::pair{u"STRASSE"_s, u"Straße"_s}}) {
        EXPECT_FALSE(isExactAnswer(answer, plain(stored), {none, false})) << answer.toStdString();
        EXPECT_TRUE(isExactAnswer(stored, plain(stored), {none, false})) << answer.toStdString();
        EXPECT_TRUE(isNearAnswer(answer, plain(stored), {none, false})) << answer.toStdString();
        EXPECT_TRUE(isNearAnswer(answer, plain(stored), {none, true})) << answer.toStdString();
    }
    EXPECT_TRUE(isExactAnswer(u"言葉"_s, plain(u"言葉"_s), {none, false}));
    EXPECT_FALSE(isNearAnswer(u"言"_s, plain(u"言葉"_s), {none, false}));
    EXPECT_FALSE(isNearAnswer(u"resume"_s, plain(u"résumé"_s), {none, false})) << "accents count";
}

TEST(AnswerRules, CharactersAreComparedAsTheyAreStored) {
    const EqualCharacters none;
    const QString composed = u"\u00e9t\u00e9"_s;
    const QString decomposed = composed.normalized(QString::NormalizationForm_D);
    EXPECT_TRUE(isExactAnswer(decomposed, plain(decomposed), {none, false}));
    EXPECT_FALSE(isExactAnswer(decomposed, plain(composed), {none, false}));
}

TEST(AnswerRules, ANearAnswerToTheMainPartTakesItAsItStands) {
    const EqualCharacters none;
    EXPECT_FALSE(isNearAnswer(u"Haus"_s, plain(u" Haus "_s), {none, true}));
    EXPECT_TRUE(isNearAnswer(u"Haus"_s, plain(u" Haus "_s), {none, false}));
}

TEST(AnswerRules, MatchValues) {
    const EqualCharacters none;
    struct Case {
        QString searched;
        ExpressionParts expression;
        int value;
    };
    const ExpressionParts blanks{u"das"_s, u"alte Haus"_s, u""_s, u"Gebäude"_s};
    for (const Case& test :
         {Case{u"das Haus es"_s, House, 100}, Case{u"DAS HAUS ES"_s, House, 95}, Case{u"Haus"_s, House, 90},
          Case{u"haus"_s, House, 85}, Case{u"s h"_s, House, 80}, Case{u"Hau"_s, House, 80},
          Case{u"alte Haus"_s, blanks, 90}, Case{u"Gebäude"_s, House, 0}, Case{u"Maus"_s, House, 0},
          Case{u""_s, House, 80}, Case{u""_s, plain(u""_s), 100}, Case{u"Haus"_s, plain(u"Haus"_s), 100},
          Case{u"HAUS"_s, plain(u"Haus"_s), 95}})
        EXPECT_EQ(matchValue(test.searched, test.expression, none), test.value)
            << test.searched.toStdString();
}

TEST(AnswerRules, MatchValuesTakeEqualCharactersIntoAccount) {
    const EqualCharacters equal = equalCharacters({u"äa"_s});
    EXPECT_EQ(matchValue(cleanedAnswer(u"Bär"_s, equal), plain(u"Bär"_s), equal), 100);
    EXPECT_EQ(matchValue(cleanedAnswer(u"Bar"_s, equal), plain(u"Bär"_s), equal), 100);
}
