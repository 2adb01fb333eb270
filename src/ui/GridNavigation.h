#pragma once

#include <functional>

namespace lingomat {

struct GridCell {
    int row = 0;
    int col = 0;

    friend bool operator==(const GridCell&, const GridCell&) = default;
};

/// A way of moving through a grid by the keyboard.
enum class GridMove { Left, Right, Up, Down, RowStart, RowEnd, PageUp, PageDown, First, Last };

/// The cells that can be reached: from first to last, both included, but for those that are hidden.
struct GridBounds {
    GridCell first;
    GridCell last;
    std::function<bool(int)> rowIsShown;
    std::function<bool(int)> colIsShown;
    int pageRows = 1; ///< rows in view
};

/// Where a move leads. At a border it stays; from outside (a header) it enters. A grid with nothing to be
/// seen leaves the cell where it is.
[[nodiscard]] GridCell nextCell(const GridBounds& bounds, GridCell from, GridMove move);

} // namespace lingomat
