#include "GridNavigation.h"

#include <algorithm>

namespace lingomat {

namespace {

/// One dimension of the grid.
struct Line {
    int first;
    int last;
    const std::function<bool(int)>& isShown;

    /// `count` shown places on in the direction, or as many as there are. `from` where there is none.
    [[nodiscard]] int step(int from, int direction, int count) const {
        int reached = from;
        for (int i = from + direction; i >= first && i <= last && count > 0; i += direction) {
            if (!isShown(i))
                continue;
            reached = i;
            --count;
        }
        return reached;
    }

    [[nodiscard]] int start() const { return step(first - 1, 1, 1); }
    [[nodiscard]] int end() const { return step(last + 1, -1, 1); }
    [[nodiscard]] bool isEmpty() const { return start() < first; }
    [[nodiscard]] bool contains(int place) const { return place >= first && place <= last; }
};

} // namespace

GridCell nextCell(const GridBounds& bounds, GridCell from, GridMove move) {
    const Line rows{bounds.first.row, bounds.last.row, bounds.rowIsShown};
    const Line cols{bounds.first.col, bounds.last.col, bounds.colIsShown};
    if (rows.isEmpty() || cols.isEmpty())
        return from;
    if (!rows.contains(from.row) || !cols.contains(from.col)) {
        return {rows.contains(from.row) ? from.row : rows.start(),
                cols.contains(from.col) && cols.isShown(from.col) ? from.col : cols.start()};
    }

    const int page = std::max(1, bounds.pageRows - 1); // one row of the old page stays in view
    switch (move) {
    case GridMove::Left: return {from.row, cols.step(from.col, -1, 1)};
    case GridMove::Right: return {from.row, cols.step(from.col, 1, 1)};
    case GridMove::Up: return {rows.step(from.row, -1, 1), from.col};
    case GridMove::Down: return {rows.step(from.row, 1, 1), from.col};
    case GridMove::RowStart: return {from.row, cols.start()};
    case GridMove::RowEnd: return {from.row, cols.end()};
    case GridMove::PageUp: return {rows.step(from.row, -1, page), from.col};
    case GridMove::PageDown: return {rows.step(from.row, 1, page), from.col};
    case GridMove::First: return {rows.start(), cols.start()};
    case GridMove::Last: return {rows.end(), cols.end()};
    }
    return from;
}

} // namespace lingomat
