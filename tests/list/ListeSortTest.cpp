#include "ListBench.h"
#include "ListEditing.h"

#include <QAction>
#include <QHeaderView>
#include <QMenu>
#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace lingomat;

namespace {

struct SortBench : ListBench {
    explicit SortBench(const QString& language = u"En"_s) : ListBench(language) {
        context.state.Lang1Name = u"Spanish & Catalan"_s;
        context.state.Lang2Name = u"German"_s;
        list.Form_Load();
        list.resize(1600, 500);
    }

    /// Rows with the keys 1, 2, 3, ... and that text in the column.
    void fill(int column, const QStringList& texts) {
        for (int i = 0; i < texts.size(); ++i) {
            if (grid.Rows() < i + 2)
                addPlainRow(QString::number(i + 1));
            grid.setTextMatrix(i + 1, column, texts[i]);
        }
        context.state.SelectionValid = true;
        list.ConditionToUI();
    }

    [[nodiscard]] QStringList keys() {
        QStringList found;
        for (int row = 1; row < grid.Rows(); ++row)
            found << cell(row, Liste::ColSchluessel);
        return found;
    }

    void show() {
        list.show();
        list.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&list));
        grid.flush();
    }

    void clickHeader(int column) {
        QHeaderView& heads = *grid.horizontalHeader();
        const QPoint place(heads.sectionViewportPosition(column - 1) + 8, heads.height() / 2);
        QTest::mouseClick(heads.viewport(), Qt::LeftButton, {}, place);
    }

    void clickCorner() { QTest::mouseClick(grid.childAt(5, 5), Qt::LeftButton, {}, QPoint(2, 2)); }
    void trigger(const char* entry) { child<QAction>(list, entry).trigger(); }
};

} // namespace

// Which column it is.

TEST(SortColumn, IsAPartOfTheLanguageByTheMode) {
    EXPECT_EQ(sortColumn(Liste::ColSprache1, u"All"), Liste::ColSprache1);
    EXPECT_EQ(sortColumn(Liste::ColSprache1, u"Prefix"), Liste::ColPrefix1);
    EXPECT_EQ(sortColumn(Liste::ColSprache1, u"Main"), Liste::ColHaupt1);
    EXPECT_EQ(sortColumn(Liste::ColSprache1, u"Suffix"), Liste::ColSuffix1);
    EXPECT_EQ(sortColumn(Liste::ColSprache2, u"All"), Liste::ColSprache2);
    EXPECT_EQ(sortColumn(Liste::ColSprache2, u"Prefix"), Liste::ColPrefix2);
    EXPECT_EQ(sortColumn(Liste::ColSprache2, u"Main"), Liste::ColHaupt2);
    EXPECT_EQ(sortColumn(Liste::ColSprache2, u"Suffix"), Liste::ColSuffix2);
}

TEST(SortColumn, StaysForAnotherColumnOrMode) {
    EXPECT_EQ(sortColumn(Liste::ColQuelle, u"Prefix"), Liste::ColQuelle);
    EXPECT_EQ(sortColumn(Liste::ColSprache2, u"Comment"), Liste::ColSprache2);
}

// By the header.

TEST(SortByHeader, SortsTheColumnUnderTheMouse) {
    SortBench bench;
    bench.fill(Liste::ColQuelle, {u"pear"_s, u"apple"_s, u"fig"_s});
    bench.show();
    bench.clickHeader(Liste::ColQuelle);
    EXPECT_EQ(bench.keys(), QStringList({u"2"_s, u"3"_s, u"1"_s}));
    EXPECT_EQ(bench.grid.Col(), Liste::ColQuelle);
    EXPECT_EQ(bench.grid.Row(), 1);
    EXPECT_EQ(bench.grid.TopRow(), 1);
}

TEST(SortByHeader, LeavesNothingMarkedUntilTheUserMarksARow) {
    SortBench bench;
    bench.fill(Liste::ColQuelle, {u"pear"_s, u"apple"_s, u"fig"_s});
    bench.show();
    bench.grid.setFocus();
    bench.grid.setRow(2);
    bench.list.SetzeMarke();
    bench.clickHeader(Liste::ColQuelle);
    EXPECT_EQ(bench.list.MarkierteZeile, 0);

    QFocusEvent back(QEvent::FocusIn, Qt::ActiveWindowFocusReason);
    QApplication::sendEvent(&bench.grid, &back);
    EXPECT_EQ(bench.list.MarkierteZeile, 0) << "the focus comes back by itself";

    QTest::keyClick(&bench.grid, Qt::Key_Down);
    EXPECT_EQ(bench.list.MarkierteZeile, 2);
    QApplication::sendEvent(&bench.grid, &back);
    EXPECT_EQ(bench.list.MarkierteZeile, 2);
}

