#include "ListColumns.h"

#include "QtPrinters.h"
#include "TestContext.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace lingomat;

namespace {

using Column = ListColumnNumbers;

QList<int> guardedColumns(std::initializer_list<ListColumn> hidden) {
    ColumnOptions options;
    for (const ListColumn column : hidden)
        options.setShown(column, false);
    QList<int> guarded;
    for (int column = 0; column < ListColumnTotal; ++column) {
        if (columnIsGuarded(column, options))
            guarded << column;
    }
    return guarded;
}

QList<int> withHelpers(QList<int> columns) {
    columns << 1 << 14 << 15 << 16 << 17 << 18 << 19 << 20 << 21 << 22 << 23;
    std::sort(columns.begin(), columns.end());
    return columns;
}

} // namespace

TEST(ListColumns, TableIsInTheOrderOfTheNumbers) {
    for (int column = 0; column < ListColumnTotal; ++column)
        EXPECT_EQ(listColumnTable[static_cast<size_t>(column)].number, column);
}

TEST(ListColumns, EachOptionHidesOneColumnInOptionOrder) {
    QList<int> columns;
    for (const ListColumnRule& rule : listColumnTable) {
        EXPECT_EQ(rule.option.has_value(), rule.menuEntry != nullptr);
        if (rule.option) {
            EXPECT_EQ(static_cast<int>(*rule.option), columns.size());
            columns << rule.number;
        }
    }
    EXPECT_EQ(columns, (QList<int>{4, 5, 6, 7, 8, 9, 10, 11, 12, 13}));
}

TEST(ListColumns, PartsOfAnExpressionAreNeighbours) {
    EXPECT_EQ(Column::ColHaupt1, Column::ColPrefix1 + 1);
    EXPECT_EQ(Column::ColSuffix1, Column::ColPrefix1 + 2);
    EXPECT_EQ(Column::ColKommentar1, Column::ColPrefix1 + 3);
    EXPECT_EQ(Column::ColHaupt2, Column::ColPrefix2 + 1);
    EXPECT_EQ(Column::ColSuffix2, Column::ColPrefix2 + 2);
    EXPECT_EQ(Column::ColKommentar2, Column::ColPrefix2 + 3);
}

TEST(ListColumns, FirstWidthsFollowTheDefaultWidth) {
    EXPECT_EQ(firstWidth(ColumnWidth::Zero, 100), 0);
    EXPECT_EQ(firstWidth(ColumnWidth::Third, 100), 33);
    EXPECT_EQ(firstWidth(ColumnWidth::Third, 101), 34) << "rounded, not cut";
    EXPECT_EQ(firstWidth(ColumnWidth::Default, 100), 100);
    EXPECT_EQ(firstWidth(ColumnWidth::Double, 100), 200);
}

TEST(ColIsHidden, OnlyHelperColumnsWhenAllAreShown) {
    EXPECT_EQ(guardedColumns({}), withHelpers({}));
}

TEST(ColIsHidden, FirstHiddenColumnAndItsRightNeighbour) {
    EXPECT_EQ(guardedColumns({ListColumn::Wortart}), withHelpers({4, 5}));
    EXPECT_EQ(guardedColumns({ListColumn::Beispielsatz}), withHelpers({8, 9}));
}

TEST(ColIsHidden, HiddenColumnsBehindTheFirstAreNotGuarded) {
    EXPECT_EQ(guardedColumns({ListColumn::Wortart, ListColumn::Quelle}), withHelpers({4, 5}));
    EXPECT_EQ(guardedColumns({ListColumn::Wortart, ListColumn::Grammatikalisch}), withHelpers({4, 5}));
}

TEST(ColIsHidden, LastOptionsNeighbourIsAHelperAlready) {
    EXPECT_EQ(guardedColumns({ListColumn::Score}), withHelpers({13}));
}

TEST(CountRows, PlaceholderIsNoEntry) {
    struct Case {
        int rows;
        int height;
        int count;
    };
    for (const Case& c : {Case{0, 0, 0}, Case{1, 0, 0}, Case{1, 20, 0}, Case{2, 0, 0}, Case{2, -1, 0},
                          Case{2, 20, 1}, Case{3, 20, 2}, Case{3, 0, 2}, Case{32767, 20, 32766}})
        EXPECT_EQ(countRows(c.rows, c.height), c.count) << c.rows << " rows, height " << c.height;
}

TEST(ListTitle, TellsTheNumberOnceThereIsADataRow) {
    const InterfaceLanguage english(u"En"_s);
    EXPECT_EQ(listTitle(1, 0), u"Vocab List"_s);
    EXPECT_EQ(listTitle(2, 0), u"Vocab List - 0 entries"_s);
    EXPECT_EQ(listTitle(2, 20), u"Vocab List - 1 entries"_s);
    EXPECT_EQ(listTitle(3, 0), u"Vocab List - 2 entries"_s);
}

TEST(ListTitle, SpeaksGerman) {
    const InterfaceLanguage german(u"De"_s);
    EXPECT_EQ(listTitle(1, 0), u"Vokabelliste"_s);
    EXPECT_EQ(listTitle(2, 0), u"Vokabelliste - 0 Einträge"_s);
    EXPECT_EQ(listTitle(180, 20), u"Vokabelliste - 179 Einträge"_s);
}
