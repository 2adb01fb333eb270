#pragma once

#include "FlexGrid.h"
#include "FlexGridModel.h"
#include "GridNavigation.h"

#include <QList>

#include <optional>
#include <utility>
#include <vector>

class QScrollBar;

namespace lingomat {

/// State of a grid, and what its files share.
class FlexGrid::Private {
public:
    explicit Private(FlexGrid& grid);

    // FlexGridView.cpp: what the user sees.
    void setUp();
    void flush();
    /// Has flush() called when control returns to the event loop.
    void later();
    void contentsChanged();
    void widthsChanged();
    void heightsChanged();
    void cursorChanged();
    void followFont();

    // FlexGridInput.cpp: what the user does.
    void moveByUser(GridCell to, bool extend);
    void clickHeader(int col);
    void pressMargin(int row);
    void noteMouse(GridCell cell);
    void scrollIntoView(GridCell cell);
    void holdBar(bool held);
    /// The cell at a point of the viewport; the last row or column where it is beyond all.
    [[nodiscard]] GridCell cellAt(QPoint position) const;
    /// Whether the mouse, at that point of the viewport with the button still down, drags.
    bool dragsTo(QPoint position);
    /// Where a drag to that point, possibly outside the viewport, spreads the selection to.
    [[nodiscard]] GridCell dragTarget(QPoint position) const;
    [[nodiscard]] GridBounds bounds() const;
    /// The row whose lower border is at a height of the viewport, where the user may drag it.
    [[nodiscard]] std::optional<int> borderAt(int y) const;

    // FlexGrid.cpp
    /// The current cell, checked.
    [[nodiscard]] const GridRow& currentRow() const;
    [[nodiscard]] GridRow& currentRow();
    void fillSelection(const QString& text);
    /// Keeps the current cell and the selection within the grid.
    void clampCursor();
    [[nodiscard]] int widthOf(int col) const;
    [[nodiscard]] int heightOf(int row) const;

    /// Where the left button went down.
    struct Press {
        QPersistentModelIndex item;
        GridCell cell;
        QPoint position; ///< in the viewport
        bool drags = false;
    };

    /// A row whose height the user is dragging.
    struct BorderDrag {
        int row;
        int top; ///< of the row, in the viewport
    };

    FlexGrid& q;
    FlexGridModel model;
    std::vector<int> widths; ///< below 0: the default
    int defaultWidth = 0;
    int defaultHeight = 0;
    GridCell current;
    GridCell selectionEnd; ///< RowSel and ColSel
    GridCell mouse;
    bool colsResizable = true;
    bool rowsResizable = false;
    bool userScrolls = false;         ///< the next change of a scroll bar is the user's
    std::optional<int> pendingTopRow; ///< taken over when the grid is on the screen
    std::optional<Press> pressed;
    std::optional<BorderDrag> borderDrag;
    Fill fill = Fill::Single;
    bool takesInputMethods = false;
    bool barIsHeld = false;     ///< by the mouse
    bool scrollingHeld = false; ///< that has moved the view

private:
    void applyShape();
    void applyWidths();
    void applyHeights();
    void applyCursor();
    void applyTopRow();
    void repaintRow(int row);
    void watchScrolling(QScrollBar& bar);

    bool m_flushing = false;
    bool m_flushQueued = false;
    bool m_contentsChanged = false;
    bool m_widthsChanged = true;
    bool m_heightsChanged = true;
    bool m_cursorChanged = true;
    int m_paintedRow = 0;                        ///< the row that is tinted
    QList<std::pair<int, int>> m_appliedHeights; ///< sections that are not of the default height
};

} // namespace lingomat
