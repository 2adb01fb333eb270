#include "RowMark.h"

#include "FlexGrid.h"
#include "KeptCell.h"

#include <QPainter>
#include <QPolygonF>

namespace lingomat {

namespace {

constexpr int MarkColumn = 0;
constexpr int Centred = 4;

/// The colour shows on light and on dark ground.
QPixmap drawnMark(int side, qreal scale) {
    QPixmap picture(QSize(side, side) * scale);
    picture.setDevicePixelRatio(scale);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0xd0, 0x50, 0x20));
    painter.drawPolygon(QPolygonF(
        {QPointF(0.2 * side, 0.1 * side), QPointF(0.9 * side, 0.5 * side), QPointF(0.2 * side, 0.9 * side)}));
    return picture;
}

} // namespace

RowMark::RowMark(FlexGrid& grid, QString path) : m_grid(grid), m_path(std::move(path)) {}

void RowMark::put(int row) {
    setPicture(row, picture());
}

void RowMark::take(int row) {
    if (row >= 0 && row < m_grid.Rows())
        setPicture(row, {});
}

void RowMark::setPicture(int row, const QPixmap& picture) {
    const KeptCell kept(m_grid);
    m_grid.setRow(row);
    m_grid.setCol(MarkColumn);
    if (!picture.isNull())
        m_grid.setCellPictureAlignment(Centred);
    m_grid.setCellPicture(picture);
}

const QPixmap& RowMark::picture() {
    if (m_picture.isNull())
        m_picture.load(m_path);
    if (m_picture.isNull())
        m_picture = drawnMark(m_grid.DefaultRowHeight() / 2, m_grid.devicePixelRatioF());
    return m_picture;
}

} // namespace lingomat
