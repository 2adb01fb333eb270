#include "ErrorScore.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace lingomat;

TEST(ErrorScore, MovesByOneWithinItsBounds) {
    struct Case {
        QString before;
        int right;
        int wrong;
    };
    for (const Case& test : {Case{u"1"_s, 1, 2}, Case{u"2"_s, 1, 3}, Case{u"3"_s, 2, 4}, Case{u"4"_s, 3, 5},
                             Case{u"5"_s, 4, 6}, Case{u"6"_s, 5, 6}}) {
        EXPECT_EQ(scoreAfterVerdict(test.before, true), test.right) << test.before.toStdString();
        EXPECT_EQ(scoreAfterVerdict(test.before, false), test.wrong) << test.before.toStdString();
    }
}

TEST(ErrorScore, AnyOtherTextCountsAsNone) {
    for (const QString& text :
         {u""_s, u"0"_s, u"7"_s, u"-1"_s, u" 3"_s, u"3 "_s, u"03"_s, u"10"_s, u"x"_s, u"٣"_s, u"３"_s}) {
        EXPECT_EQ(scoreAfterVerdict(text, true), 1) << text.toStdString();
        EXPECT_EQ(scoreAfterVerdict(text, false), 1) << text.toStdString();
    }
}
