#include "ErrorTrap.h"
#include "FlexGrid.h"
#include "Liste.h"
#include "SharedState.h"

#include <QPainter>
#include <QPolygonF>

namespace lingomat {

namespace {

constexpr int Centred = 4;

/// Lets code move the current cell of a grid, and puts cell and selection back.
class KeptCell {
public:
    explicit KeptCell(FlexGrid& grid)
        : m_grid(grid),
          m_row(grid.Row()),
          m_col(grid.Col()),
          m_rowSel(grid.RowSel()),
          m_colSel(grid.ColSel()) {}
    ~KeptCell() {
        m_grid.setRow(m_row);
        m_grid.setCol(m_col);
        m_grid.setRowSel(m_rowSel);
        m_grid.setColSel(m_colSel);
    }
    Q_DISABLE_COPY_MOVE(KeptCell)

private:
    FlexGrid& m_grid;
    int m_row;
    int m_col;
    int m_rowSel;
    int m_colSel;
};

void setPicture(FlexGrid& grid, int row, const QPixmap& picture) {
    const KeptCell kept(grid);
    grid.setRow(row);
    grid.setCol(Liste::ColMarke);
    if (!picture.isNull())
        grid.setCellPictureAlignment(Centred);
    grid.setCellPicture(picture);
}

/// Stands in for a mark picture that cannot be read. The colour shows on light and on dark ground.
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

void Liste::SetzeMarke() {
    trapped(m_context.prompts, [this] {
        if (m_grid->Rows() < 2)
            return;
        const int row = m_grid->Row();
        clearMark(MarkierteZeile);
        if (row != 0)
            setPicture(*m_grid, row, markPicture());
        MarkierteZeile = dao::toInteger16(row);
        ConditionToUI();
    });
}

void Liste::ResetMarke() {
    trapped(m_context.prompts, [this] {
        clearMark(MarkierteZeile);
        m_grid->setRow(0);
        MarkierteZeile = 0;
        ConditionToUI();
    });
}

/// A row that has gone since took its mark along.
void Liste::clearMark(int row) {
    if (row < m_grid->Rows())
        setPicture(*m_grid, row, QPixmap());
}

const QPixmap& Liste::markPicture() {
    if (m_mark.isNull())
        m_mark.load(m_context.state.MarkePath);
    if (m_mark.isNull())
        m_mark = drawnMark(m_grid->DefaultRowHeight() / 2, devicePixelRatioF());
    return m_mark;
}

} // namespace lingomat
