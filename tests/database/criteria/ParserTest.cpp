#include "Parser.h"

#include "QtPrinters.h"
#include "TreeText.h"

#include <gtest/gtest.h>

#include <random>

using namespace Qt::StringLiterals;
using criteria::parsed;

namespace {

const QString SyntaxErrorText = u"syntax error"_s;

void check(std::initializer_list<std::pair<QString, QString>> table) {
    for (const auto& [text, tree] : table)
        EXPECT_EQ(parsed(text), tree) << text.toStdString();
}

} // namespace

TEST(Parser, ReadsEveryKindOfCondition) {
    check({
        {u"ID = 17"_s, u"ID = 17"_s},
        {u"17 = ID"_s, u"17 = ID"_s},
        {u"a <> 'x'"_s, u"a <> 'x'"_s},
        {u"a < b"_s, u"a < b"_s},
        {u"a <= 1"_s, u"a <= 1"_s},
        {u"a > 1"_s, u"a > 1"_s},
        {u"a >= -1"_s, u"a >= -1"_s},
        {u"Main LIKE 'x*'"_s, u"Main like 'x*'"_s},
        {u"ID LIKE 17"_s, u"ID like '17'"_s},
        {u"Main NOT LIKE 'x'"_s, u"Main not like 'x'"_s},
        {u"a IS NULL"_s, u"a is null"_s},
        {u"a IS NOT NULL"_s, u"a is not null"_s},
        {u"Vokabular.ID = Synonyme.VID"_s, u"Vokabular.ID = Synonyme.VID"_s},
        {u"[two words].[a b] = 1"_s, u"two words.a b = 1"_s},
        {u"'abc' LIKE 'a*'"_s, u"'abc' like 'a*'"_s},
    });
}

TEST(Parser, NotBindsTighterThanAndAndTighterThanOr) {
    check({
        {u"a=1 OR b=2 AND c=3"_s, u"or(a = 1, and(b = 2, c = 3))"_s},
        {u"a=1 AND b=2 OR c=3"_s, u"or(and(a = 1, b = 2), c = 3)"_s},
        {u"(a=1 OR b=2) AND c=3"_s, u"and(or(a = 1, b = 2), c = 3)"_s},
        {u"NOT a=1 AND b=2"_s, u"and(not(a = 1), b = 2)"_s},
        {u"NOT (a=1 AND b=2)"_s, u"not(and(a = 1, b = 2))"_s},
        {u"NOT NOT a=1"_s, u"not(not(a = 1))"_s},
        {u"NOT a LIKE 'x' OR b=2"_s, u"or(not(a like 'x'), b = 2)"_s},
        {u"NOT a NOT LIKE 'x'"_s, u"not(a not like 'x')"_s},
        {u"a=1 AND NOT b=2 OR NOT c=3"_s, u"or(and(a = 1, not(b = 2)), not(c = 3))"_s},
        {u"((((a=1))))"_s, u"a = 1"_s},
    });
}

TEST(Parser, AChainIsOneNode) {
    check({
        {u"a=1 OR b=2 OR c=3 OR d=4"_s, u"or(a = 1, b = 2, c = 3, d = 4)"_s},
        {u"a=1 AND b=2 AND c=3"_s, u"and(a = 1, b = 2, c = 3)"_s},
        {u"a=1 OR (b=2 OR c=3)"_s, u"or(a = 1, or(b = 2, c = 3))"_s},
    });
}

TEST(Parser, TheCriterionOfAReferenceInEitherDirection) {
    EXPECT_EQ(
        parsed(
            u"((von LIKE '1' AND nach LIKE '2') OR (von LIKE '2' AND nach LIKE '1')) AND (Typ = 'Synonym')"_s),
        u"and(or(and(von like '1', nach like '2'), and(von like '2', nach like '1')), Typ = 'Synonym')");
}

