#pragma once

#include <QString>

namespace lingomat {

inline constexpr int LowestErrorScore = 1;  ///< an entry that is known
inline constexpr int HighestErrorScore = 6; ///< one that keeps going wrong

/// The error score behind a verdict: one less after a right answer, one more after a wrong one, within its
/// bounds. A text that is not exactly one of "1" to "6" counts as 0.
[[nodiscard]] int scoreAfterVerdict(const QString& score, bool answeredRight);

} // namespace lingomat
