#include "FlexGrid.h"
#include "TestContext.h"

#include <QAccessible>
#include <QApplication>
#include <QCoreApplication>
#include <QHeaderView>
#include <QPainter>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace lingomat {

namespace {

QPixmap square(int size, const QColor& color) {
    QPixmap picture(size, size);
    picture.fill(color);
    return picture;
}

/// Colour in the middle of a cell, as painted.
QColor colorIn(FlexGrid& grid, int row, int col) {
    const QImage image = grid.grab().toImage();
    const QRect cell = grid.visualRect(grid.model()->index(row - grid.FixedRows(), col - grid.FixedCols()));
    return image.pixelColor(grid.viewport()->mapTo(&grid, cell.center()) * image.devicePixelRatio());
}

} // namespace

TEST(GridView, HeadersShowTheFixedCells) {
    FlexGrid grid;
    grid.setCols(3);
    grid.setTextMatrix(0, 1, u"Deutsch"_s);
    grid.setTextMatrix(1, 0, u"margin"_s);
    grid.setTextMatrix(1, 1, u"der Hund"_s);
    grid.flush();
    EXPECT_EQ(grid.model()->headerData(0, Qt::Horizontal).toString(), u"Deutsch"_s);
    EXPECT_EQ(grid.model()->headerData(0, Qt::Vertical).toString(), u"margin"_s);
    EXPECT_EQ(grid.model()->index(0, 0).data().toString(), u"der Hund"_s);
}

TEST(GridView, WithoutFixedCellsThereAreNoHeaders) {
    FlexGrid grid;
    grid.setFixedRows(0);
    grid.setFixedCols(0);
    grid.setTextMatrix(0, 0, u"first"_s);
    grid.flush();
    EXPECT_TRUE(grid.horizontalHeader()->isHidden());
    EXPECT_TRUE(grid.verticalHeader()->isHidden());
    EXPECT_EQ(grid.model()->index(0, 0).data().toString(), u"first"_s);
    grid.setFixedRows(1);
    grid.setFixedCols(1);
    grid.flush();
    EXPECT_FALSE(grid.horizontalHeader()->isHidden());
    EXPECT_FALSE(grid.verticalHeader()->isHidden());
    EXPECT_EQ(grid.model()->rowCount(), 1);
}

TEST(GridView, AWidthOfZeroHidesAColumnAndAnyOtherShowsIt) {
    FlexGrid grid;
    grid.setCols(4);
    EXPECT_EQ(grid.ColWidth(2), grid.DefaultColWidth());
    grid.setColWidth(2, 0);
    grid.flush();
    EXPECT_TRUE(grid.isColumnHidden(1));
    EXPECT_EQ(grid.ColWidth(2), 0);
    grid.setColWidth(2, 2 * grid.DefaultColWidth());
    grid.flush();
    EXPECT_FALSE(grid.isColumnHidden(1));
    EXPECT_EQ(grid.columnWidth(1), 2 * grid.DefaultColWidth());
    grid.setColWidth(2, -1);
    EXPECT_EQ(grid.ColWidth(2), grid.DefaultColWidth());
    grid.setColWidth(0, grid.DefaultColWidth() / 3);
    grid.flush();
    EXPECT_EQ(grid.verticalHeader()->width(), grid.DefaultColWidth() / 3);
}

TEST(GridView, AHeightOfZeroHidesARowAndAnyOtherShowsIt) {
    FlexGrid grid;
    EXPECT_EQ(grid.RowHeight(1), grid.RowHeight(0)) << "a new row is as high as the header";
    grid.setRowHeight(1, 0);
    grid.flush();
    EXPECT_TRUE(grid.isRowHidden(0));
    EXPECT_EQ(grid.RowHeight(1), 0);
    grid.setRowHeight(1, grid.RowHeight(0));
    grid.AddItem({});
    grid.setRowHeight(2, 77);
    grid.flush();
    EXPECT_FALSE(grid.isRowHidden(0));
    EXPECT_EQ(grid.rowHeight(1), 77);
    grid.RemoveItem(1);
    grid.flush();
    EXPECT_EQ(grid.rowHeight(0), 77) << "a row takes its height along";
    grid.setRows(1);
    grid.setRows(3);
    grid.flush();
    EXPECT_EQ(grid.rowHeight(0), grid.DefaultRowHeight()) << "a new row knows nothing of the old one";
}

