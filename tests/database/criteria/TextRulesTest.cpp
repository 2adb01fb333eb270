#include "TextRules.h"
#include "QtPrinters.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using criteria::compareText;
using criteria::comparisonForm;

namespace {

std::u32string form(QStringView text) {
    const auto result = comparisonForm(text);
    return {result.begin(), result.end()};
}

} // namespace

TEST(CompareText, CaseDoesNotCountInAnyScript) {
    const QString table[][2] = {
        {u"HOUSE"_s, u"house"_s}, {u"ÄÖÜ"_s, u"äöü"_s}, {u"ÉCOLE"_s, u"école"_s}, {u"ΛΌΓΟΣ"_s, u"λόγοσ"_s},
        {u"ΛΌΓΟΣ"_s, u"λόγος"_s}, {u"ПЁС"_s, u"пёс"_s}, {u"ŐSZ"_s, u"ősz"_s},     {u"ԱՐԵՒ"_s, u"արեւ"_s},
        {u"𐐀𐐁"_s, u"𐐨𐐩"_s},       {u"ẞ"_s, u"ß"_s},     {u"Ǆ"_s, u"ǆ"_s},         {u"µ"_s, u"μ"_s},
        {u"ＡＢ"_s, u"ａｂ"_s},   {u"Ⅷ"_s, u"ⅷ"_s},
    };
    for (const auto& [a, b] : table) {
        EXPECT_EQ(compareText(a, b), 0) << a.toStdString();
        EXPECT_EQ(compareText(b, a), 0) << a.toStdString();
    }
}

TEST(CompareText, AccentsCount) {
    const QString table[][2] = {
        {u"schon"_s, u"schön"_s}, {u"cote"_s, u"côté"_s}, {u"ano"_s, u"año"_s}, {u"e"_s, u"ё"_s},
        {u"и"_s, u"й"_s},         {u"α"_s, u"ά"_s},       {u"o"_s, u"ø"_s},     {u"i"_s, u"ı"_s},
        {u"ss"_s, u"ß"_s},        {u"ae"_s, u"æ"_s},      {u"か"_s, u"が"_s},   {u"か"_s, u"カ"_s},
        {u"e"_s, u"é"_s},
    };
    for (const auto& [a, b] : table) {
        EXPECT_NE(compareText(a, b), 0) << a.toStdString() << ' ' << b.toStdString();
        EXPECT_EQ(compareText(a, b), -compareText(b, a)) << a.toStdString();
    }
}

TEST(CompareText, ComposedAndDecomposedAreOneText) {
    const QString table[][2] = {
        {u"é"_s, u"e\u0301"_s},
        {u"Å"_s, u"A\u030A"_s},
        {u"Å"_s, u"\u212B"_s},
        {u"ё"_s, u"е\u0308"_s},
        {u"ά"_s, u"α\u0301"_s},
        {u"が"_s, u"か\u3099"_s},
        {u"한"_s, u"\u1112\u1161\u11AB"_s},
        {u"ậ"_s, u"a\u0323\u0302"_s},
        {u"ậ"_s, u"a\u0302\u0323"_s},
        {u"É"_s, u"e\u0301"_s},
    };
    for (const auto& [a, b] : table)
        EXPECT_EQ(compareText(a, b), 0) << a.toStdString();
}

TEST(CompareText, OrdersByTheFoldedText) {
    const QString ascending[] = {QString(), u" "_s, u"10"_s, u"9"_s,  u"A"_s,      u"ab"_s, u"B"_s,
                                 u"z"_s,    u"ä"_s, u"Ω"_s,  u"猫"_s, u"\uFB01"_s, u"😀"_s};
    for (std::size_t i = 0; i < std::size(ascending); ++i)
        for (std::size_t j = 0; j < std::size(ascending); ++j)
            EXPECT_EQ(compareText(ascending[i], ascending[j]), i < j   ? -1
                                                               : i > j ? 1
                                                                       : 0)
                << ascending[i].toStdString() << " | " << ascending[j].toStdString();
}

TEST(CompareText, ANulIsACharacterLikeAnyOther) {
    const QString with = u"a\0b"_s;
    ASSERT_EQ(with.size(), 3);
    EXPECT_NE(compareText(with, u"a"), 0);
    EXPECT_NE(compareText(with, u"ab"), 0);
    EXPECT_EQ(compareText(with, u"A\0B"_s), 0);
}

TEST(ComparisonForm, HasOneElementPerCodePoint) {
    EXPECT_EQ(form(u"a😀b"), U"a😀b");
    EXPECT_EQ(form(u"ẞß"), U"ßß");
    EXPECT_EQ(form(u"e\u0301"), U"é");
    EXPECT_EQ(form(u""), U"");
}

TEST(ComparisonForm, HalfACharacterStandsForItself) {
    const char16_t high[] = {u'a', 0xD83D};
    const char16_t low[] = {0xDE00, u'a'};
    EXPECT_EQ(form(QStringView(high, 2)), (std::u32string{U'a', 0xD83D}));
    EXPECT_EQ(form(QStringView(low, 2)), (std::u32string{0xDE00, U'a'}));
}

TEST(ComparisonForm, OfALongTextIsWhole) {
    const QString text = QString(5000, u'Ä');
    EXPECT_EQ(form(text), std::u32string(5000, U'ä'));
}
