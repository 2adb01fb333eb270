#include "LikePattern.h"

#include "ErrorOf.h"

using namespace Qt::StringLiterals;
using criteria::LikePattern;
using criteria::PatternKind;
using dao::errorOf;

namespace {

bool like(const QString& text, const QString& pattern) {
    return LikePattern(pattern).matches(text);
}

struct Row {
    QString pattern;
    QString text;
    bool matches;
};

void check(std::initializer_list<Row> table) {
    for (const Row& row : table)
        EXPECT_EQ(like(row.text, row.pattern), row.matches)
            << '"' << row.text.toStdString() << "\" LIKE \"" << row.pattern.toStdString() << '"';
}

} // namespace

TEST(LikePattern, WithoutAWildcardIsTheWholeText) {
    check({
        {u"Haus"_s, u"Haus"_s, true},
        {u"Haus"_s, u"haus"_s, true},
        {u"Haus"_s, u"Hausen"_s, false},
        {u"Haus"_s, u"Hau"_s, false},
        {u"Haus"_s, u" Haus"_s, false},
        {QString(), QString(), true},
        {QString(), u"a"_s, false},
        {u"a"_s, QString(), false},
    });
}

TEST(LikePattern, TheStarIsAnyRun) {
    check({
        {u"*"_s, QString(), true},
        {u"*"_s, u"anything"_s, true},
        {u"**"_s, u"x"_s, true},
        {u"Ha*"_s, u"Ha"_s, true},
        {u"Ha*"_s, u"Haus"_s, true},
        {u"Ha*"_s, u"oHa"_s, false},
        {u"*us"_s, u"Haus"_s, true},
        {u"*us"_s, u"us"_s, true},
        {u"*us"_s, u"Hausen"_s, false},
        {u"*au*"_s, u"Haus"_s, true},
        {u"*au*"_s, u"Hus"_s, false},
        {u"a*b*c"_s, u"abc"_s, true},
        {u"a*b*c"_s, u"aXbYbZc"_s, true},
        {u"a*b*c"_s, u"acb"_s, false},
        {u"*ab"_s, u"aab"_s, true},
        {u"*aab"_s, u"aaab"_s, true},
        {u"a*a"_s, u"a"_s, false},
        {u"*a*a*"_s, u"bab"_s, false},
    });
}

TEST(LikePattern, TheQuestionMarkIsOneCharacter) {
    check({
        {u"?"_s, u"a"_s, true},
        {u"?"_s, QString(), false},
        {u"?"_s, u"ab"_s, false},
        {u"H?us"_s, u"Haus"_s, true},
        {u"H?us"_s, u"Hus"_s, false},
        {u"??"_s, u"猫犬"_s, true},
        {u"?*"_s, QString(), false},
        {u"?*"_s, u"a"_s, true},
        {u"*?"_s, u"a"_s, true},
        {u"*?"_s, QString(), false},
        {u"?*?"_s, u"a"_s, false},
        {u"?*?"_s, u"ab"_s, true},
    });
}

TEST(LikePattern, TheNumberSignIsOneDigit) {
    check({
        {u"#"_s, u"0"_s, true},
        {u"#"_s, u"9"_s, true},
        {u"#"_s, u"a"_s, false},
        {u"#"_s, QString(), false},
        {u"#"_s, u"١"_s, false},
        {u"#"_s, u"²"_s, false},
        {u"#"_s, u"５"_s, false},
        {u"####????"_s, u"20020301"_s, true},
        {u"####????"_s, u"200203"_s, false},
        {u"a#*"_s, u"a1bc"_s, true},
    });
}

TEST(LikePattern, OtherSignsStandForThemselves) {
    check({
        {u"100%"_s, u"100%"_s, true},
        {u"100%"_s, u"1000"_s, false},
        {u"a_c"_s, u"abc"_s, false},
        {u"a_c"_s, u"a_c"_s, true},
        {u"a]"_s, u"a]"_s, true},
        {u"!a"_s, u"!a"_s, true},
        {u"a-c"_s, u"b"_s, false},
        {u"\\*"_s, u"\\x"_s, true},
        {u"\\"_s, u"\\"_s, true},
        {u"("_s, u"("_s, true},
        {u".*"_s, u"abc"_s, false},
        {u"'"_s, u"'"_s, true},
    });
}

