#include "FittingFont.h"

#include <QFontMetrics>

#include <algorithm>

namespace lingomat {

namespace {

constexpr int Endless = 1 << 20; // pixels

bool hasRoom(const QFont& font, const QString& text, const QSize& room) {
    const QRect page(0, 0, room.width(), Endless);
    const QRect needed = QFontMetrics(font).boundingRect(page, Qt::AlignHCenter | Qt::TextWordWrap, text);
    return needed.width() <= room.width() && needed.height() <= room.height();
}

} // namespace

QFont fittingFont(const QFont& largest, qreal smallestPoints, const QString& text, const QSize& room) {
    constexpr qreal Step = 1;
    QFont font = largest;
    while (font.pointSizeF() > smallestPoints && !hasRoom(font, text, room))
        font.setPointSizeF(std::max(font.pointSizeF() - Step, smallestPoints));
    return font;
}

} // namespace lingomat
