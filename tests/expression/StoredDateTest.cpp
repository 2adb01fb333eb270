#include "StoredDate.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace lingomat;

TEST(DateToStored, PutsTheYearIntoItsCentury) {
    const QString table[][2] = {
        {u"31.12.99"_s, u"19991231"_s}, {u"01.02.90"_s, u"20900201"_s}, {u"01.02.91"_s, u"19910201"_s},
        {u"29.02.00"_s, u"20000229"_s}, {u"05/06/07"_s, u"20070605"_s},
    };
    for (const auto& [text, stored] : table)
        EXPECT_EQ(DateToStored(text), stored) << text.toStdString();
}

TEST(DateToDisplay, TurnsTheStoredFormRound) {
    EXPECT_EQ(DateToDisplay(u"19991231"_s), u"31.12.99");
    EXPECT_EQ(DateToDisplay(u"20010203"_s), u"03.02.01");
}

TEST(StoredDate, TextOfAnotherLengthComesBackAsItIs) {
    for (const QString& text :
         {QString(), u"1.2.99"_s, u"31.12.1999"_s, u"1999123"_s, u"199912311"_s, u"猫"_s}) {
        EXPECT_EQ(DateToStored(text), text) << text.toStdString();
        EXPECT_EQ(DateToDisplay(text), text) << text.toStdString();
        EXPECT_EQ(FormatDatum(text), text) << text.toStdString();
    }
}

TEST(StoredDate, EightUnitsThatHoldACharacterOfTwoAreNoDate) {
    const QString text = u"1😀😀😀2"_s;
    ASSERT_EQ(text.size(), 8);
    EXPECT_EQ(DateToStored(text), text);
    EXPECT_EQ(DateToDisplay(text), text);
}

TEST(FormatDatum, IsTheDisplayForm) {
    for (const QString& text : {u"19991231"_s, u"20010203"_s, u"abcdefgh"_s})
        EXPECT_EQ(FormatDatum(text), DateToDisplay(text));
    EXPECT_EQ(FormatDatum(u"20050607"_s), u"07.06.05");
}

TEST(StoredDate, OfACalendarDate) {
    EXPECT_EQ(storedDate(QDate(2001, 2, 3)), u"20010203");
    EXPECT_EQ(storedDate(QDate(1999, 12, 31)), u"19991231");
    EXPECT_EQ(storedDate(QDate()), QString());
    EXPECT_EQ(DateToStored(DateToDisplay(storedDate(QDate(2024, 2, 29)))), u"20240229");
}
