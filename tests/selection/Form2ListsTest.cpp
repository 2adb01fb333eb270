#include "SelectionBench.h"

#include <QComboBox>
#include <QScrollBar>
#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace lingomat;

namespace {

struct Lists : testing::Test {
    Lists() {
        bench.openDatabase();
        const QString a = bench.add({.main1 = u"a"_s,
                                     .fields = {{u"Quelle"_s, u"Book"_s}, {u"Wortart"_s, u"adverb"_s}},
                                     .bereiche = {u"Sport"_s},
                                     .grammatikalisch = {u"dual"_s},
                                     .funktional = {u"archaic"_s}});
        bench.add(
            {.main1 = u"b"_s, .fields = {{u"Quelle"_s, u"Radio"_s}}, .bereiche = {u"Reisen"_s, u"Kunst"_s}});
        bench.addReference(a, a, u"Rhymes with"_s);
        bench.load();
    }

    SelectionBench bench;
    QStringList left(const QString& kind) { return bench.items(u"lst"_s + kind + u"Links"_s); }
    QStringList right(const QString& kind) { return bench.items(u"lst"_s + kind + u"Rechts"_s); }
};

const QStringList kinds{u"Quelle"_s,          u"Bereich"_s,    u"Wortart"_s,
                        u"Grammatikalisch"_s, u"Funktional"_s, u"Referenzen"_s};

int tabOf(const QString& kind) {
    static const QHash<QString, int> tabs{{u"Quelle"_s, 1},     {u"Bereich"_s, 2},
                                          {u"Wortart"_s, 3},    {u"Grammatikalisch"_s, 5},
                                          {u"Funktional"_s, 6}, {u"Referenzen"_s, 8}};
    return tabs.value(kind);
}

} // namespace

TEST_F(Lists, OfferWhatTheDatabaseHolds) {
    EXPECT_EQ(left(u"Quelle"_s), (QStringList{u"Book"_s, u"Radio"_s}));
    EXPECT_EQ(left(u"Bereich"_s), (QStringList{u"Kunst"_s, u"Reisen"_s, u"Sport"_s}));
    EXPECT_TRUE(left(u"Wortart"_s).contains(u"adverb"_s));
    EXPECT_TRUE(left(u"Wortart"_s).contains(u"noun"_s)) << "a standard value";
    EXPECT_TRUE(left(u"Grammatikalisch"_s).contains(u"dual"_s));
    EXPECT_TRUE(left(u"Funktional"_s).contains(u"archaic"_s));
    EXPECT_EQ(left(u"Referenzen"_s).size(), 8);
    EXPECT_EQ(left(u"Referenzen"_s).last(), u"Rhymes with"_s);
    for (const QString& kind : kinds)
        EXPECT_EQ(right(kind), QStringList{});
}

TEST_F(Lists, HiddenMastersFollowTheValueLists) {
    bench.form.show();
    for (const char* kind : {"Quelle", "Bereich", "Wortart"}) {
        auto& box = child<QComboBox>(bench.form, QString::fromUtf8(kind) + u"Box"_s);
        EXPECT_FALSE(box.isVisible());
        QStringList items;
        for (int i = 0; i < box.count(); ++i)
            items.append(box.itemText(i));
        EXPECT_EQ(items, bench.context.values.values(QString::fromUtf8(kind)));
        EXPECT_FALSE(items.isEmpty());
    }
}

TEST_F(Lists, ButtonsWorkOnThePairOfTheSelectedTab) {
    for (const QString& kind : kinds) {
        bench.selectTab(tabOf(kind));
        const QStringList all = left(kind);
        QListWidget& list = bench.listBox(u"lst"_s + kind + u"Links"_s);
        list.setCurrentRow(0);
        bench.click("cmdAdd");
        EXPECT_EQ(right(kind), all.first(1));
        EXPECT_EQ(left(kind), all.mid(1));
        bench.click("cmdRemove"); // what was moved is selected over there
        EXPECT_EQ(right(kind), QStringList{});
        EXPECT_EQ(left(kind), all.mid(1) + all.first(1)) << "at the end of the list";
        bench.click("cmdAddAll");
        EXPECT_EQ(right(kind), all) << "in the order of the master";
        EXPECT_EQ(left(kind), QStringList{});
        bench.click("cmdRemoveAll");
        EXPECT_EQ(left(kind), all);
        EXPECT_EQ(right(kind), QStringList{});
    }
}

TEST_F(Lists, NothingSelectedMovesNothing) {
    bench.selectTab(1);
    bench.click("cmdAdd");
    bench.click("cmdRemove");
    EXPECT_EQ(left(u"Quelle"_s), (QStringList{u"Book"_s, u"Radio"_s}));
    EXPECT_EQ(right(u"Quelle"_s), QStringList{});
}

