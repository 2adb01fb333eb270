#include "GridPainting.h"

#include "FlexGrid.h"
#include "FlexGridModel.h"

#include <QApplication>
#include <QPainter>

#include <algorithm>

namespace lingomat {

namespace {

constexpr double CurrentRowTint = 0.12;
constexpr double SelectionTint = 0.30;

/// The background with so much of the highlight colour in it; readable with the text's own colour.
QColor tinted(const QColor& background, const QColor& highlight, double share) {
    const auto mix = [share](int from, int to) { return from + static_cast<int>((to - from) * share); };
    return {mix(background.red(), highlight.red()), mix(background.green(), highlight.green()),
            mix(background.blue(), highlight.blue())};
}

QPalette::ColorRole textRoleOn(QPalette::ColorRole background) {
    switch (background) {
    case QPalette::Button: return QPalette::ButtonText;
    case QPalette::Window: return QPalette::WindowText;
    case QPalette::Highlight: return QPalette::HighlightedText;
    case QPalette::ToolTipBase: return QPalette::ToolTipText;
    default: return QPalette::Text;
    }
}

QPalette::ColorRole backgroundRole(const QModelIndex& index) {
    return static_cast<QPalette::ColorRole>(index.data(FlexGridModel::BackgroundPaletteRole).toInt());
}

bool isBetween(int value, int a, int b) {
    return value >= std::min(a, b) && value <= std::max(a, b);
}

/// Draws the picture in the middle, made smaller where there is less room.
void drawPicture(QPainter& painter, const QRect& rect, const QPixmap& picture) {
    if (picture.isNull())
        return;
    QSizeF size = picture.deviceIndependentSize();
    if (size.width() > rect.width() || size.height() > rect.height())
        size.scale(rect.size(), Qt::KeepAspectRatio);
    QRect place(QPoint(), size.toSize());
    place.moveCenter(rect.center());
    painter.drawPixmap(place, picture);
}

} // namespace

GridDelegate::GridDelegate(FlexGrid& grid) : QStyledItemDelegate(&grid), m_grid(grid) {}

void GridDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const {
    QStyledItemDelegate::initStyleOption(option, index);
    const QPalette& palette = option->palette;
    const QPalette::ColorRole role = backgroundRole(index);
    if (role != QPalette::NoRole) {
        option->backgroundBrush = palette.brush(role);
        option->palette.setBrush(QPalette::Text, palette.brush(textRoleOn(role)));
    }

    // Neither the style's selection nor its focus: the cursor is drawn here, by Row and Col.
    option->state &= ~(QStyle::State_Selected | QStyle::State_HasFocus | QStyle::State_MouseOver);
    const int row = index.row() + m_grid.FixedRows();
    const int col = index.column() + m_grid.FixedCols();
    const bool isCurrent = row == m_grid.Row() && col == m_grid.Col();
    const bool isSelected = isBetween(row, m_grid.Row(), m_grid.RowSel()) &&
                            isBetween(col, m_grid.Col(), m_grid.ColSel()) && !isCurrent;
    if (!isSelected && row != m_grid.Row())
        return;
    const bool alternate = option->features.testFlag(QStyleOptionViewItem::Alternate);
    const QColor background = role != QPalette::NoRole
                                  ? palette.color(role)
                                  : palette.color(alternate ? QPalette::AlternateBase : QPalette::Base);
    if (role == QPalette::NoRole || isSelected)
        option->backgroundBrush = tinted(background, palette.color(QPalette::Highlight),
                                         isSelected ? SelectionTint : CurrentRowTint);
}

void GridDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                         const QModelIndex& index) const {
    QStyledItemDelegate::paint(painter, option, index);
    drawPicture(*painter, option.rect, index.data(FlexGridModel::PictureRole).value<QPixmap>());

    const bool isCurrent = index.row() + m_grid.FixedRows() == m_grid.Row() &&
                           index.column() + m_grid.FixedCols() == m_grid.Col();
    if (!isCurrent || m_grid.model()->rowCount() * m_grid.model()->columnCount() < 2)
        return;
    const int width = m_grid.hasFocus() ? 2 : 1;
    painter->save();
    painter->setPen(
        QPen(option.palette.color(QPalette::Highlight), width, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter->drawRect(QRectF(option.rect).adjusted(width / 2.0, width / 2.0, -width / 2.0, -width / 2.0));
    painter->restore();
}

GridMargin::GridMargin(QWidget* parent) : QHeaderView(Qt::Vertical, parent) {
    setSectionsClickable(true);
    setHighlightSections(false);
}

void GridMargin::paintSection(QPainter* painter, const QRect& rect, int logicalIndex) const {
    painter->save();
    QHeaderView::paintSection(painter, rect, logicalIndex);
    painter->restore();
    drawPicture(*painter, rect,
                model()->headerData(logicalIndex, Qt::Vertical, FlexGridModel::PictureRole).value<QPixmap>());
}

} // namespace lingomat
