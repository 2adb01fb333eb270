#include "EngineError.h"
#include "FlexGrid.h"
#include "QtPrinters.h"

#include <QAbstractItemModelTester>
#include <QCoreApplication>
#include <QSignalSpy>

#include <gtest/gtest.h>

#include <functional>

using namespace Qt::StringLiterals;

namespace lingomat {

namespace {

void expectSubscriptError(const std::function<void()>& act) {
    try {
        act();
        ADD_FAILURE() << "no error";
    } catch (const dao::Error& error) {
        EXPECT_EQ(error.Number(), dao::ErrorNumber::SubscriptOutOfRange);
    }
}

QStringList column(const FlexGrid& grid, int col) {
    QStringList texts;
    for (int row = 0; row < grid.Rows(); ++row)
        texts.append(grid.TextMatrix(row, col));
    return texts;
}

QPixmap dot() {
    QPixmap picture(8, 8);
    picture.fill(Qt::red);
    return picture;
}

} // namespace

TEST(FlexGrid, StartsWithTwoRowsAndColumnsOneOfThemFixed) {
    const FlexGrid grid;
    EXPECT_EQ(grid.Rows(), 2);
    EXPECT_EQ(grid.Cols(), 2);
    EXPECT_EQ(grid.FixedRows(), 1);
    EXPECT_EQ(grid.FixedCols(), 1);
    EXPECT_EQ(grid.Row(), 1);
    EXPECT_EQ(grid.Col(), 1);
    EXPECT_EQ(grid.Text(), QString());
}

TEST(FlexGrid, CellsAreDrivenThroughTheCurrentOne) {
    FlexGrid grid;
    grid.setRows(3);
    grid.setCols(4);
    grid.setRow(2);
    grid.setCol(3);
    grid.setText(u"der Hund"_s);
    grid.setRow(0);
    EXPECT_EQ(grid.Text(), u""_s);
    grid.setText(u"Deutsch"_s);
    EXPECT_EQ(grid.TextMatrix(2, 3), u"der Hund"_s);
    EXPECT_EQ(grid.TextMatrix(0, 3), u"Deutsch"_s);
    EXPECT_EQ(grid.Row(), 0);
    grid.setTextMatrix(1, 0, u"*"_s);
    EXPECT_EQ(grid.TextMatrix(1, 0), u"*"_s);
    EXPECT_EQ(grid.Row(), 0) << "any cell is written without moving";
}

TEST(FlexGrid, ATextGoesIntoTheCurrentCellOnlyWhateverIsSelected) {
    FlexGrid grid;
    grid.setRows(5);
    grid.setCols(4);
    grid.setRow(2);
    grid.setCol(1);
    grid.setRowSel(4);
    EXPECT_EQ(grid.FillStyle(), FlexGrid::Fill::Single);
    grid.setText(u"x"_s);
    EXPECT_EQ(column(grid, 1), QStringList({u""_s, u""_s, u"x"_s, u""_s, u""_s}));
}

TEST(FlexGrid, ATextFillsTheSelectionWhereItIsToldTo) {
    FlexGrid grid;
    grid.setRows(6);
    grid.setCols(4);
    grid.setFillStyle(FlexGrid::Fill::Repeat);
    grid.setRow(4);
    grid.setCol(2);
    grid.setRowSel(2);
    grid.setText(u"x"_s);
    EXPECT_EQ(column(grid, 2), QStringList({u""_s, u""_s, u"x"_s, u"x"_s, u"x"_s, u""_s}));
    EXPECT_EQ(column(grid, 1), QStringList({u""_s, u""_s, u""_s, u""_s, u""_s, u""_s}));
    EXPECT_EQ(grid.RowSel(), 2) << "the selection stays";
    grid.setColSel(1);
    grid.setText(u"y"_s);
    EXPECT_EQ(column(grid, 1), QStringList({u""_s, u""_s, u"y"_s, u"y"_s, u"y"_s, u""_s}));
    grid.setRow(1);
    grid.setText(u"z"_s);
    EXPECT_EQ(column(grid, 2), QStringList({u""_s, u"z"_s, u"y"_s, u"y"_s, u"y"_s, u""_s}));
    EXPECT_EQ(column(grid, 1)[1], u"z"_s) << "another row leaves the selected columns";
}

TEST(FlexGrid, CellsKeepTheirTextsInWhateverOrderTheyAreWritten) {
    FlexGrid grid;
    grid.setCols(24);
    const auto textOf = [](int col, int round) { return QString(col * 7 % 11 + round, QChar(u'a' + col)); };
    for (int round = 0; round < 3; ++round) {
        for (int i = 0; i < 24; ++i) {
            const int col = i * 5 % 24;
            grid.setTextMatrix(1, col, textOf(col, round));
        }
        for (int col = 0; col < 24; ++col)
            EXPECT_EQ(grid.TextMatrix(1, col), textOf(col, round));
    }
    grid.setTextMatrix(1, 3, u""_s);
    EXPECT_EQ(grid.TextMatrix(1, 3), u""_s);
    EXPECT_EQ(grid.TextMatrix(1, 4), textOf(4, 2));
}

TEST(FlexGrid, ACellThatDoesNotExistRaisesNine) {
    FlexGrid grid;
    expectSubscriptError([&] { grid.setRow(2); });
    expectSubscriptError([&] { grid.setRow(-1); });
    expectSubscriptError([&] { grid.setCol(2); });
    expectSubscriptError([&] { grid.setRowSel(2); });
    expectSubscriptError([&] { grid.setColSel(-1); });
    expectSubscriptError([&] { static_cast<void>(grid.TextMatrix(2, 0)); });
    expectSubscriptError([&] { static_cast<void>(grid.TextMatrix(0, 2)); });
    expectSubscriptError([&] { grid.setTextMatrix(0, -1, {}); });
    expectSubscriptError([&] { grid.RemoveItem(2); });
    expectSubscriptError([&] { grid.RemoveItem(0); }); // the header
    expectSubscriptError([&] { grid.setColWidth(2, 10); });
    expectSubscriptError([&] { static_cast<void>(grid.RowHeight(2)); });
    expectSubscriptError([&] { grid.setRows(0); });
    EXPECT_EQ(grid.Row(), 1);
}

TEST(FlexGrid, AddItemPartsItsTextAtTabs) {
    FlexGrid grid;
    grid.setCols(4);
    grid.AddItem(u"\t17\tder Hund"_s);
    EXPECT_EQ(grid.Rows(), 3);
    EXPECT_EQ(grid.TextMatrix(2, 0), u""_s);
    EXPECT_EQ(grid.TextMatrix(2, 1), u"17"_s);
    EXPECT_EQ(grid.TextMatrix(2, 2), u"der Hund"_s);
    EXPECT_EQ(grid.TextMatrix(2, 3), u""_s);
    grid.AddItem(u"a\tb\tc\td\ttoo many"_s);
    EXPECT_EQ(grid.TextMatrix(3, 3), u"d"_s);
    grid.AddItem(u""_s);
    EXPECT_EQ(grid.Rows(), 5);
    EXPECT_EQ(grid.Row(), 1) << "the current cell stays";
}

TEST(FlexGrid, RemoveItemMovesACurrentRowBehindItUp) {
    FlexGrid grid;
    grid.setRows(1);
    for (const QString& text : {u"a"_s, u"b"_s, u"c"_s, u"d"_s})
        grid.AddItem(text);
    grid.setRow(3);
    grid.RemoveItem(1);
    EXPECT_EQ(grid.Row(), 2);
    EXPECT_EQ(column(grid, 0), QStringList({u""_s, u"b"_s, u"c"_s, u"d"_s}));
    grid.RemoveItem(3);
    EXPECT_EQ(grid.Row(), 2);
    grid.RemoveItem(2);
    EXPECT_EQ(grid.Row(), 1) << "the last row went under the cursor";
    grid.RemoveItem(1);
    EXPECT_EQ(grid.Rows(), 1);
    EXPECT_EQ(grid.Row(), 0);
}

TEST(FlexGrid, FewerRowsOrColumnsTakeTheCursorAlong) {
    FlexGrid grid;
    grid.setRows(10);
    grid.setCols(10);
    grid.setRow(9);
    grid.setCol(9);
    grid.setTextMatrix(4, 3, u"stays"_s);
    grid.setTextMatrix(4, 9, u"goes"_s);
    grid.setRows(5);
    grid.setCols(4);
    EXPECT_EQ(grid.Row(), 4);
    EXPECT_EQ(grid.RowSel(), 4);
    EXPECT_EQ(grid.Col(), 3);
    EXPECT_EQ(grid.Text(), u"stays"_s);
    grid.setCols(10);
    EXPECT_EQ(grid.TextMatrix(4, 9), u""_s) << "new columns are empty";
    grid.setRows(1);
    grid.setRows(5);
    EXPECT_EQ(grid.TextMatrix(4, 3), u""_s) << "new rows are empty";
}

TEST(FlexGrid, SettingRowAndColTakesTheSelectionAlong) {
    FlexGrid grid;
    grid.setRows(10);
    grid.setCols(5);
    grid.setRow(3);
    grid.setCol(2);
    grid.setRowSel(7);
    grid.setColSel(4);
    EXPECT_EQ(grid.Row(), 3);
    EXPECT_EQ(grid.RowSel(), 7);
    grid.setCol(1);
    EXPECT_EQ(grid.ColSel(), 1);
    EXPECT_EQ(grid.RowSel(), 7);
    grid.setRow(3);
    EXPECT_EQ(grid.RowSel(), 3);
}

TEST(FlexGrid, ClearEmptiesEveryCellAndKeepsTheSizes) {
    FlexGrid grid;
    grid.setRows(3);
    grid.setColWidth(1, 33);
    grid.setRowHeight(2, 44);
    grid.setTextMatrix(0, 1, u"header"_s);
    grid.setTextMatrix(2, 1, u"cell"_s);
    grid.setCol(0);
    grid.setCellPicture(dot());
    grid.Clear();
    EXPECT_EQ(grid.Rows(), 3);
    EXPECT_EQ(grid.TextMatrix(0, 1), u""_s);
    EXPECT_EQ(grid.TextMatrix(2, 1), u""_s);
    EXPECT_TRUE(grid.CellPicture().isNull());
    EXPECT_EQ(grid.ColWidth(1), 33);
    EXPECT_EQ(grid.RowHeight(2), 44);
}

TEST(FlexGrid, PicturesBelongToTheirCell) {
    FlexGrid grid;
    grid.setRows(4);
    grid.setCol(0);
    grid.setRow(2);
    grid.setCellPictureAlignment(4);
    grid.setCellPicture(dot());
    grid.setRow(1);
    EXPECT_TRUE(grid.CellPicture().isNull());
    grid.RemoveItem(1);
    grid.setRow(1);
    EXPECT_FALSE(grid.CellPicture().isNull()) << "a row takes its picture along";
    EXPECT_EQ(grid.CellPictureAlignment(), 4);
    grid.setCellPicture({});
    EXPECT_TRUE(grid.CellPicture().isNull());
}

TEST(FlexGrid, CodeRaisesNoEvents) {
    FlexGrid grid;
    grid.setCols(5);
    grid.resize(300, 200);
    grid.show();
    QSignalSpy enter(&grid, &FlexGrid::EnterCell);
    QSignalSpy leave(&grid, &FlexGrid::LeaveCell);
    QSignalSpy select(&grid, &FlexGrid::SelChange);
    QSignalSpy scroll(&grid, &FlexGrid::Scroll);
    for (int i = 0; i < 200; ++i)
        grid.AddItem(u"text"_s);
    grid.setRow(150);
    grid.setCol(3);
    grid.setRowSel(160);
    grid.setTopRow(100);
    grid.flush();
    EXPECT_EQ(grid.TopRow(), 100);
    grid.RemoveItem(2);
    grid.Sort();
    grid.setRows(3);
    QCoreApplication::processEvents();
    EXPECT_EQ(enter.size() + leave.size() + select.size() + scroll.size(), 0);
}

TEST(FlexGrid, TheViewHearsOfAnyNumberOfRowsOnce) {
    FlexGrid grid;
    grid.flush();
    QSignalSpy inserted(grid.model(), &QAbstractItemModel::rowsInserted);
    QSignalSpy removed(grid.model(), &QAbstractItemModel::rowsRemoved);
    QSignalSpy changed(grid.model(), &QAbstractItemModel::dataChanged);
    for (int i = 0; i < 1000; ++i) {
        grid.AddItem({});
        grid.setTextMatrix(grid.Rows() - 1, 1, u"text"_s);
    }
    EXPECT_EQ(inserted.size() + changed.size(), 0);
    QCoreApplication::processEvents();
    EXPECT_EQ(inserted.size(), 1);
    EXPECT_EQ(changed.size(), 1);
    EXPECT_EQ(grid.model()->rowCount(), 1001);
    for (int i = 0; i < 500; ++i)
        grid.RemoveItem(1);
    QCoreApplication::processEvents();
    EXPECT_EQ(removed.size(), 1);
    EXPECT_EQ(grid.model()->rowCount(), 501);
}

TEST(FlexGrid, TheViewSeesAConsistentModelThroughout) {
    FlexGrid grid;
    const QAbstractItemModelTester tester(grid.model(),
                                          QAbstractItemModelTester::FailureReportingMode::Fatal);
    const auto step = [&grid](const std::function<void()>& act) {
        act();
        // What the view was told before still has to be answered.
        for (int row = 0; row < grid.model()->rowCount(); ++row)
            static_cast<void>(grid.model()->index(row, 0).data());
        static_cast<void>(grid.model()->headerData(0, Qt::Vertical));
        grid.flush();
        EXPECT_EQ(grid.model()->rowCount(), grid.Rows() - grid.FixedRows());
        EXPECT_EQ(grid.model()->columnCount(), grid.Cols() - grid.FixedCols());
    };
    step([&] { grid.setRows(1); });
    step([&] { grid.setCols(24); });
    step([&] { grid.setRows(100); });
    step([&] { grid.setRowHeight(99, 0); });
    step([&] { grid.RemoveItem(50); });
    step([&] { grid.setRows(2); });
    step([&] { grid.setFixedCols(0); });
    step([&] { grid.setFixedRows(0); });
    step([&] { grid.setCols(1); });
    step([&] { grid.setRows(4); });
    step([&] { grid.Clear(); });
    step([&] { grid.setRows(0); });
}

} // namespace lingomat