TEST(SortByHeader, DatesSortByTheirKeysAndTheColumnStays) {
    for (const auto& [column, key] : {std::pair(Liste::ColEingabedatum, Liste::ColEingabeKey),
                                      std::pair(Liste::ColAenderungsdatum, Liste::ColAenderungKey)}) {
        SortBench bench;
        bench.fill(column, {u"01.02.99"_s, u"02.01.02"_s, u"03.12.98"_s});
        bench.fill(key, {u"19990201"_s, u"20020102"_s, u"19981203"_s});
        bench.show();
        bench.clickHeader(column);
        EXPECT_EQ(bench.keys(), QStringList({u"3"_s, u"1"_s, u"2"_s}));
        EXPECT_EQ(bench.grid.Col(), column);
        EXPECT_EQ(bench.list.MarkierteZeile, 0);
    }
}

TEST(SortByHeader, ScoresSortAsText) {
    SortBench bench;
    bench.fill(Liste::ColScore, {u"6"_s, u"1"_s, u"3"_s});
    bench.show();
    bench.clickHeader(Liste::ColScore);
    EXPECT_EQ(bench.keys(), QStringList({u"2"_s, u"3"_s, u"1"_s}));
}

TEST(SortByHeader, CaseDoesNotCountAndHiddenCellsMoveAlong) {
    SortBench bench;
    bench.fill(Liste::ColQuelle, {u"pear"_s, u"apple"_s, u"Apple"_s, u"APPLE"_s});
    bench.fill(Liste::ColKommentar2, {u"c1"_s, u"c2"_s, u"c3"_s, u"c4"_s});
    bench.show();
    bench.clickHeader(Liste::ColQuelle);
    EXPECT_EQ(bench.cell(4, Liste::ColQuelle), u"pear"_s);
    for (int row = 1; row <= 4; ++row)
        EXPECT_EQ(bench.cell(row, Liste::ColKommentar2), u'c' + bench.cell(row, Liste::ColSchluessel));
}

TEST(SortByHeader, ALanguageOpensItsMenuAndSortsNothingYet) {
    for (const auto& [column, name] :
         {std::pair(Liste::ColSprache1, "mnSpanisch"), std::pair(Liste::ColSprache2, "mnDeutsch")}) {
        SortBench bench;
        bench.fill(column, {u"b"_s, u"a"_s});
        bench.show();
        bench.clickHeader(column);
        auto& menu = child<QMenu>(bench.list, name);
        EXPECT_TRUE(menu.isVisible());
        EXPECT_EQ(bench.keys(), QStringList({u"1"_s, u"2"_s}));
        menu.close();
    }
}

TEST(SortByHeader, ItsMenuOpensBelowTheHeader) {
    SortBench bench;
    bench.fill(Liste::ColSprache2, {u"b"_s, u"a"_s});
    bench.show();
    bench.clickHeader(Liste::ColSprache2);
    auto& menu = child<QMenu>(bench.list, "mnDeutsch");
    const QHeaderView& heads = *bench.grid.horizontalHeader();
    const QPoint corner(heads.sectionViewportPosition(Liste::ColSprache2 - 1), heads.height());
    EXPECT_EQ(menu.pos(), heads.viewport()->mapToGlobal(corner));
    QTest::mouseClick(&menu, Qt::LeftButton, {},
                      menu.actionGeometry(&child<QAction>(bench.list, "mnGesamt")).center());
    EXPECT_EQ(bench.keys(), QStringList({u"2"_s, u"1"_s}));
}

TEST(SortByHeader, ColumnZeroSortsNothingButGoesToTheFirstRow) {
    SortBench bench;
    bench.fill(Liste::ColQuelle, {u"pear"_s, u"apple"_s, u"fig"_s});
    bench.show();
    bench.grid.setRow(3);
    bench.list.SetzeMarke();
    bench.clickCorner();
    EXPECT_EQ(bench.keys(), QStringList({u"1"_s, u"2"_s, u"3"_s}));
    EXPECT_EQ(bench.grid.Row(), 1);
}

TEST(SortByHeader, AnEmptyListHasNothingToSort) {
    SortBench bench;
    bench.show();
    ASSERT_EQ(bench.grid.Rows(), 1);
    bench.clickHeader(Liste::ColQuelle);
    bench.clickCorner();
    EXPECT_EQ(bench.grid.Row(), 0);
}

// By the menu.

struct MenuEntry {
    const char* name;
    const char16_t* german;
    const char16_t* english;
    int column; ///< that the rows are sorted by
    int col;    ///< where the current cell is afterwards
};

