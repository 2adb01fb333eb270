#include "DateRules.h"

#include "QtPrinters.h"

#include <QHash>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace lingomat;

namespace {

DateParts date(const char16_t* stored) {
    return splitDate(QString::fromUtf16(stored));
}

struct Correction {
    const char16_t* typed;
    const char16_t* corrected;
    int count;
};

} // namespace

TEST(SplitDate, TakesYearMonthAndDay) {
    EXPECT_EQ(date(u"20020301"), (DateParts{.day = u"01"_s, .month = u"03"_s, .year = u"2002"_s}));
    EXPECT_EQ(date(u"200203"), (DateParts{.day = {}, .month = u"03"_s, .year = u"2002"_s}));
    EXPECT_EQ(date(u""), (DateParts{.day = {}, .month = {}, .year = {}}));
    EXPECT_EQ(date(u"20020301").stored(), u"20020301"_s);
}

TEST(HighestDate, IsKeptPartByPart) {
    const Correction cases[] = {
        {u"20020301", u"20020301", 0}, // the limit itself
        {u"20011231", u"20011231", 0}, // a lower year: month and day are free
        {u"20020231", u"20020231", 0}, // a lower month: the day is free
        {u"20020302", u"20020301", 1}, {u"20020401", u"20020301", 1},
        {u"20021231", u"20020301", 2}, // month, then day
        {u"20030101", u"20020101", 1}, // the year alone: January is below March
        {u"20511231", u"20020301", 3}, // all three
    };
    for (const auto& [typed, corrected, count] : cases) {
        DateParts parts = date(typed);
        EXPECT_EQ(lowerToHighest(parts, date(u"20020301")), count) << QString::fromUtf16(typed).toStdString();
        EXPECT_EQ(parts.stored(), QString::fromUtf16(corrected));
    }
}

TEST(LowestDate, IsTheMirrorImage) {
    const Correction cases[] = {
        {u"20010615", u"20010615", 0}, {u"20020101", u"20020101", 0}, {u"20010701", u"20010701", 0},
        {u"20010614", u"20010615", 1}, {u"20010515", u"20010615", 1}, {u"20010101", u"20010615", 2},
        {u"20001231", u"20011231", 1}, {u"19900101", u"20010615", 3},
    };
    for (const auto& [typed, corrected, count] : cases) {
        DateParts parts = date(typed);
        EXPECT_EQ(raiseToLowest(parts, date(u"20010615")), count) << QString::fromUtf16(typed).toStdString();
        EXPECT_EQ(parts.stored(), QString::fromUtf16(corrected));
    }
}

TEST(DateLimits, AreComparedAsTexts) {
    DateParts parts{.day = u"9"_s, .month = u"03"_s, .year = u"2002"_s};
    EXPECT_EQ(lowerToHighest(parts, date(u"20020310")), 1); // "9" stands behind "10"
    EXPECT_EQ(parts.day, u"10"_s);
    parts = {.day = u"xx"_s, .month = u"03"_s, .year = u"2001"_s};
    EXPECT_EQ(lowerToHighest(parts, date(u"20020310")), 0);
    EXPECT_EQ(parts.day, u"xx"_s);
}

TEST(LeadingZero, PadsToTwoCharacters) {
    EXPECT_EQ(withLeadingZero(u"5"_s), u"05"_s);
    EXPECT_EQ(withLeadingZero(u"15"_s), u"15"_s);
    EXPECT_EQ(withLeadingZero(u"2002"_s), u"2002"_s);
    EXPECT_EQ(withLeadingZero({}), u"0"_s);
}

TEST(HighestDay, FebruaryHas29DaysInEveryYear) {
    const QHash<QString, int> days{{u"01"_s, 31}, {u"02"_s, 29}, {u"03"_s, 31}, {u"04"_s, 30},
                                   {u"05"_s, 31}, {u"06"_s, 30}, {u"07"_s, 31}, {u"08"_s, 31},
                                   {u"09"_s, 30}, {u"10"_s, 31}, {u"11"_s, 30}, {u"12"_s, 31},
                                   {u"2"_s, 29},  {u"13"_s, 30}, {u""_s, 30},   {u"x"_s, 30}};
    for (auto month = days.cbegin(); month != days.cend(); ++month)
        EXPECT_EQ(highestDay(month.key()), month.value()) << month.key().toStdString();
}

TEST(SpinLimitsOfAKind, AreThoseOfDayMonthAndYear) {
    EXPECT_EQ(spinLimits(u"day"_s), (SpinLimits{1, 31}));
    EXPECT_EQ(spinLimits(u"month"_s), (SpinLimits{1, 12}));
    EXPECT_EQ(spinLimits(u"year"_s), (SpinLimits{1990, 2050}));
    EXPECT_FALSE(spinLimits(u"Day"_s));
    EXPECT_FALSE(spinLimits({}));
}
