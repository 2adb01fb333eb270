#include "RowMark.h"

#include "FlexGrid.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace lingomat;

namespace {

struct RowMarks : testing::Test {
    RowMarks() {
        grid.setCols(3);
        grid.setRows(4);
        grid.setFixedRows(1);
        grid.setFixedCols(1);
        grid.setRow(1);
        grid.setCol(2);
        grid.setRowSel(3);
    }
    QPixmap pictureAt(int row) {
        grid.setRow(row);
        grid.setCol(0);
        return grid.CellPicture();
    }

    FlexGrid grid;
};

} // namespace

TEST_F(RowMarks, StandInTheMarginAndLeaveTheCursorAlone) {
    RowMark mark(grid, QString());
    mark.put(2);
    EXPECT_EQ(grid.Row(), 1);
    EXPECT_EQ(grid.Col(), 2);
    EXPECT_EQ(grid.RowSel(), 3);
    EXPECT_FALSE(pictureAt(2).isNull()) << "drawn, as there is no picture to load";
    EXPECT_EQ(grid.CellPictureAlignment(), 4);
    EXPECT_TRUE(pictureAt(1).isNull());
    mark.take(2);
    EXPECT_TRUE(pictureAt(2).isNull());
}

TEST_F(RowMarks, OfRowsThatAreGoneAreTakenInSilence) {
    RowMark mark(grid, QString());
    mark.take(-1);
    mark.take(4);
    EXPECT_EQ(grid.Row(), 1);
}

TEST_F(RowMarks, ShowThePictureOfTheFile) {
    const QTemporaryDir folder;
    QPixmap picture(7, 5);
    picture.fill(Qt::red);
    ASSERT_TRUE(picture.save(folder.filePath(u"mark.png"_s)));
    RowMark mark(grid, folder.filePath(u"mark.png"_s));
    mark.put(3);
    EXPECT_EQ(pictureAt(3).size(), QSize(7, 5));
}
