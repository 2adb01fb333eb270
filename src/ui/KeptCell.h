#pragma once

#include "FlexGrid.h"

namespace lingomat {

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

} // namespace lingomat