TEST(LikePattern, FoldsCaseInEveryScriptAndKeepsAccents) {
    check({
        {u"ÄPFEL*"_s, u"äpfelchen"_s, true},
        {u"apfel*"_s, u"Äpfel"_s, false},
        {u"λόγοσ"_s, u"ΛΌΓΟΣ"_s, true},
        {u"*ς"_s, u"ΛΌΓΟΣ"_s, true},
        {u"*ё*"_s, u"ПЁС"_s, true},
        {u"*е*"_s, u"ПЁС"_s, false},
        {u"ß"_s, u"ss"_s, false},
        {u"İ"_s, u"i"_s, false},
    });
}

TEST(LikePattern, ComposedAndDecomposedAreOneText) {
    check({
        {u"é*"_s, u"e\u0301te"_s, true},
        {u"e\u0301*"_s, u"été"_s, true},
        {u"e*"_s, u"e\u0301te"_s, false},
        {u"?t?"_s, u"e\u0301te\u0301"_s, true},
        {u"*\u3099*"_s, u"が"_s, false},
        {u"?"_s, u"が"_s, true},
        {u"?"_s, u"か\u3099"_s, true},
        {u"?"_s, u"\u1112\u1161\u11AB"_s, true},
    });
}

TEST(LikePattern, ACharacterOfTwoUnitsIsOneCharacter) {
    check({
        {u"?"_s, u"😀"_s, true},
        {u"??"_s, u"😀"_s, false},
        {u"a?b"_s, u"a😀b"_s, true},
        {u"*😀"_s, u"😀😀"_s, true},
        {u"[😀]"_s, u"😀"_s, true},
        {u"[😀]"_s, u"😁"_s, false},
        {u"[😀-😂]"_s, u"😁"_s, true},
        {u"[!😀]"_s, u"😁"_s, true},
        {u"𐐀"_s, u"𐐨"_s, true},
    });
}

TEST(LikePattern, ANulIsACharacterLikeAnyOther) {
    check({
        {u"a?b"_s, u"a\0b"_s, true},
        {u"a*b"_s, u"a\0b"_s, true},
        {u"a\0b"_s, u"a\0b"_s, true},
        {u"a\0b"_s, u"a"_s, false},
        {u"a"_s, u"a\0"_s, false},
        {u"[\0]"_s, u"\0"_s, true},
    });
}

TEST(LikePattern, ALineBreakIsACharacterLikeAnyOther) {
    check({{u"a?b"_s, u"a\nb"_s, true}, {u"*b"_s, u"a\nb"_s, true}, {u"a*"_s, u"a\r\nb"_s, true}});
}

// A matcher that tried every run for every star would need more steps here than there are atoms.
TEST(LikePattern, ManyStarsOnALongTextCostNoMoreThanTheirProduct) {
    const QString text(20000, u'a');
    EXPECT_FALSE(like(text, u"a*a*a*a*a*a*a*a*a*a*a*a*a*a*a*a*b"_s));
    EXPECT_FALSE(like(text, QString(u"*a"_s).repeated(200) + u"b"_s));
    EXPECT_TRUE(like(text, QString(u"*a"_s).repeated(200) + u"*"_s));
    EXPECT_FALSE(like(text, QString(u"?*"_s).repeated(100) + u"b"_s));
    EXPECT_FALSE(like(text, QString(u"*[!b]"_s).repeated(50) + u"b"_s));
    EXPECT_TRUE(like(text, QString(100000, u'*')));
}

TEST(LikePattern, KindOfAPattern) {
    EXPECT_EQ(criteria::patternKind(u"*"), PatternKind::Anything);
    for (const QString& pattern : {QString(), u"a"_s, u"]"_s, u"%_"_s, u"!"_s, u"17"_s, u"😀"_s})
        EXPECT_EQ(criteria::patternKind(pattern), PatternKind::Plain) << pattern.toStdString();
    for (const QString& pattern : {u"**"_s, u"a*"_s, u"?"_s, u"#"_s, u"[a]"_s, u"[*]"_s, u"["_s, u"[]"_s})
        EXPECT_EQ(criteria::patternKind(pattern), PatternKind::Wildcards) << pattern.toStdString();
}
