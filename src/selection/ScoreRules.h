#pragma once

#include <QString>

namespace lingomat {

inline constexpr int LowestScore = 1;
inline constexpr int HighestScore = 6;

/// The two text boxes and the two sliders that show a range of scores.
struct ScoreValues {
    QString minText;
    QString maxText;
    int minSlider = LowestScore;
    int maxSlider = HighestScore;
    friend bool operator==(const ScoreValues&, const ScoreValues&) = default;
};

struct ScoreCheck {
    ScoreValues values;    ///< what the controls have to show
    bool refused = false;  ///< the change would have put the lower score above the upper one
    bool accepted = false; ///< a slider's change was taken over
};

/// Keeps text and slider of one side alike, and the lower score not above the upper one. `kind` tells what
/// changed: "MinText", "MaxText", "MinSlider", "MaxSlider"; any other changes nothing. A text that is not
/// exactly one digit counts as 0.
[[nodiscard]] ScoreCheck checkScoreValues(const QString& kind, const ScoreValues& values);

/// Whether a text is a score from 1 to 6.
[[nodiscard]] bool isScore(const QString& text);

} // namespace lingomat