TEST(Parser, WhatIsNoCriterionIsASyntaxError) {
    for (const QString& text : {
             QString(),
             u" "_s,
             u"a"_s,
             u"1"_s,
             u"'x'"_s,
             u"a ="_s,
             u"= 1"_s,
             u"a = 1 AND"_s,
             u"AND a = 1"_s,
             u"a = 1 b = 2"_s,
             u"a = 1 AND OR b = 2"_s,
             u"(a = 1"_s,
             u"a = 1)"_s,
             u"()"_s,
             u"NOT"_s,
             u"NOT ()"_s,
             u"a LIKE"_s,
             u"a LIKE b"_s,
             u"a LIKE NULL"_s,
             u"a LIKE ('x')"_s,
             u"LIKE 'x'"_s,
             u"a NOT 'x'"_s,
             u"a NOT = 1"_s,
             u"a IS"_s,
             u"a IS 1"_s,
             u"a IS NOT"_s,
             u"a NOT NULL"_s,
             u"a = NULL"_s,
             u"a = 1 = 1"_s,
             u"a.b.c = 1"_s,
             u"a. = 1"_s,
             u".a = 1"_s,
             u"a = b."_s,
             u"* = 1"_s,
             u"a = *"_s,
             u"a == 1"_s,
             u"a = = 1"_s,
             u"a => 1"_s,
             u"a =< 1"_s,
             u"a > = 1"_s,
             u"SELECT * FROM a"_s,
             u"a = 1 WHERE b = 2"_s,
             u"a, b"_s,
             u"a = 1, b = 2"_s,
             u"(a, b) = 1"_s,
             u"(a) = 1"_s,
             u"a = (1)"_s,
             u"a IN (1)"_s,
             u"a BETWEEN 1 AND 2"_s,
             u"a = 1; DROP TABLE Vokabular"_s,
             u"a = 1 -- x"_s,
             u"f(a) = 1"_s,
             u"a = 'l'eau'"_s,
             u"a LIKE 'it's'"_s,
         })
        EXPECT_EQ(parsed(text), SyntaxErrorText) << text.toStdString();
}

TEST(Parser, BracketsAndNotsMayNestDeepButNotWithoutEnd) {
    const auto nested = [](int depth) { return QString(depth, u'(') + u"a=1"_s + QString(depth, u')'); };
    EXPECT_EQ(parsed(nested(150)), u"a = 1");
    EXPECT_EQ(parsed(nested(1000)), SyntaxErrorText);
    EXPECT_EQ(parsed(nested(1000000)), SyntaxErrorText);
    EXPECT_EQ(parsed(QString(1000000, u'(')), SyntaxErrorText);
    EXPECT_EQ(parsed(QString(u"NOT "_s).repeated(1000000) + u"a=1"_s), SyntaxErrorText);
    EXPECT_EQ(parsed(QString(u"NOT ("_s).repeated(100000)), SyntaxErrorText);
    EXPECT_NE(parsed(QString(u"NOT "_s).repeated(150) + u"a=1"_s), SyntaxErrorText);
    // Brackets side by side are no depth.
    EXPECT_NE(parsed(QString(u"(a=1) AND "_s).repeated(5000) + u"(a=1)"_s), SyntaxErrorText);
}

TEST(Parser, AnyRowOfWordsIsEitherReadOrRefused) {
    const QStringList words =
        u"a b [c d] 1 'x' 'y*' = <> < ( ) ( ) AND OR NOT LIKE IS NULL . , *"_s.split(u' ');
    std::mt19937 random(7);
    int read = 0;
    for (int round = 0; round < 30000; ++round) {
        QString text;
        const auto length = random() % 9;
        for (std::size_t i = 0; i < length; ++i)
            text += words[static_cast<qsizetype>(random() % static_cast<unsigned>(words.size()))] + u' ';
        read += parsed(text) != SyntaxErrorText ? 1 : 0;
    }
    EXPECT_GT(read, 20);
}
