#include "ScoreRules.h"

#include "ExpressionText.h"

using namespace Qt::StringLiterals;

namespace lingomat {

namespace {

/// One side of the range, as members of the values.
struct Side {
    QString ScoreValues::*text;
    int ScoreValues::*slider;
};
constexpr Side lowerSide{&ScoreValues::minText, &ScoreValues::minSlider};
constexpr Side upperSide{&ScoreValues::maxText, &ScoreValues::maxSlider};

/// A text that would cross the other side's gives way to its own slider, which still has the old value.
ScoreCheck afterText(const ScoreValues& values, const Side& changed, bool crossed) {
    ScoreCheck check{.values = values, .refused = crossed};
    if (crossed)
        check.values.*changed.text = MyItoS(values.*changed.slider);
    else
        check.values.*changed.slider = MyStoI(values.*changed.text);
    return check;
}

/// A slider that would cross the other side springs back to it.
ScoreCheck afterSlider(const ScoreValues& values, const Side& changed, const Side& other, bool crossed) {
    ScoreCheck check{.values = values, .refused = crossed, .accepted = !crossed};
    if (crossed) {
        check.values.*changed.text = values.*other.text;
        check.values.*changed.slider = values.*other.slider;
    } else {
        check.values.*changed.text = MyItoS(values.*changed.slider);
    }
    return check;
}

} // namespace

ScoreCheck checkScoreValues(const QString& kind, const ScoreValues& values) {
    const int min = MyStoI(values.minText);
    const int max = MyStoI(values.maxText);
    if (kind == "MaxText"_L1)
        return afterText(values, upperSide, max < min);
    if (kind == "MinText"_L1)
        return afterText(values, lowerSide, min > max);
    if (kind == "MaxSlider"_L1)
        return afterSlider(values, upperSide, lowerSide, values.maxSlider < min);
    if (kind == "MinSlider"_L1)
        return afterSlider(values, lowerSide, upperSide, values.minSlider > max);
    return {.values = values};
}

bool isScore(const QString& text) {
    const int score = MyStoI(text);
    return score >= LowestScore && score <= HighestScore;
}

} // namespace lingomat
