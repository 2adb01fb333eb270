#pragma once

#include <QRect>

class QWidget;

namespace lingomat {

/// The top left corner of a window of that place and size once it has been pushed inside `area`; its top left
/// stays visible where it is larger.
[[nodiscard]] QPoint keptInside(const QRect& window, const QRect& area);

/// Where a window of that size stands beside another: to the right, to the left where there is more room, in
/// any case inside `area`.
[[nodiscard]] QPoint placeBeside(const QRect& other, QSize size, const QRect& area);

/// Where a window of that size stands at a cell: right below it, above it where it would not fit below.
[[nodiscard]] QPoint placeAtCell(const QRect& cell, QSize size, const QRect& area);

/// The part of the screen that windows may use, for the screen that a widget is on.
[[nodiscard]] QRect usableScreen(const QWidget& widget);

/// Keeps a window in front of another that is not its parent, and out of the reach of that one's modality.
/// Both get their system windows if need be.
void keepInFrontOf(QWidget& window, const QWidget& owner);

} // namespace lingomat
