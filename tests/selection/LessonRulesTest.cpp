#include "LessonRules.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace lingomat {
namespace {

TEST(LessonSection, IsNamedByTheFileAndNotByItsFolder) {
    EXPECT_EQ(lessonSection(u"/home/me/Example.lmt"_s, {}), u"Queries\\Example.lmt"_s);
    EXPECT_EQ(lessonSection(u"C:\\data\\Example.lmt"_s, {}), u"Queries\\Example.lmt"_s);
    EXPECT_EQ(lessonSection(u"/home/me/Example.lmt"_s, u"Lesson 1"_s), u"Queries\\Example.lmt\\Lesson 1"_s);
    EXPECT_EQ(lessonSection(u"Example.lmt"_s, {}), u"Queries\\"_s) << "a path without a folder";
}

TEST(LessonSection, TakesEveryCharacterOfAName) {
    for (const QString& name :
         {u"a\\b"_s, u"a/b"_s, u"I1"_s, u"..."_s, u"'x' \"y\""_s, u"Übung 1"_s, u"🙂"_s})
        EXPECT_EQ(lessonSection(u"/x.lmt"_s, name), u"Queries\\x.lmt\\"_s + name);
}

TEST(LessonKey, HoldsTheNumber) {
    EXPECT_EQ(lessonKey(1), u"I1"_s);
    EXPECT_EQ(lessonNumber(u"I1"_s), 1);
    EXPECT_EQ(lessonNumber(u"I120"_s), 120);
    for (const QString& damaged :
         {u""_s, u"I"_s, u"I0"_s, u"I-1"_s, u"I01"_s, u"X1"_s, u"Ix"_s, u"I99999999999999999999"_s, u"1"_s})
        EXPECT_EQ(lessonNumber(damaged), 0) << damaged.toStdString();
}

TEST(LowestFreeNumber, FillsTheFirstGap) {
    EXPECT_EQ(lowestFreeNumber({}), 1);
    EXPECT_EQ(lowestFreeNumber({u"I1"_s, u"I2"_s}), 3);
    EXPECT_EQ(lowestFreeNumber({u"I2"_s, u"I3"_s}), 1);
    EXPECT_EQ(lowestFreeNumber({u"I1"_s, u"I3"_s}), 2);
    EXPECT_EQ(lowestFreeNumber({u"i1"_s, u"x"_s}), 1);
}

struct Choice {
    QStringList offered;
    QStringList wanted;
    DividedValues result;
};

class ChooseFrom : public testing::TestWithParam<Choice> {};

TEST_P(ChooseFrom, MovesValuesOver) {
    EXPECT_EQ(chooseFrom(GetParam().offered, GetParam().wanted), GetParam().result);
}

INSTANTIATE_TEST_SUITE_P(
    Table, ChooseFrom,
    testing::Values(
        Choice{{}, {}, {}}, Choice{{u"a"_s, u"b"_s}, {}, {{u"a"_s, u"b"_s}, {}}},
        Choice{
            {u"a"_s, u"b"_s, u"c"_s}, {u"c"_s, u"a"_s}, {{u"b"_s}, {u"c"_s, u"a"_s}}}, // in order of choice
        Choice{{u"a"_s}, {u"x"_s, u"a"_s}, {{}, {u"a"_s}}},                            // dropped
        Choice{{u"a"_s}, {u"a"_s, u"a"_s}, {{}, {u"a"_s}}},                            // taken already
        Choice{{u"a"_s, u"A"_s}, {u"A"_s}, {{u"a"_s}, {u"A"_s}}},                      // case tells apart
        Choice{{u"a"_s, u"b"_s, u"a"_s}, {u"a"_s}, {{u"b"_s, u"a"_s}, {u"a"_s}}}));    // the first of two

} // namespace
} // namespace lingomat