TEST(GridView, TopRowIsTheFirstRowInView) {
    FlexGrid grid;
    grid.setRows(200);
    grid.resize(300, 300);
    grid.setTopRow(20);
    EXPECT_EQ(grid.TopRow(), 20) << "asked before it is on the screen";
    grid.show();
    grid.flush();
    EXPECT_EQ(grid.TopRow(), 20);
    EXPECT_EQ(grid.rowAt(0), 19);
    grid.setRowHeight(5, 0);
    grid.setRowHeight(6, 0);
    grid.setTopRow(50);
    EXPECT_EQ(grid.TopRow(), 50);
    grid.setTopRow(1);
    EXPECT_EQ(grid.TopRow(), 1);
    grid.setTopRow(199);
    const int lastPage = grid.TopRow();
    EXPECT_LT(lastPage, 199);
    EXPECT_GE(grid.rowAt(grid.viewport()->height() - 1) + 1, 198) << "the last rows fill the view";
    grid.setTopRow(5000);
    EXPECT_EQ(grid.TopRow(), lastPage);
    grid.setTopRow(-1);
    EXPECT_EQ(grid.TopRow(), 1);
}

TEST(GridView, NewRowsCanBeScrolledToAtOnce) {
    FlexGrid grid;
    grid.resize(300, 300);
    grid.show();
    for (int i = 0; i < 500; ++i)
        grid.AddItem({});
    grid.setRow(grid.Rows() - 1);
    grid.setTopRow(grid.Row());
    grid.flush();
    EXPECT_GE(grid.rowAt(grid.viewport()->height() / 2), 485);
}

TEST(GridView, SettingTheCurrentCellDoesNotScroll) {
    FlexGrid grid;
    grid.setRows(500);
    grid.setCols(30);
    grid.resize(300, 300);
    grid.show();
    grid.setRow(400);
    grid.setCol(29);
    grid.flush();
    QCoreApplication::processEvents();
    EXPECT_EQ(grid.TopRow(), 1);
    EXPECT_EQ(grid.horizontalScrollBar()->value(), 0);
}

TEST(GridView, TheCursorIsWhereRowAndColAre) {
    FlexGrid grid;
    grid.setRows(10);
    grid.setCols(4);
    grid.setRow(7);
    grid.setCol(2);
    grid.flush();
    EXPECT_EQ(grid.currentIndex(), grid.model()->index(6, 1));
    grid.setRow(0);
    grid.flush();
    EXPECT_FALSE(grid.currentIndex().isValid()) << "a header has no cursor";
    EXPECT_TRUE(grid.selectionModel()->selectedIndexes().isEmpty());
}

TEST(GridView, TheCurrentCellCanBeBroughtIntoView) {
    FlexGrid grid;
    grid.setRows(100);
    grid.setCols(30);
    grid.resize(500, 300);
    grid.show();
    QSignalSpy scroll(&grid, &FlexGrid::Scroll);
    grid.setRow(70);
    grid.setCol(20);
    grid.showCell();
    const QRect cell(grid.CellLeft(), grid.CellTop(), grid.CellWidth(), grid.CellHeight());
    EXPECT_TRUE(grid.viewport()->geometry().contains(cell));
    const int top = grid.TopRow();
    grid.setRow(69);
    grid.showCell();
    EXPECT_EQ(grid.TopRow(), top) << "it is in view already";
    EXPECT_EQ(scroll.size(), 0);
}

TEST(GridView, TheCellTellsItsPlaceInTheGrid) {
    FlexGrid grid;
    grid.setRows(100);
    grid.setCols(5);
    grid.resize(800, 300);
    grid.show();
    grid.setRow(3);
    grid.setCol(2);
    const QPoint topLeft(grid.CellLeft(), grid.CellTop());
    const QRect cell = grid.visualRect(grid.model()->index(2, 1));
    EXPECT_EQ(grid.viewport()->mapTo(&grid, cell.topLeft()), topLeft);
    EXPECT_EQ(grid.CellWidth(), grid.ColWidth(2));
    EXPECT_EQ(grid.CellHeight(), grid.RowHeight(3));
    grid.setTopRow(3);
    EXPECT_EQ(grid.CellTop(), grid.viewport()->y());
    grid.setRow(0);
    EXPECT_EQ(grid.CellTop(), grid.horizontalHeader()->y());
    EXPECT_LT(grid.CellTop(), grid.viewport()->y());
    grid.setCol(0);
    EXPECT_EQ(grid.CellLeft(), grid.verticalHeader()->x());
}

