#pragma once

#include "GridRow.h"

#include <QAbstractTableModel>

#include <memory>
#include <vector>

namespace lingomat {

/// The contents of a FlexGrid. To the view it shows the data cells as items and the fixed ones as headers.
///
/// Contents change without a signal; the view goes on seeing the size that it was told last. sync() tells it
/// the new one, in one go for any number of rows.
class FlexGridModel final : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Role {
        PictureRole = Qt::UserRole, ///< QPixmap
        BackgroundPaletteRole,      ///< QPalette::ColorRole, as int
    };

    explicit FlexGridModel(QObject* parent = nullptr);

    // The whole grid, fixed rows and columns included.
    [[nodiscard]] int rows() const { return static_cast<int>(m_rows.size()); }
    void setRows(int rows);
    [[nodiscard]] int cols() const { return m_cols; }
    void setCols(int cols);
    [[nodiscard]] int fixedRows() const { return m_fixedRows; }
    void setFixedRows(int rows) { m_fixedRows = rows; }
    [[nodiscard]] int fixedCols() const { return m_fixedCols; }
    void setFixedCols(int cols) { m_fixedCols = cols; }

    /// Raises 9 where there is no such row, column or cell.
    void checkRow(int row) const;
    void checkCol(int col) const;

    // Rows by their number; the number has to exist.
    [[nodiscard]] const GridRow& row(int row) const { return *m_rows[static_cast<size_t>(row)]; }
    [[nodiscard]] GridRow& row(int row) { return *m_rows[static_cast<size_t>(row)]; }
    GridRow& addRow();
    void removeRow(int row);
    /// Puts the data rows in a new order: place i takes what stood at `order[i]`, both counted from the first
    /// data row.
    void reorder(const std::vector<int>& order);

    [[nodiscard]] int alignment(int col) const { return m_alignments[static_cast<size_t>(col)]; }
    void setAlignment(int col, int alignment) { m_alignments[static_cast<size_t>(col)] = alignment; }

    /// What happened to the view in sync().
    enum class Sync { Nothing, Rows, Everything };
    Sync sync();
    /// Tells the view that texts and looks have changed.
    void announceContents();
    /// The item of a cell; none for a fixed cell or one that the view does not know.
    [[nodiscard]] QModelIndex itemOf(int row, int col) const;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    struct Shape {
        int rows = 0; ///< data rows
        int cols = 0; ///< data columns
        int fixedRows = 0;
        int fixedCols = 0;

        friend bool operator==(const Shape&, const Shape&) = default;
    };

    [[nodiscard]] Shape shape() const;
    [[nodiscard]] QVariant cellData(int row, int col, int role) const;

    std::vector<std::unique_ptr<GridRow>> m_rows;
    std::vector<int> m_alignments;
    int m_cols = 0;
    int m_fixedRows = 0;
    int m_fixedCols = 0;
    Shape m_told; ///< what the view knows
};

} // namespace lingomat
