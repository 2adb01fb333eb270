#include "VerdictBox.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>

namespace lingomat {

namespace {

constexpr QColor RightGround(0, 255, 0);
constexpr QColor WrongGround(255, 0, 0);
constexpr QColor Ink(0, 0, 0);          // readable on both grounds, whatever the palette
constexpr qsizetype LongestShown = 500; // characters; no box is wider

} // namespace

VerdictBox::VerdictBox(Verdict verdict, const QString& name, QWidget* parent)
    : QLabel(parent), m_verdict(verdict) {
    setObjectName(name);
    setTextFormat(Qt::PlainText);
    hide();
}

int VerdictBox::margin() const {
    return fontMetrics().height() / 4;
}

QSize VerdictBox::sizeHint() const {
    const int line = fontMetrics().height();
    const int width = fontMetrics().horizontalAdvance(text().left(LongestShown));
    return {width + line + 5 * margin(), line + 2 * margin()};
}

QSize VerdictBox::minimumSizeHint() const {
    return {0, sizeHint().height()};
}

void VerdictBox::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.fillRect(rect(), m_verdict == Verdict::Right ? RightGround : WrongGround);
    const int line = fontMetrics().height();
    drawSign(painter, QRectF(margin(), (height() - line) / 2.0, line, line));
    const QRect room = rect().adjusted(line + 2 * margin(), 0, -margin(), 0);
    const QString shown =
        fontMetrics().elidedText(text().left(LongestShown), Qt::ElideRight, std::max(0, room.width()));
    painter.setPen(Ink);
    painter.drawText(room, Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine, shown);
}

void VerdictBox::drawSign(QPainter& painter, const QRectF& place) const {
    const auto at = [&place](qreal x, qreal y) {
        return QPointF(place.x() + x * place.width(), place.y() + y * place.height());
    };
    QPainterPath sign;
    if (m_verdict == Verdict::Right) {
        sign.moveTo(at(0.15, 0.55));
        sign.lineTo(at(0.4, 0.8));
        sign.lineTo(at(0.85, 0.2));
    } else {
        sign.moveTo(at(0.2, 0.2));
        sign.lineTo(at(0.8, 0.8));
        sign.moveTo(at(0.8, 0.2));
        sign.lineTo(at(0.2, 0.8));
    }
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Ink, place.height() / 8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPath(sign);
}

} // namespace lingomat
