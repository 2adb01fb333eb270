#include "LstFkt.h"

#include "QtPrinters.h"

#include <QListWidget>
#include <QScrollBar>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace lingomat;

namespace {

struct ListBoxes : testing::Test {
    ListBoxes() { KopiereListe({u"one"_s, u"two"_s, u"three"_s}, left); }

    QListWidget left;
    QListWidget right;
};

} // namespace

TEST_F(ListBoxes, CopyAddsEveryItemInOrder) {
    KopiereListe({u"b"_s, u"a"_s, u"b"_s}, right);
    KopiereListe({u"c"_s}, right);
    EXPECT_EQ(listItems(right), (QStringList{u"b"_s, u"a"_s, u"b"_s, u"c"_s}));
}

TEST_F(ListBoxes, MovedItemGoesToTheEndOfTheTargetAndIsSelectedThere) {
    KopiereListe({u"zero"_s}, right);
    left.setCurrentRow(1);
    VerschiebeEintrag(left, right);
    EXPECT_EQ(listItems(left), (QStringList{u"one"_s, u"three"_s}));
    EXPECT_EQ(listItems(right), (QStringList{u"zero"_s, u"two"_s}));
    EXPECT_EQ(ListIndex(right), 1);
    EXPECT_EQ(ListIndex(left), -1);
}

TEST_F(ListBoxes, ItemMovedBackStandsAtTheEnd) {
    left.setCurrentRow(0);
    VerschiebeEintrag(left, right);
    VerschiebeEintrag(right, left);
    EXPECT_EQ(listItems(left), (QStringList{u"two"_s, u"three"_s, u"one"_s}));
    EXPECT_EQ(listItems(right), QStringList{});
}

TEST_F(ListBoxes, ItemMovedBackFindsItsPlaceInASortedList) {
    left.setSortingEnabled(true);
    left.sortItems();
    left.setCurrentRow(0); // "one"
    VerschiebeEintrag(left, right);
    VerschiebeEintrag(right, left);
    EXPECT_EQ(listItems(left), (QStringList{u"one"_s, u"three"_s, u"two"_s}));
    EXPECT_EQ(ListIndex(left), 0);
}

TEST_F(ListBoxes, NothingSelectedMovesNothing) {
    VerschiebeEintrag(left, right);
    left.setCurrentRow(1, QItemSelectionModel::NoUpdate); // the focus is no selection
    VerschiebeEintrag(left, right);
    EXPECT_EQ(listItems(left).size(), 3);
    EXPECT_EQ(listItems(right), QStringList{});
}

TEST_F(ListBoxes, OneMoveTakesOneItemAlong) {
    left.setCurrentRow(0);
    VerschiebeEintrag(left, right);
    VerschiebeEintrag(left, right);
    EXPECT_EQ(listItems(right), QStringList{u"one"_s});
}

TEST_F(ListBoxes, OfEqualItemsTheFirstIsSelected) {
    KopiereListe({u"two"_s, u"x"_s}, right);
    left.setCurrentRow(1);
    VerschiebeEintrag(left, right);
    EXPECT_EQ(listItems(right), (QStringList{u"two"_s, u"x"_s, u"two"_s}));
    EXPECT_EQ(ListIndex(right), 0);
}

TEST_F(ListBoxes, SelectingLooksForAnEqualText) {
    WaehleEintrag(u"three"_s, left);
    EXPECT_EQ(ListIndex(left), 2);
    WaehleEintrag(u"Two"_s, left);
    EXPECT_EQ(ListIndex(left), 2) << "case counts, and without an equal item nothing changes";
}

TEST_F(ListBoxes, EmptyingLeavesNothing) {
    KopiereListe({u"x"_s}, right);
    LeereListen(left, right);
    EXPECT_EQ(left.count() + right.count(), 0);
    EXPECT_EQ(ListIndex(left), -1);
}

TEST_F(ListBoxes, WidestItemCanBeScrolledIntoView) {
    left.resize(120, 200);
    KopiereListe({QString(300, u'W')}, left);
    SetzeScrollbreite(left);
    left.show();
    left.grab();
    const int reach = left.horizontalScrollBar()->maximum() + left.viewport()->width();
    EXPECT_GE(reach, left.fontMetrics().horizontalAdvance(QString(300, u'W')));
    EXPECT_TRUE(left.horizontalScrollBar()->isVisible());
}

TEST_F(ListBoxes, OddTextsAreMovedAsTheyStand) {
    const QStringList odd{u"it's \"it\""_s, u"[a]*?#%_;"_s, u"a\nb"_s, u"x\0y"_s, u"😀"_s};
    LeereListe(left);
    KopiereListe(odd, left);
    for (const QString& text : odd) {
        WaehleEintrag(text, left);
        VerschiebeEintrag(left, right);
    }
    EXPECT_EQ(listItems(right), odd);
}
