#include "ListBench.h"

#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace lingomat;

namespace {

struct MarkBench : ListBench {
    explicit MarkBench(int rows = 3) {
        list.Form_Load();
        for (int row = 1; row <= rows; ++row)
            addPlainRow(QString::number(row));
    }

    [[nodiscard]] QPixmap picture(int row) {
        const int oldRow = grid.Row();
        const int oldCol = grid.Col();
        grid.setRow(row);
        grid.setCol(0);
        const QPixmap found = grid.CellPicture();
        grid.setRow(oldRow);
        grid.setCol(oldCol);
        return found;
    }

    [[nodiscard]] QList<int> markedRows() {
        QList<int> rows;
        for (int row = 0; row < grid.Rows(); ++row) {
            if (!picture(row).isNull())
                rows << row;
        }
        return rows;
    }

    void show() {
        list.show();
        list.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&list));
        grid.flush();
    }

    void click(int row, int column) {
        const int oldRow = grid.Row();
        const int oldCol = grid.Col();
        grid.setRow(row);
        grid.setCol(column);
        const QPoint inGrid(grid.CellLeft() + 5, grid.CellTop() + grid.CellHeight() / 2);
        grid.setRow(oldRow);
        grid.setCol(oldCol);
        QTest::mouseClick(grid.viewport(), Qt::LeftButton, {}, grid.viewport()->mapFrom(&grid, inGrid));
    }
};

} // namespace

TEST(SetzeMarke, MarksTheCurrentRowAndNoOther) {
    MarkBench bench;
    bench.grid.setRow(2);
    bench.grid.setCol(7);
    bench.list.SetzeMarke();
    EXPECT_EQ(bench.markedRows(), QList<int>{2});
    EXPECT_EQ(bench.list.MarkierteZeile, 2);
    EXPECT_EQ(bench.grid.Row(), 2);
    EXPECT_EQ(bench.grid.Col(), 7);

    bench.grid.setRow(3);
    bench.list.SetzeMarke();
    EXPECT_EQ(bench.markedRows(), QList<int>{3});
    EXPECT_EQ(bench.list.MarkierteZeile, 3);
}

TEST(SetzeMarke, CentresThePicture) {
    MarkBench bench;
    bench.grid.setRow(2);
    bench.list.SetzeMarke();
    bench.grid.setCol(0);
    EXPECT_EQ(bench.grid.CellPictureAlignment(), 4);
}

TEST(SetzeMarke, KeepsASelectionOfSeveralRows) {
    MarkBench bench;
    bench.grid.setRow(1);
    bench.grid.setCol(4);
    bench.grid.setRowSel(3);
    bench.list.SetzeMarke();
    EXPECT_EQ(bench.grid.Row(), 1);
    EXPECT_EQ(bench.grid.RowSel(), 3);
}

TEST(SetzeMarke, HeaderCarriesNoMark) {
    MarkBench bench;
    bench.grid.setRow(2);
    bench.list.SetzeMarke();
    bench.grid.setRow(0);
    bench.list.SetzeMarke();
    EXPECT_EQ(bench.markedRows(), QList<int>{});
    EXPECT_EQ(bench.list.MarkierteZeile, 0);
}

TEST(SetzeMarke, DoesNothingWithoutADataRow) {
    MarkBench bench(0);
    bench.list.MarkierteZeile = 5;
    bench.list.SetzeMarke();
    EXPECT_EQ(bench.list.MarkierteZeile, 5);
}

TEST(SetzeMarke, MarkedRowMayBeGone) {
    MarkBench bench;
    bench.grid.setRow(3);
    bench.list.SetzeMarke();
    bench.grid.RemoveItem(3);
    bench.grid.setRow(1);
    bench.list.SetzeMarke();
    EXPECT_EQ(bench.markedRows(), QList<int>{1});
}

TEST(SetzeMarke, EndsWithTheTitleInLine) {
    MarkBench bench;
    bench.grid.setRow(1);
    bench.list.SetzeMarke();
    EXPECT_EQ(bench.list.windowTitle(), u"Vocab List - 3 entries"_s);
}

