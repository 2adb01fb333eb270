#include "WindowPlacement.h"

#include <QScreen>
#include <QWidget>
#include <QWindow>

#include <algorithm>

namespace lingomat {

QPoint keptInside(const QRect& window, const QRect& area) {
    const int x = std::min(window.x(), area.x() + area.width() - window.width());
    const int y = std::min(window.y(), area.y() + area.height() - window.height());
    return {std::max(x, area.x()), std::max(y, area.y())};
}

QPoint placeBeside(const QRect& other, QSize size, const QRect& area) {
    const int rightOf = other.x() + other.width();
    const int roomRight = area.x() + area.width() - rightOf;
    const int roomLeft = other.x() - area.x();
    const bool onTheRight = roomRight >= size.width() || roomRight >= roomLeft;
    const int x = onTheRight ? rightOf : other.x() - size.width();
    return keptInside({QPoint(x, other.y()), size}, area);
}

QPoint placeAtCell(const QRect& cell, QSize size, const QRect& area) {
    const int below = cell.y() + cell.height();
    const bool fitsBelow = below + size.height() <= area.y() + area.height();
    const int y = fitsBelow ? below : cell.y() - size.height();
    return keptInside({QPoint(cell.x(), y), size}, area);
}

void keepInFrontOf(QWidget& window, const QWidget& owner) {
    window.winId(); // makes the system window
    owner.winId();
    QWindow* front = window.windowHandle();
    QWindow* behind = owner.windowHandle();
    if (front && behind && front != behind)
        front->setTransientParent(behind);
}

QRect usableScreen(const QWidget& widget) {
    return widget.screen()->availableGeometry();
}

} // namespace lingomat
