#pragma once

#include <QHeaderView>
#include <QStyledItemDelegate>

namespace lingomat {

class FlexGrid;

/// Paints a cell: the current row is tinted, the selection more so, the current cell has a frame.
class GridDelegate final : public QStyledItemDelegate {
    Q_OBJECT

public:
    explicit GridDelegate(FlexGrid& grid);

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;

private:
    FlexGrid& m_grid;
};

/// The fixed column: paints the picture of a row in the middle of its section.
class GridMargin final : public QHeaderView {
    Q_OBJECT

public:
    explicit GridMargin(QWidget* parent);

protected:
    void paintSection(QPainter* painter, const QRect& rect, int logicalIndex) const override;
};

} // namespace lingomat
