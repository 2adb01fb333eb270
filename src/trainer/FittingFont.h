#pragma once

#include <QFont>
#include <QSize>

namespace lingomat {

/// The font in which a text, wrapped at its blanks, has room: `largest`, or made smaller point by point,
/// but no smaller than `smallestPoints` even where the text has no room then.
[[nodiscard]] QFont fittingFont(const QFont& largest, qreal smallestPoints, const QString& text,
                                const QSize& room);

} // namespace lingomat
