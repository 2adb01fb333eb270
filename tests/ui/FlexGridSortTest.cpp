#include "FlexGrid.h"
#include "TestContext.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace lingomat {

namespace {

/// A grid with these texts in column 1, and their number in column 2.
void fill(FlexGrid& grid, const QStringList& texts) {
    grid.setCols(3);
    grid.setRows(1);
    grid.setTextMatrix(0, 1, u"zz header"_s);
    for (int i = 0; i < texts.size(); ++i)
        grid.AddItem(u'\t' + texts[i] + u'\t' + QString::number(i));
    grid.setCol(1);
}

QStringList column(const FlexGrid& grid, int col) {
    QStringList texts;
    for (int row = 1; row < grid.Rows(); ++row)
        texts.append(grid.TextMatrix(row, col));
    return texts;
}

} // namespace

TEST(GridSort, OrdersByTheCurrentColumnAscending) {
    FlexGrid grid;
    fill(grid, {u"noun"_s, u"adjective"_s, u""_s, u"verb"_s});
    grid.Sort();
    EXPECT_EQ(column(grid, 1), QStringList({u""_s, u"adjective"_s, u"noun"_s, u"verb"_s}));
    EXPECT_EQ(column(grid, 2), QStringList({u"2"_s, u"1"_s, u"0"_s, u"3"_s})) << "whole rows move";
    EXPECT_EQ(grid.TextMatrix(0, 1), u"zz header"_s);
    grid.setCol(2);
    grid.Sort();
    EXPECT_EQ(column(grid, 2), QStringList({u"0"_s, u"1"_s, u"2"_s, u"3"_s}));
}

TEST(GridSort, IsStableAndBlindToCase) {
    FlexGrid grid;
    fill(grid, {u"banana"_s, u"apple"_s, u"Apple"_s, u"BANANA"_s, u"APPLE"_s});
    grid.Sort();
    EXPECT_EQ(column(grid, 2), QStringList({u"1"_s, u"2"_s, u"4"_s, u"0"_s, u"3"_s}));
}

TEST(GridSort, IsStableInALongList) {
    FlexGrid grid;
    QStringList texts;
    for (int i = 0; i < 500; ++i)
        texts.append(i % 2 ? u"noun"_s : u"NOUN"_s);
    fill(grid, texts);
    grid.Sort();
    for (int i = 0; i < 500; ++i)
        ASSERT_EQ(grid.TextMatrix(i + 1, 2), QString::number(i));
}

TEST(GridSort, PutsUmlautsBesideTheirLetter) {
    for (const QString& name : {u"De"_s, u"En"_s}) {
        const InterfaceLanguage language(name);
        FlexGrid grid;
        fill(grid, {u"Zug"_s, u"Äpfel"_s, u"Bad"_s, u"Apfel"_s});
        grid.Sort();
        EXPECT_EQ(column(grid, 1), QStringList({u"Apfel"_s, u"Äpfel"_s, u"Bad"_s, u"Zug"_s}));
    }
}

TEST(GridSort, KeepsTheCursorInItsPlace) {
    FlexGrid grid;
    fill(grid, {u"b"_s, u"a"_s});
    grid.setRow(1);
    grid.Sort();
    EXPECT_EQ(grid.Row(), 1);
    EXPECT_EQ(grid.Col(), 1);
    EXPECT_EQ(grid.Text(), u"a"_s);
}

TEST(GridSort, RowsTakeTheirHeightAndPictureAlong) {
    FlexGrid grid;
    fill(grid, {u"b"_s, u"a"_s});
    grid.setRowHeight(1, 0);
    grid.setRow(1);
    grid.setCol(0);
    QPixmap picture(4, 4);
    picture.fill(Qt::red);
    grid.setCellPicture(picture);
    grid.setCol(1);
    grid.Sort();
    EXPECT_EQ(grid.RowHeight(2), 0);
    EXPECT_EQ(grid.RowHeight(1), grid.DefaultRowHeight());
    grid.flush();
    EXPECT_FALSE(grid.isRowHidden(0));
    EXPECT_TRUE(grid.isRowHidden(1));
    grid.setRow(2);
    grid.setCol(0);
    EXPECT_FALSE(grid.CellPicture().isNull());
}

TEST(GridSort, AGridWithoutRowsHasNothingToSort) {
    FlexGrid grid;
    fill(grid, {});
    EXPECT_NO_THROW(grid.Sort());
    EXPECT_EQ(grid.Rows(), 1);
}

} // namespace lingomat