TEST(GridView, AlignmentsAreLeftCentreAndRight) {
    FlexGrid grid;
    grid.setCols(5);
    const auto alignmentOf = [&grid](int col) {
        return static_cast<Qt::Alignment>(
            grid.model()->index(0, col - 1).data(Qt::TextAlignmentRole).toInt());
    };
    grid.flush();
    grid.setColAlignment(1, 0);
    grid.setColAlignment(2, 4);
    grid.setColAlignment(3, 7);
    EXPECT_EQ(alignmentOf(1), Qt::AlignLeft | Qt::AlignVCenter);
    EXPECT_EQ(alignmentOf(2), Qt::AlignCenter);
    EXPECT_EQ(alignmentOf(3), Qt::AlignRight | Qt::AlignVCenter);
    EXPECT_EQ(alignmentOf(4), Qt::AlignLeft | Qt::AlignVCenter);
    EXPECT_EQ(grid.ColAlignment(2), 4);
    grid.setCol(1);
    grid.setCellAlignment(4);
    EXPECT_EQ(alignmentOf(1), Qt::AlignCenter) << "a cell's own goes before its column's";
}

TEST(GridView, ACellCanHaveItsOwnFontAndBackground) {
    FlexGrid grid;
    grid.setFixedCols(0);
    grid.setFixedRows(0);
    grid.setCols(1);
    grid.setRows(4);
    grid.resize(300, 200);
    QFont big(grid.font());
    big.setPointSize(16);
    grid.setRow(2);
    grid.setCol(0);
    grid.setCellFont(big);
    grid.setCellBackgroundRole(QPalette::Highlight);
    EXPECT_EQ(grid.CellFont().pointSize(), 16);
    grid.setRow(1);
    EXPECT_EQ(grid.CellFont(), grid.font());
    grid.flush();
    EXPECT_EQ(grid.model()->index(2, 0).data(Qt::FontRole).value<QFont>().pointSize(), 16);
    EXPECT_EQ(colorIn(grid, 2, 0), grid.palette().color(QPalette::Highlight));
}

TEST(GridView, TheMarkIsPaintedInTheMarginAndToldInWords) {
    const InterfaceLanguage language(u"En"_s);
    FlexGrid grid;
    grid.setRows(5);
    grid.resize(300, 200);
    grid.setRow(3);
    grid.setCol(0);
    grid.setCellPictureAlignment(4);
    grid.setCellPicture(square(9, Qt::red));
    const QImage image = grid.grab().toImage();
    const QHeaderView* margin = grid.verticalHeader();
    const QPoint middle(margin->width() / 2, margin->sectionViewportPosition(2) + margin->sectionSize(2) / 2);
    EXPECT_EQ(image.pixelColor(margin->viewport()->mapTo(&grid, middle)), QColor(Qt::red));
    EXPECT_EQ(grid.model()->headerData(2, Qt::Vertical, Qt::AccessibleTextRole).toString(), u"marked"_s);
    EXPECT_EQ(grid.model()->headerData(1, Qt::Vertical, Qt::AccessibleTextRole).toString(), u""_s);
}

TEST(GridView, APictureTooLargeIsMadeToFit) {
    FlexGrid grid;
    grid.setRows(3);
    grid.resize(300, 200);
    grid.setRow(2);
    grid.setCol(0);
    grid.setCellPicture(square(300, Qt::red));
    const QImage image = grid.grab().toImage();
    const QHeaderView* margin = grid.verticalHeader();
    const QPoint rowAbove(margin->width() / 2,
                          margin->sectionViewportPosition(0) + margin->sectionSize(0) / 2);
    EXPECT_NE(image.pixelColor(margin->viewport()->mapTo(&grid, rowAbove)), QColor(Qt::red));
}

