#pragma once

#include <QString>

#include <functional>

namespace lingomat {

/// Shortens a text that is wider than `width`, for a column on paper: its longest beginning that fits, less
/// its last character, and three dots, which may stand out beyond `width`. `textWidth` measures in the units
/// of `width`. No character is cut in halves.
[[nodiscard]] QString StringCut(const QString& text, double width,
                                const std::function<double(const QString&)>& textWidth);

} // namespace lingomat
