// Sets of characters in patterns: [a-z], [!a-z], and wildcards that stand for themselves.

#include "ErrorOf.h"
#include "LikePattern.h"

using namespace Qt::StringLiterals;
using criteria::LikePattern;
using dao::errorOf;

namespace {

/// The characters among `candidates` that a pattern of one set accepts.
QString accepted(const QString& pattern, const QString& candidates) {
    const LikePattern compiled(pattern);
    QString result;
    for (const QChar c : candidates)
        if (compiled.matches(QString(c)))
            result += c;
    return result;
}

bool like(const QString& text, const QString& pattern) {
    return LikePattern(pattern).matches(text);
}

} // namespace

TEST(LikeSet, HoldsItsCharactersAndRanges) {
    EXPECT_EQ(accepted(u"[abc]"_s, u"abcdABCD-"_s), u"abcABC");
    EXPECT_EQ(accepted(u"[a-c]"_s, u"abcdABCD-"_s), u"abcABC");
    EXPECT_EQ(accepted(u"[A-C]"_s, u"abcdABCD-"_s), u"abcABC");
    EXPECT_EQ(accepted(u"[a-cx-z]"_s, u"abcdwxyz-"_s), u"abcxyz");
    EXPECT_EQ(accepted(u"[a-a]"_s, u"abA"_s), u"aA");
    EXPECT_EQ(accepted(u"[0-9]"_s, u"0159a²"_s), u"0159");
    EXPECT_EQ(accepted(u"[äöü]"_s, u"aäÄoöuü"_s), u"äÄöü");
    EXPECT_EQ(accepted(u"[а-я]"_s, u"ажЖяёa"_s), u"ажЖя");
    EXPECT_EQ(accepted(u"[α-ω]"_s, u"αΩςa"_s), u"αΩς");
    EXPECT_EQ(accepted(u"[ぁ-ん]"_s, u"あかん猫"_s), u"あかん");
}

TEST(LikeSet, AnExclamationMarkInFrontNegates) {
    EXPECT_EQ(accepted(u"[!abc]"_s, u"abcdABCD!"_s), u"dD!");
    EXPECT_EQ(accepted(u"[!a-c]"_s, u"abcd-"_s), u"d-");
    EXPECT_EQ(accepted(u"[!!]"_s, u"!a"_s), u"a");
    EXPECT_FALSE(like(QString(), u"[!a]"_s)) << "one character that is no a";
    EXPECT_FALSE(like(u"bb"_s, u"[!a]"_s));
}

TEST(LikeSet, ALoneExclamationMarkStandsForItself) {
    EXPECT_EQ(accepted(u"[!]"_s, u"!a"_s), u"!");
    EXPECT_EQ(accepted(u"[a!]"_s, u"!ab"_s), u"!a");
}

TEST(LikeSet, AHyphenAtAnEndStandsForItself) {
    EXPECT_EQ(accepted(u"[-]"_s, u"-a"_s), u"-");
    EXPECT_EQ(accepted(u"[-a]"_s, u"-ab"_s), u"-a");
    EXPECT_EQ(accepted(u"[a-]"_s, u"-ab"_s), u"-a");
    EXPECT_EQ(accepted(u"[!-]"_s, u"-ab"_s), u"ab");
    EXPECT_EQ(accepted(u"[!-a]"_s, u"-ab"_s), u"b");
    EXPECT_EQ(accepted(u"[a-c-]"_s, u"-abcd"_s), u"-abc");
}

TEST(LikeSet, WildcardsInBracketsStandForThemselves) {
    EXPECT_EQ(accepted(u"[*]"_s, u"*?#[a"_s), u"*");
    EXPECT_EQ(accepted(u"[?]"_s, u"*?#[a"_s), u"?");
    EXPECT_EQ(accepted(u"[#]"_s, u"*?#[1"_s), u"#");
    EXPECT_EQ(accepted(u"[[]"_s, u"*?#[]"_s), u"[");
    EXPECT_EQ(accepted(u"[*?#]"_s, u"*?#[a1"_s), u"*?#");
    EXPECT_TRUE(like(u"what?"_s, u"what[?]"_s));
    EXPECT_FALSE(like(u"what!"_s, u"what[?]"_s));
    EXPECT_TRUE(like(u"a*b"_s, u"*[*]*"_s));
    EXPECT_FALSE(like(u"ab"_s, u"*[*]*"_s));
    EXPECT_TRUE(like(u"[x]"_s, u"[[]x]"_s));
}

TEST(LikeSet, AnEmptyOneStandsForNothing) {
    EXPECT_TRUE(like(u"ab"_s, u"a[]b"_s));
    EXPECT_TRUE(like(QString(), u"[]"_s));
    EXPECT_FALSE(like(u"a"_s, u"[]"_s));
}

TEST(LikeSet, ThatIsNotClosedIsAnInvalidPattern) {
    for (const QString& pattern :
         {u"["_s, u"[a"_s, u"a["_s, u"*["_s, u"[a]["_s, u"[!"_s, u"[a-"_s, u"[a-z"_s, u"x[[[["_s, u"*a[b*"_s})
        EXPECT_EQ(errorOf([&] { const LikePattern p(pattern); }), 93) << pattern.toStdString();
}

TEST(LikeSet, ARangeThatRunsBackwardsIsAnInvalidPattern) {
    for (const QString& pattern :
         {u"[c-a]"_s, u"[9-0]"_s, u"[!z-a]"_s, u"[a-cz-x]"_s, u"[я-а]"_s, u"[ä-a]"_s})
        EXPECT_EQ(errorOf([&] { const LikePattern p(pattern); }), 93) << pattern.toStdString();
    // Case does not count: the range runs from z to a.
    EXPECT_EQ(errorOf([&] { const LikePattern p(u"[Z-a]"_s); }), 93);
    EXPECT_EQ(errorOf([&] { const LikePattern p(u"[a-Z]"_s); }), std::nullopt);
}

TEST(LikeSet, ADecomposedCharacterInItIsOneCharacter) {
    EXPECT_TRUE(like(u"é"_s, u"[e\u0301]"_s));
    EXPECT_FALSE(like(u"e"_s, u"[e\u0301]"_s));
    EXPECT_TRUE(like(u"e\u0301"_s, u"[é]"_s));
}