constexpr MenuEntry entries[] = {
    {"WordSortByAll", u"Sortieren nach gesamtem Ausdruck", u"Sort by entire Expression", Liste::ColSprache1,
     Liste::ColSprache1},
    {"WordSortByPrefix", u"Sortieren nach Präfix", u"Sort by Prefix", Liste::ColPrefix1, Liste::ColSprache1},
    {"WordSortByMain", u"Sortieren nach Hauptbereich", u"Sort by Main Part", Liste::ColHaupt1,
     Liste::ColSprache1},
    {"WordSortBySuffix", u"Sortieren nach Suffix", u"Sort by Suffix", Liste::ColSuffix1, Liste::ColSprache1},
    {"mnGesamt", u"Sortieren nach gesamtem Ausdruck", u"Sort by entire Expression", Liste::ColSprache2,
     Liste::ColSprache2},
    {"mnPrefix", u"Sortieren nach Präfix", u"Sort by Prefix", Liste::ColPrefix2, Liste::ColSprache2},
    {"mnHaupt", u"Sortieren nach Hauptbereich", u"Sort by Main Part", Liste::ColHaupt2, Liste::ColSprache2},
    {"mnSuffix", u"Sortieren nach Suffix", u"Sort by Suffix", Liste::ColSuffix2, Liste::ColSprache2},
    {"mnWortart", u"nach Wortart", u"by Part of Speech", Liste::ColWortart, Liste::ColWortart},
    {"mnBereich", u"nach Bereich", u"by Area", Liste::ColBereich, Liste::ColBereich},
    {"mnBeispielsatz", u"nach Beispielsatz", u"by Sample Phrase", Liste::ColBeispielsatz,
     Liste::ColBeispielsatz},
    {"mnQuelle", u"nach Quelle", u"by Source", Liste::ColQuelle, Liste::ColQuelle},
    {"mnEingabedatum", u"nach Eingabedatum", u"by Creationdate", Liste::ColEingabeKey, Liste::ColEingabeKey},
    {"mnAenderungsdatum", u"nach Änderungsdatum", u"by Changedate", Liste::ColAenderungKey,
     Liste::ColAenderungKey},
    {"mnScore", u"nach Fehlerscore", u"by Error Score", Liste::ColScore, Liste::ColScore},
};

TEST(SortByMenu, EachEntrySortsByItsColumn) {
    for (const MenuEntry& entry : entries) {
        SortBench bench;
        bench.fill(entry.column, {u"c"_s, u"a"_s, u"b"_s});
        bench.grid.setRow(3);
        bench.list.SetzeMarke();
        bench.trigger(entry.name);
        EXPECT_EQ(bench.keys(), QStringList({u"2"_s, u"3"_s, u"1"_s})) << entry.name;
        EXPECT_EQ(bench.grid.Col(), entry.col) << entry.name;
        EXPECT_EQ(bench.grid.Row(), 1) << entry.name;
        EXPECT_EQ(bench.list.MarkierteZeile, 0) << entry.name;
    }
}

TEST(SortByMenu, EntriesReadInTheLanguageOfTheInterface) {
    SortBench german(u"De"_s);
    for (const MenuEntry& entry : entries)
        EXPECT_EQ(child<QAction>(german.list, entry.name).text(), QString::fromUtf16(entry.german));
    EXPECT_EQ(child<QMenu>(german.list, "WordSort").title(), u"Sortieren"_s);
    SortBench english;
    for (const MenuEntry& entry : entries)
        EXPECT_EQ(child<QAction>(english.list, entry.name).text(), QString::fromUtf16(entry.english));
    EXPECT_EQ(child<QMenu>(english.list, "WordSort").title(), u"Sort"_s);
}

TEST(SortByMenu, SubmenusCarryTheLanguages) {
    SortBench bench;
    EXPECT_EQ(child<QMenu>(bench.list, "mnSpanisch").title(), u"Spanish && Catalan"_s);
    EXPECT_EQ(child<QMenu>(bench.list, "mnDeutsch").title(), u"German"_s);
    bench.context.state.Lang1Name = u"Greek"_s;
    bench.list.SetHeaders();
    EXPECT_EQ(child<QMenu>(bench.list, "mnSpanisch").title(), u"Greek"_s) << "another file was opened";
}

TEST(SortByMenu, AnEmptyPrefixComesFirst) {
    SortBench bench;
    bench.fill(Liste::ColPrefix1, {u"the"_s, u""_s, u"a"_s});
    bench.trigger("WordSortByPrefix");
    EXPECT_EQ(bench.keys(), QStringList({u"2"_s, u"3"_s, u"1"_s}));
}

TEST(SortByMenu, IsThereOnlyWithAValidSelection) {
    SortBench bench;
    bench.list.ConditionToUI();
    EXPECT_FALSE(child<QMenu>(bench.list, "WordSort").isEnabled());
    bench.context.state.SelectionValid = true;
    bench.list.ConditionToUI();
    EXPECT_TRUE(child<QMenu>(bench.list, "WordSort").isEnabled());
}

TEST(SortByMenu, AWordSortLeavesTheViewWhereItIs) {
    SortBench bench;
    QStringList texts;
    for (int i = 0; i < 60; ++i)
        texts << QString::number(100 + i);
    bench.fill(Liste::ColSprache1, texts);
    bench.show();
    bench.grid.setTopRow(20);
    bench.trigger("WordSortByAll");
    EXPECT_EQ(bench.grid.TopRow(), 20);
    bench.trigger("mnQuelle");
    EXPECT_EQ(bench.grid.TopRow(), 1);
}