TEST(GridView, TheCurrentRowStandsOut) {
    FlexGrid grid;
    grid.setRows(6);
    grid.setCols(4);
    grid.resize(600, 300);
    grid.setRow(3);
    grid.setCol(1);
    const QColor current = colorIn(grid, 3, 2);
    EXPECT_EQ(colorIn(grid, 3, 3), current);
    EXPECT_NE(colorIn(grid, 1, 2), current);
    grid.setRow(1);
    EXPECT_NE(colorIn(grid, 3, 2), current);
    EXPECT_EQ(colorIn(grid, 1, 2), current);
    grid.setRowSel(3);
    EXPECT_NE(colorIn(grid, 3, 1), colorIn(grid, 3, 2)) << "selected cells stand out from their row";
}

TEST(GridView, ColoursFollowADarkPalette) {
    FlexGrid grid;
    grid.setRows(6);
    grid.resize(300, 300);
    QPalette dark;
    dark.setColor(QPalette::Base, QColor(30, 30, 30));
    dark.setColor(QPalette::AlternateBase, QColor(36, 36, 36));
    dark.setColor(QPalette::Text, Qt::white);
    dark.setColor(QPalette::Highlight, QColor(60, 120, 200));
    grid.setPalette(dark);
    EXPECT_EQ(colorIn(grid, 3, 1), QColor(30, 30, 30));
    EXPECT_EQ(colorIn(grid, 4, 1), QColor(36, 36, 36));
}

TEST(GridView, SizesFollowTheFont) {
    FlexGrid grid;
    grid.setCols(4);
    grid.setRows(4);
    grid.setColWidth(1, 2 * grid.DefaultColWidth());
    grid.setColWidth(3, 0);
    grid.setRowHeight(2, 2 * grid.DefaultRowHeight());
    grid.setRowHeight(3, 0);
    grid.flush();
    const int width = grid.DefaultColWidth();
    const int height = grid.DefaultRowHeight();
    QFont font(grid.font());
    font.setPointSizeF(font.pointSizeF() * 2);
    grid.setFont(font);
    EXPECT_GT(grid.DefaultColWidth(), width * 3 / 2);
    EXPECT_GT(grid.DefaultRowHeight(), height * 5 / 4);
    EXPECT_GE(grid.DefaultRowHeight(), grid.fontMetrics().height());
    EXPECT_NEAR(grid.ColWidth(1), 2 * grid.DefaultColWidth(), 1);
    EXPECT_EQ(grid.ColWidth(2), grid.DefaultColWidth());
    EXPECT_EQ(grid.ColWidth(3), 0);
    EXPECT_NEAR(grid.RowHeight(2), 2 * grid.DefaultRowHeight(), 1);
    EXPECT_EQ(grid.RowHeight(3), 0);
    grid.flush();
    EXPECT_EQ(grid.rowHeight(0), grid.DefaultRowHeight());
    EXPECT_EQ(grid.rowHeight(1), grid.RowHeight(2));
    EXPECT_TRUE(grid.isRowHidden(2));
    EXPECT_EQ(grid.columnWidth(0), grid.ColWidth(1));
    EXPECT_TRUE(grid.isColumnHidden(2));
    EXPECT_EQ(grid.horizontalHeader()->height(), grid.RowHeight(0));
}

TEST(GridView, PaintingShowsWhatWasJustChanged) {
    FlexGrid grid;
    grid.resize(300, 200);
    grid.show();
    grid.grab();
    for (int i = 0; i < 50; ++i)
        grid.AddItem(u"\ttext"_s);
    grid.grab();
    EXPECT_EQ(grid.model()->rowCount(), 51);
    grid.setRows(2);
    grid.grab();
    EXPECT_EQ(grid.model()->rowCount(), 1);
}

TEST(GridView, ScreenReadersFindNameCellsAndHeads) {
    FlexGrid grid;
    grid.setAccessibleName(u"Vocab List"_s);
    grid.setTextMatrix(0, 1, u"Deutsch"_s);
    grid.setTextMatrix(1, 1, u"der Hund"_s);
    grid.flush();
    QAccessibleInterface* interface = QAccessible::queryAccessibleInterface(&grid);
    ASSERT_NE(interface, nullptr);
    EXPECT_EQ(interface->text(QAccessible::Name), u"Vocab List"_s);
    QAccessibleTableInterface* table = interface->tableInterface();
    ASSERT_NE(table, nullptr);
    EXPECT_EQ(table->rowCount(), 1);
    EXPECT_EQ(table->cellAt(0, 0)->text(QAccessible::Name), u"der Hund"_s);
    EXPECT_EQ(table->columnDescription(0), u"Deutsch"_s);
}

} // namespace lingomat
