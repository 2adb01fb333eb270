#include "ScoreRules.h"

#include "QtPrinters.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace lingomat;

namespace {

struct Case {
    const char16_t* kind;
    ScoreValues before;
    ScoreValues after;
    bool refused;
    bool accepted;
};

ScoreValues values(const char16_t* minText, const char16_t* maxText, int minSlider, int maxSlider) {
    return {QString::fromUtf16(minText), QString::fromUtf16(maxText), minSlider, maxSlider};
}

} // namespace

TEST(ScoreValuesCheck, FollowsWhatChangedOrRefusesIt) {
    const Case cases[] = {
        // A text moves its slider, or takes the slider's value back.
        {u"MaxText", values(u"2", u"4", 2, 6), values(u"2", u"4", 2, 4), false, false},
        {u"MaxText", values(u"3", u"3", 3, 6), values(u"3", u"3", 3, 3), false, false},
        {u"MaxText", values(u"3", u"2", 3, 6), values(u"3", u"6", 3, 6), true, false},
        {u"MinText", values(u"4", u"5", 1, 5), values(u"4", u"5", 4, 5), false, false},
        {u"MinText", values(u"6", u"5", 1, 5), values(u"1", u"5", 1, 5), true, false},
        // A slider moves its text, or springs back to the other side.
        {u"MaxSlider", values(u"2", u"6", 2, 4), values(u"2", u"4", 2, 4), false, true},
        {u"MaxSlider", values(u"3", u"6", 3, 2), values(u"3", u"3", 3, 3), true, false},
        {u"MinSlider", values(u"1", u"5", 4, 5), values(u"4", u"5", 4, 5), false, true},
        {u"MinSlider", values(u"1", u"5", 6, 5), values(u"5", u"5", 5, 5), true, false},
        // A text that is not exactly one digit counts as 0.
        {u"MaxText", values(u"1", u"12", 1, 6), values(u"1", u"6", 1, 6), true, false},
        {u"MaxSlider", values(u"x", u"6", 1, 1), values(u"x", u"1", 1, 1), false, true},
        {u"Max", values(u"3", u"2", 3, 2), values(u"3", u"2", 3, 2), false, false},
    };
    for (const auto& [kind, before, after, refused, accepted] : cases) {
        const ScoreCheck check = checkScoreValues(QString::fromUtf16(kind), before);
        const std::string which = QString::fromUtf16(kind).toStdString() + ' ' +
                                  before.minText.toStdString() + ' ' + before.maxText.toStdString();
        EXPECT_EQ(check.values, after) << which;
        EXPECT_EQ(check.refused, refused) << which;
        EXPECT_EQ(check.accepted, accepted) << which;
    }
}

TEST(Score, IsOneDigitFromOneToSix) {
    for (const char16_t* text : {u"1", u"3", u"6"})
        EXPECT_TRUE(isScore(QString::fromUtf16(text)));
    for (const char16_t* text : {u"0", u"7", u"12", u" 1", u"", u"x", u"😀"})
        EXPECT_FALSE(isScore(QString::fromUtf16(text)));
}
