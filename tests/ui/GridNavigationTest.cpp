#include "GridNavigation.h"

#include <gtest/gtest.h>

#include <ostream>
#include <set>

namespace lingomat {

void PrintTo(const GridCell& cell, std::ostream* out) {
    *out << '(' << cell.row << ", " << cell.col << ')';
}

namespace {

/// Rows 1 to 20 and columns 1 to 5 behind one fixed row and column; some of them hidden.
GridBounds grid(std::set<int> hiddenRows = {}, std::set<int> hiddenCols = {}) {
    return {.first = {1, 1},
            .last = {20, 5},
            .rowIsShown = [hiddenRows](int row) { return !hiddenRows.contains(row); },
            .colIsShown = [hiddenCols](int col) { return !hiddenCols.contains(col); },
            .pageRows = 6};
}

} // namespace

TEST(GridNavigation, MovesByOneAndStopsAtTheBorders) {
    struct Case {
        GridCell from;
        GridMove move;
        GridCell to;
    };
    const Case cases[] = {
        {{2, 2}, GridMove::Left, {2, 1}},      {{2, 1}, GridMove::Left, {2, 1}},
        {{2, 4}, GridMove::Right, {2, 5}},     {{2, 5}, GridMove::Right, {2, 5}},
        {{2, 2}, GridMove::Up, {1, 2}},        {{1, 2}, GridMove::Up, {1, 2}},
        {{19, 2}, GridMove::Down, {20, 2}},    {{20, 2}, GridMove::Down, {20, 2}},
        {{7, 3}, GridMove::RowStart, {7, 1}},  {{7, 3}, GridMove::RowEnd, {7, 5}},
        {{7, 3}, GridMove::First, {1, 1}},     {{7, 3}, GridMove::Last, {20, 5}},
        {{7, 3}, GridMove::PageDown, {12, 3}}, {{18, 3}, GridMove::PageDown, {20, 3}},
        {{7, 3}, GridMove::PageUp, {2, 3}},    {{4, 3}, GridMove::PageUp, {1, 3}},
    };
    for (const Case& c : cases)
        EXPECT_EQ(nextCell(grid(), c.from, c.move), c.to) << static_cast<int>(c.move);
}

TEST(GridNavigation, HiddenRowsAndColumnsArePassedOver) {
    const GridBounds bounds = grid({1, 3, 4, 20}, {1, 3, 5});
    EXPECT_EQ(nextCell(bounds, {2, 2}, GridMove::Down), (GridCell{5, 2}));
    EXPECT_EQ(nextCell(bounds, {5, 2}, GridMove::Up), (GridCell{2, 2}));
    EXPECT_EQ(nextCell(bounds, {2, 2}, GridMove::Up), (GridCell{2, 2}));
    EXPECT_EQ(nextCell(bounds, {2, 2}, GridMove::Right), (GridCell{2, 4}));
    EXPECT_EQ(nextCell(bounds, {2, 4}, GridMove::Right), (GridCell{2, 4}));
    EXPECT_EQ(nextCell(bounds, {9, 4}, GridMove::First), (GridCell{2, 2}));
    EXPECT_EQ(nextCell(bounds, {9, 4}, GridMove::Last), (GridCell{19, 4}));
    EXPECT_EQ(nextCell(bounds, {2, 4}, GridMove::PageDown), (GridCell{9, 4}));
}

TEST(GridNavigation, AHeaderIsLeftForTheFirstRow) {
    EXPECT_EQ(nextCell(grid(), {0, 3}, GridMove::Down), (GridCell{1, 3}));
    EXPECT_EQ(nextCell(grid({1}), {0, 3}, GridMove::Down), (GridCell{2, 3}));
    EXPECT_EQ(nextCell(grid(), {4, 0}, GridMove::Right), (GridCell{4, 1}));
    EXPECT_EQ(nextCell(grid({}, {1}), {0, 1}, GridMove::Down), (GridCell{1, 2}));
}

TEST(GridNavigation, AGridWithNothingToSeeStays) {
    GridBounds empty = grid();
    empty.last = {0, 5};
    EXPECT_EQ(nextCell(empty, {0, 2}, GridMove::Down), (GridCell{0, 2}));
    EXPECT_EQ(nextCell(grid({}, {1, 2, 3, 4, 5}), {2, 2}, GridMove::Right), (GridCell{2, 2}));
}

} // namespace lingomat
