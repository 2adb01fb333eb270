#include "EqualCharacters.h"

#include <gtest/gtest.h>

#include <QStringList>

using namespace Qt::StringLiterals;
using namespace lingomat;

namespace {

/// A store that has these values under the numbers 1, 2 and so on.
auto stored(const QStringList& values) {
    return [values](int number) {
        return number <= values.size() ? values.at(number - 1) : EqualCharacters::missingValue();
    };
}

EqualCharacters pairsOf(const QStringList& values) {
    EqualCharacters pairs;
    pairs.readExceptions(stored(values));
    return pairs;
}

const QStringList Defaults{u"!¡"_s, u"?¿"_s};

QStringList numbered(int count) {
    QStringList values;
    for (int i = 0; i < count; ++i)
        values += QString(QChar(u'a' + i)) + QChar(u'A' + i);
    return values;
}

} // namespace

TEST(EqualCharacters, TheDefaultsTurnClosingMarksIntoOpeningOnes) {
    const EqualCharacters pairs = pairsOf(Defaults);
    EXPECT_EQ(pairs.ExceptionCount(), 2);
    EXPECT_EQ(pairs.WorkInException(u"¿que?"_s), u"¿que¿");
    EXPECT_EQ(pairs.WorkInException(u"?que?"_s), u"¿que¿");
    EXPECT_EQ(pairs.WorkInException(u"¡Hola!"_s), u"¡Hola¡");
    EXPECT_EQ(pairs.WorkInException({}), QString());
}

TEST(EqualCharacters, WithoutPairsEveryTextStays) {
    const EqualCharacters pairs = pairsOf({});
    EXPECT_EQ(pairs.ExceptionCount(), 0);
    for (const QString& text : {QString(), u"¿que?"_s, u"猫😀"_s})
        EXPECT_EQ(pairs.WorkInException(text), text);
}

TEST(EqualCharacters, AGapEndsTheList) {
    EXPECT_EQ(pairsOf({u"ab"_s, EqualCharacters::missingValue(), u"cd"_s}).ExceptionCount(), 1);
    EXPECT_EQ(pairsOf({u"ab"_s, {}, u"cd"_s}).ExceptionCount(), 1);
    EXPECT_EQ(pairsOf({{}, u"cd"_s}).ExceptionCount(), 0);
}

TEST(EqualCharacters, NinePairsCountAndTenLeaveTheCountAsItWas) {
    EXPECT_EQ(pairsOf(numbered(9)).ExceptionCount(), 9);

    EqualCharacters pairs = pairsOf(numbered(10));
    EXPECT_EQ(pairs.ExceptionCount(), 0);
    EXPECT_EQ(pairs.WorkInException(u"abc"_s), u"abc");

    pairs.readExceptions(stored(numbered(3)));
    pairs.readExceptions(stored(numbered(12)));
    EXPECT_EQ(pairs.ExceptionCount(), 3);
    EXPECT_EQ(pairs.WorkInException(u"abcd"_s), u"ABCd");
}

TEST(EqualCharacters, NoNumberBeyondTenIsAskedFor) {
    QList<int> asked;
    EqualCharacters pairs;
    pairs.readExceptions([&asked](int number) {
        asked += number;
        return u"ab"_s;
    });
    EXPECT_EQ(asked, QList<int>({1, 2, 3, 4, 5, 6, 7, 8, 9, 10}));
}

TEST(EqualCharacters, FirstAndLastCharacterMakeThePair) {
    const EqualCharacters pairs = pairsOf({u"x"_s, u"abc"_s, u"😀:"_s, u":😀"_s, u"😀"_s});
    EXPECT_EQ(pairs.left(1), u"x");
    EXPECT_EQ(pairs.right(1), u"x");
    EXPECT_EQ(pairs.left(2), u"a");
    EXPECT_EQ(pairs.right(2), u"c");
    EXPECT_EQ(pairs.left(3), u"😀");
    EXPECT_EQ(pairs.right(3), u":");
    EXPECT_EQ(pairs.left(4), u":");
    EXPECT_EQ(pairs.right(4), u"😀");
    EXPECT_EQ(pairs.left(5), u"😀");
    EXPECT_EQ(pairs.right(5), u"😀");
}

TEST(EqualCharacters, ANumberWithoutPairGivesNothing) {
    const EqualCharacters pairs = pairsOf(Defaults);
    for (const int number : {-1, 0, 3, 11}) {
        EXPECT_FALSE(pairs.left(number));
        EXPECT_FALSE(pairs.right(number));
    }
    // Pairs that were read but do not count are out of reach as well.
    EXPECT_FALSE(pairsOf(numbered(10)).left(1));
}

TEST(EqualCharacters, EachCharacterIsReplacedOnceByTheFirstPair) {
    EXPECT_EQ(pairsOf({u"ab"_s, u"bc"_s}).WorkInException(u"ab"_s), u"bc");
    EXPECT_EQ(pairsOf({u"ab"_s, u"ac"_s}).WorkInException(u"a"_s), u"b");
    EXPECT_EQ(pairsOf({u"aä"_s}).WorkInException(u"aAä"_s), u"äAä"); // case counts, and there is no way back
}

TEST(EqualCharacters, EveryScriptIsMapped) {
    const EqualCharacters pairs = pairsOf({u"εέ"_s, u"её"_s, u"はハ"_s, u"e\u0301"_s});
    EXPECT_EQ(pairs.WorkInException(u"ενα"_s), u"ένα");
    EXPECT_EQ(pairs.WorkInException(u"елка"_s), u"ёлка");
    EXPECT_EQ(pairs.WorkInException(u"はは"_s), u"ハハ");
}

TEST(EqualCharacters, CharactersOfTwoUnitsAreMappedWhole) {
    const EqualCharacters pairs = pairsOf({u"😀☺"_s, u"x😂"_s});
    EXPECT_EQ(pairs.WorkInException(u"a😀b"_s), u"a☺b");
    EXPECT_EQ(pairs.WorkInException(u"x"_s), u"😂");
    // Shares its first unit with the left character of a pair, and nothing else.
    EXPECT_EQ(pairs.WorkInException(u"😃"_s), u"😃");
}

TEST(EqualCharacters, ClearForgetsThePairs) {
    EqualCharacters pairs = pairsOf(Defaults);
    pairs.clear();
    EXPECT_EQ(pairs.ExceptionCount(), 0);
    EXPECT_EQ(pairs.WorkInException(u"?"_s), u"?");
}

TEST(TextualStrComp, TheFirstDifferenceDecides) {
    struct {
        QString a;
        QString b;
        int result;
    } const table[] = {
        {u"abc"_s, u"abcd"_s, 0}, {u"abd"_s, u"abcd"_s, 1}, {u"abb"_s, u"abcd"_s, -1},
        {{}, u"abc"_s, 0},        {u"abc"_s, {}, 0},        {{}, {}, 0},
        {u"B"_s, u"a"_s, -1},     {u"a"_s, u"B"_s, 1},      {u"z"_s, u"ä"_s, -1},
        {u"α"_s, u"я"_s, -1},     {u"猫"_s, u"犬"_s, 1},    {u"猫"_s, u"猫犬"_s, 0},
    };
    for (const auto& [a, b, result] : table)
        EXPECT_EQ(TextualStrComp(a, b), result) << a.toStdString() << '/' << b.toStdString();
}