TEST_F(Lists, DoubleClickMovesAnItemOver) {
    bench.form.show();
    bench.selectTab(1);
    const auto doubleClick = [](QListWidget& list) {
        const QPoint place = list.visualItemRect(list.item(0)).center();
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, place);
        QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, place);
    };
    doubleClick(bench.listBox(u"lstQuelleLinks"_s));
    EXPECT_EQ(right(u"Quelle"_s), QStringList{u"Book"_s});
    doubleClick(bench.listBox(u"lstQuelleRechts"_s));
    EXPECT_EQ(right(u"Quelle"_s), QStringList{});
    EXPECT_EQ(left(u"Quelle"_s), (QStringList{u"Radio"_s, u"Book"_s}));
}

TEST_F(Lists, EverythingChosenIsNoRestriction) {
    bench.selectTab(2);
    bench.click("cmdAddAll");
    EXPECT_TRUE(
        Form2::AllSelected(bench.listBox(u"lstBereichLinks"_s), bench.listBox(u"lstBereichRechts"_s)));
    bench.listBox(u"lstBereichRechts"_s).setCurrentRow(0);
    bench.click("cmdRemove");
    EXPECT_FALSE(
        Form2::AllSelected(bench.listBox(u"lstBereichLinks"_s), bench.listBox(u"lstBereichRechts"_s)));
}

TEST_F(Lists, ClearAllEmptiesTheRightLists) {
    bench.choose(u"Bereich"_s, {u"Sport"_s});
    bench.choose(u"Referenzen"_s, {u"See also"_s});
    bench.click("Command2");
    EXPECT_EQ(right(u"Bereich"_s), QStringList{});
    EXPECT_EQ(left(u"Bereich"_s), (QStringList{u"Kunst"_s, u"Reisen"_s, u"Sport"_s}));
    EXPECT_EQ(right(u"Referenzen"_s), QStringList{});
    EXPECT_TRUE(bench.form.AuswahlGeaendert);
}

TEST_F(Lists, NewValueIsOfferedAndStandsTwiceUntilTheListIsFilledAgain) {
    bench.form.NeuerAuswahlwert(u" Radio "_s, u"Quelle"_s);
    EXPECT_EQ(left(u"Quelle"_s), (QStringList{u"Book"_s, u"Radio"_s, u"Radio"_s}));
    bench.selectTab(1);
    bench.click("cmdRemoveAll");
    EXPECT_EQ(left(u"Quelle"_s), (QStringList{u"Book"_s, u"Radio"_s}));
}

TEST_F(Lists, NewValueGoesToTheListOfItsKind) {
    const QList<std::pair<const char16_t*, const char16_t*>> lists{
        {u"Wortart", u"Wortart"},         {u"Grammatikalisch", u"Grammatikalisch"},
        {u"Funktionales", u"Funktional"}, {u"Bereich", u"Bereich"},
        {u"Quelle", u"Quelle"},           {u"Referenzen", u"Referenzen"}};
    for (const auto& [kind, list] : lists) {
        bench.form.NeuerAuswahlwert(u"new"_s, QString::fromUtf16(kind));
        EXPECT_EQ(left(QString::fromUtf16(list)).last(), u"new"_s);
    }
}

TEST_F(Lists, NewValueOfNoKindOrWithoutTextIsIgnored) {
    QStringList before;
    for (const QString& kind : kinds)
        before += left(kind);
    bench.form.NeuerAuswahlwert(u"new"_s, u"Funktional"_s); // the pair's name, not the kind
    bench.form.NeuerAuswahlwert(u"new"_s, u"Auswahl"_s);
    bench.form.NeuerAuswahlwert(u"   "_s, u"Quelle"_s);
    bench.form.NeuerAuswahlwert({}, u"Quelle"_s);
    QStringList after;
    for (const QString& kind : kinds)
        after += left(kind);
    EXPECT_EQ(after, before);
}

TEST_F(Lists, TypeOfReferenceThatWasStoredIsOfferedAfterwards) {
    bench.addReference(u"1"_s, u"2"_s, u"Part of"_s);
    bench.form.InitialisiereSelectionboxes();
    EXPECT_TRUE(left(u"Referenzen"_s).contains(u"Part of"_s));
}

TEST_F(Lists, WidestItemCanBeScrolledIntoView) {
    bench.form.show();
    bench.form.NeuerAuswahlwert(QString(50, u'W'), u"Quelle"_s);
    bench.selectTab(1);
    QListWidget& list = bench.listBox(u"lstQuelleLinks"_s);
    list.grab();
    EXPECT_GE(list.horizontalScrollBar()->maximum() + list.viewport()->width(),
              list.fontMetrics().horizontalAdvance(QString(50, u'W')));
}