TEST(ResetMarke, TakesTheMarkAndTheRowAway) {
    MarkBench bench;
    bench.grid.setRow(2);
    bench.grid.setCol(6);
    bench.list.SetzeMarke();
    bench.list.ResetMarke();
    EXPECT_EQ(bench.markedRows(), QList<int>{});
    EXPECT_EQ(bench.list.MarkierteZeile, 0);
    EXPECT_EQ(bench.grid.Row(), 0);
    EXPECT_EQ(bench.grid.Col(), 6);
}

TEST(ResetMarke, MarkedRowMayBeGone) {
    MarkBench bench;
    bench.grid.setRow(3);
    bench.list.SetzeMarke();
    bench.list.LoescheListe();
    bench.list.ResetMarke();
    EXPECT_EQ(bench.list.MarkierteZeile, 0);
}

TEST(MarkPicture, ComesFromThePathOfTheState) {
    MarkBench bench;
    QPixmap blue(7, 5);
    blue.fill(Qt::blue);
    bench.context.state.MarkePath = bench.context.path(u"marke.png"_s);
    ASSERT_TRUE(blue.save(bench.context.state.MarkePath));
    bench.grid.setRow(1);
    bench.list.SetzeMarke();
    EXPECT_EQ(bench.picture(1).toImage().pixelColor(3, 2), QColor(Qt::blue));
    EXPECT_EQ(bench.picture(1).size(), QSize(7, 5));
}

TEST(MarkPicture, IsReadOnce) {
    MarkBench bench;
    QPixmap blue(7, 5);
    blue.fill(Qt::blue);
    bench.context.state.MarkePath = bench.context.path(u"marke.png"_s);
    ASSERT_TRUE(blue.save(bench.context.state.MarkePath));
    bench.grid.setRow(1);
    bench.list.SetzeMarke();
    QFile::remove(bench.context.state.MarkePath);
    bench.grid.setRow(2);
    bench.list.SetzeMarke();
    EXPECT_EQ(bench.picture(2).size(), QSize(7, 5));
}

TEST(MarkPicture, IsDrawnWhereTheFileIsMissing) {
    MarkBench bench;
    bench.context.state.MarkePath = bench.context.path(u"nowhere.gif"_s);
    bench.grid.setRow(1);
    bench.list.SetzeMarke();
    ASSERT_EQ(bench.markedRows(), QList<int>{1});
    const QImage drawn = bench.picture(1).toImage();
    EXPECT_GT(drawn.pixelColor(drawn.width() / 2, drawn.height() / 2).alpha(), 200)
        << "something can be seen";
}

TEST(MarkFollows, AClickIntoARow) {
    MarkBench bench;
    bench.show();
    bench.click(2, Liste::ColSprache1);
    EXPECT_EQ(bench.grid.Row(), 2);
    EXPECT_EQ(bench.markedRows(), QList<int>{2});
}

TEST(MarkFollows, AClickOnTheCurrentCell) {
    MarkBench bench;
    bench.show();
    bench.click(2, Liste::ColSprache1);
    bench.list.ResetMarke();
    bench.grid.setRow(2);
    bench.grid.setCol(Liste::ColSprache1);
    bench.click(2, Liste::ColSprache1);
    EXPECT_EQ(bench.markedRows(), QList<int>{2});
}

TEST(MarkFollows, TheArrowKeys) {
    MarkBench bench;
    bench.show();
    bench.click(1, Liste::ColSprache1);
    QTest::keyClick(&bench.grid, Qt::Key_Down);
    EXPECT_EQ(bench.markedRows(), QList<int>{2});
    QTest::keyClick(&bench.grid, Qt::Key_Up);
    EXPECT_EQ(bench.markedRows(), QList<int>{1});
}

TEST(MarkFollows, TheFocus) {
    MarkBench bench;
    bench.show();
    child<QWidget>(bench.list, "Command1").setFocus();
    bench.grid.setRow(3);
    bench.grid.setFocus();
    EXPECT_EQ(bench.markedRows(), QList<int>{3});
}
