#include "ListBench.h"

#include "EngineError.h"

#include <QAction>
#include <QHeaderView>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace lingomat;

namespace {

struct ColumnEntry {
    const char* object;
    const char* key;
    int column;
    QString german;
    QString english;
};

QList<ColumnEntry> columnEntries() {
    return {
        {"mnAnsichtWortart", "Wortart", Liste::ColWortart, u"Wortart"_s, u"Part of Speech"_s},
        {"mnAnsichtGrammatikalisch", "Grammatikalisch", Liste::ColGrammatikalisch,
         u"Grammatikalische Attribute"_s, u"Grammar Attributes"_s},
        {"mnAnsichtFunktional", "Funktional", Liste::ColFunktional, u"Funktionale Attribute"_s,
         u"Functional Attributes"_s},
        {"mnAnsichtBereich", "Bereich", Liste::ColBereich, u"Bereich"_s, u"Area"_s},
        {"mnAnsichtBeispielsatz", "Beispielsatz", Liste::ColBeispielsatz, u"Beispielsatz"_s,
         u"Sample Phrase"_s},
        {"mnAnsichtZusatzinfo", "Zusatzinfo", Liste::ColZusatzinfo, u"Zusatzinfo"_s, u"Additional Info"_s},
        {"mnAnsichtQuelle", "Quelle", Liste::ColQuelle, u"Quelle"_s, u"Source"_s},
        {"mnAnsichtEingabedatum", "Eingabedatum", Liste::ColEingabedatum, u"Eingabedatum"_s,
         u"Creationdate"_s},
        {"mnAnsichtAenderungsdatum", "Aenderungsdatum", Liste::ColAenderungsdatum, u"Änderungsdatum"_s,
         u"Changedate"_s},
        {"mnAnsichtScore", "Score", Liste::ColScore, u"Score"_s, u"Error Score"_s},
    };
}

QString storedOption(ListBench& bench, const char* key) {
    const SettingsStore secondReader(bench.context.folder.filePath(u"settings"_s));
    return secondReader.GetSetting(u"LMT"_s, u"List"_s, QString::fromLatin1(key));
}

} // namespace

TEST(ListeLoad, ProgressGoesUpToTheEndOfTheLoad) {
    ListBench bench;
    QSignalSpy progress(&bench.list, &Liste::loadProgress);
    bench.list.Form_Load();
    QList<int> values;
    for (const QList<QVariant>& call : progress)
        values << call.first().toInt();
    EXPECT_EQ(values, (QList<int>{65, 68, 70, 75, 77, 78}));
}

TEST(ListeLoad, FirstDataRowIsThePlaceholderUntilTheListIsEmptied) {
    ListBench bench;
    QList<int> heights;
    QObject::connect(&bench.list, &Liste::loadProgress, &bench.list, [&](int) {
        if (bench.grid.Rows() > 1)
            heights << bench.grid.RowHeight(1);
    });
    bench.list.Form_Load();
    const int height = bench.grid.DefaultRowHeight();
    EXPECT_EQ(heights, (QList<int>{height, height, 0, 0, 0}));
}

TEST(ListeLoad, GridHasTwentyFourColumnsAndOnlyTheHeader) {
    ListBench bench;
    bench.list.Form_Load();
    EXPECT_EQ(bench.grid.Cols(), 24);
    EXPECT_EQ(bench.grid.FixedRows(), 1);
    EXPECT_EQ(bench.grid.FixedCols(), 1);
    EXPECT_EQ(bench.grid.Rows(), 1);
    EXPECT_EQ(bench.grid.Row(), 0);
    EXPECT_EQ(bench.list.windowTitle(), u"Vocab List"_s);
    EXPECT_EQ(bench.list.countRows(), 0);
}

TEST(ListeLoad, ColumnsHaveTheirFirstWidths) {
    ListBench bench;
    const int width = bench.grid.DefaultColWidth();
    bench.list.Form_Load();
    EXPECT_EQ(bench.grid.ColWidth(0), qRound(width / 3.0));
    for (const int column : {2, 3, 7, 8, 9})
        EXPECT_EQ(bench.grid.ColWidth(column), 2 * width) << column;
    for (const int column : {4, 5, 6, 10, 11, 12, 13})
        EXPECT_EQ(bench.grid.ColWidth(column), width) << column;
    for (const int column : {1, 14, 15, 16, 17, 18, 19, 20, 21, 22, 23})
        EXPECT_EQ(bench.grid.ColWidth(column), 0) << column;
}

TEST(ListeLoad, ColumnsAreAlignedToTheLeft) {
    ListBench bench;
    bench.list.Form_Load();
    EXPECT_EQ(bench.grid.ColAlignment(0), 1);
    for (int column = 1; column < 24; ++column)
        EXPECT_EQ(bench.grid.ColAlignment(column), 0) << column;
}

TEST(ListeLoad, ReadsWhichColumnsAreShown) {
    ListBench bench;
    bench.context.settings.SaveSetting(u"LMT"_s, u"List"_s, u"Quelle"_s, u"0"_s);
    bench.context.settings.SaveSetting(u"LMT"_s, u"List"_s, u"Score"_s, u"1"_s);
    bench.list.Form_Load();
    for (const ColumnEntry& entry : columnEntries()) {
        const bool shown = entry.column != Liste::ColQuelle;
        EXPECT_EQ(bench.grid.ColWidth(entry.column) > 0, shown) << entry.object;
        EXPECT_EQ(child<QAction>(bench.list, entry.object).isChecked(), shown) << entry.object;
    }
}

TEST(ListeHeaders, NameLanguagesAndColumnsInEnglish) {
    ListBench bench;
    bench.openDatabase();
    bench.list.Form_Load();
    EXPECT_EQ(bench.cell(0, Liste::ColSprache1), u"German"_s);
    EXPECT_EQ(bench.cell(0, Liste::ColSprache2), u"English"_s);
    for (const ColumnEntry& entry : columnEntries())
        EXPECT_EQ(bench.cell(0, entry.column), entry.english);
    for (const int column : {0, 1, 14, 15, 16, 17, 18, 19, 20, 21, 22, 23})
        EXPECT_EQ(bench.cell(0, column), QString()) << column;
}

TEST(ListeHeaders, NameColumnsInGerman) {
    ListBench bench(u"De"_s);
    bench.list.Form_Load();
    for (const ColumnEntry& entry : columnEntries())
        EXPECT_EQ(bench.cell(0, entry.column), entry.german);
}

TEST(ListeHeaders, LeaveTheCurrentCellWhereItIs) {
    ListBench bench;
    bench.list.Form_Load();
    bench.addPlainRow(u"1"_s);
    bench.grid.setRow(1);
    bench.grid.setCol(7);
    bench.list.SetHeaders();
    EXPECT_EQ(bench.grid.Row(), 1);
    EXPECT_EQ(bench.grid.Col(), 7);
}

TEST(ListeTexts, English) {
    ListBench bench;
    bench.list.Form_Load();
    auto& close = child<QPushButton>(bench.list, "Command1");
    EXPECT_EQ(close.text(), u"Close"_s);
    EXPECT_EQ(close.toolTip(), u"Closes this window, changes can be saved later"_s);
    EXPECT_EQ(child<QMenu>(bench.list, "mnFile").title(), u"File"_s);
    EXPECT_EQ(child<QAction>(bench.list, "mnSchließen").text(), u"Close"_s);
    EXPECT_EQ(child<QMenu>(bench.list, "mnAnsicht").title(), u"View"_s);
    EXPECT_EQ(child<QMenu>(bench.list, "mnSpalten").title(), u"Columns"_s);
    for (const ColumnEntry& entry : columnEntries())
        EXPECT_EQ(child<QAction>(bench.list, entry.object).text(), entry.english);
}

TEST(ListeTexts, German) {
    ListBench bench(u"De"_s);
    bench.list.Form_Load();
    auto& close = child<QPushButton>(bench.list, "Command1");
    EXPECT_EQ(close.text(), u"Schließen"_s);
    EXPECT_EQ(close.toolTip(),
              u"Schließt das Fenster, Änderungen können zu einem späteren Zeitpunkt übernommen werden."_s);
    EXPECT_EQ(child<QMenu>(bench.list, "mnFile").title(), u"Datei"_s);
    EXPECT_EQ(child<QAction>(bench.list, "mnSchließen").text(), u"Schließen"_s);
    EXPECT_EQ(child<QMenu>(bench.list, "mnAnsicht").title(), u"Ansicht"_s);
    EXPECT_EQ(child<QMenu>(bench.list, "mnSpalten").title(), u"Spalten"_s);
    for (const ColumnEntry& entry : columnEntries())
        EXPECT_EQ(child<QAction>(bench.list, entry.object).text(), entry.german);
}

TEST(ListeMenus, OfferWhatWorks) {
    ListBench bench;
    bench.list.Form_Load();
    QStringList names;
    for (const QAction* menu : bench.list.menuBar()->actions())
        names << menu->menu()->objectName();
    EXPECT_EQ(names, (QStringList{u"mnFile"_s, u"WordSort"_s, u"mnAnsicht"_s}));
    const auto entriesOf = [&bench](const char* menu) {
        QStringList entries;
        for (const QAction* action : child<QMenu>(bench.list, menu).actions())
            entries << (action->menu() ? action->menu()->objectName() : action->objectName());
        return entries;
    };
    EXPECT_EQ(entriesOf("mnFile"), (QStringList{u"mnNeueZeile"_s, u"mnZeileLöschen"_s, u"mnDrucken"_s,
                                                u"mnSpeichern"_s, u"mnSuchen"_s, u"mnSchließen"_s}));
    EXPECT_EQ(entriesOf("mnAnsicht"), (QStringList{u"mnSpalten"_s, u"mnReferenzen"_s, u"mnSonderzeichen"_s,
                                                   QString(), u"mnOptionen"_s}));
    EXPECT_EQ(entriesOf("mnSpalten").size(), 12) << "ten columns, a line, and their options";
    EXPECT_EQ(entriesOf("mnSpalten").last(), u"mnAnsichtOptionen"_s);
}

TEST(ListeColumns, EntryHidesItsColumnAndKeepsTheChoiceAtOnce) {
    for (const ColumnEntry& entry : columnEntries()) {
        ListBench bench;
        bench.list.Form_Load();
        auto& action = child<QAction>(bench.list, entry.object);
        const int width = bench.grid.ColWidth(entry.column);

        action.trigger();
        EXPECT_EQ(bench.grid.ColWidth(entry.column), 0) << entry.object;
        EXPECT_FALSE(action.isChecked()) << entry.object;
        EXPECT_EQ(storedOption(bench, entry.key), u"0"_s) << entry.object;

        action.trigger();
        EXPECT_EQ(bench.grid.ColWidth(entry.column), width) << entry.object;
        EXPECT_TRUE(action.isChecked()) << entry.object;
        EXPECT_EQ(storedOption(bench, entry.key), u"1"_s) << entry.object;
    }
}

TEST(ListeColumns, ComeBackAtTheFirstWidthWhateverTheUserMadeOfIt) {
    ListBench bench;
    bench.list.Form_Load();
    const int width = bench.grid.ColWidth(Liste::ColQuelle);
    bench.grid.setColWidth(Liste::ColQuelle, width + 77);
    auto& entry = child<QAction>(bench.list, "mnAnsichtQuelle");
    entry.trigger();
    entry.trigger();
    EXPECT_EQ(bench.grid.ColWidth(Liste::ColQuelle), width);
}

TEST(ListeColumns, LanguagesAreAlwaysShown) {
    ListBench bench;
    bench.list.Form_Load();
    for (const ColumnEntry& entry : columnEntries())
        child<QAction>(bench.list, entry.object).trigger();
    for (int column = 2; column < 24; ++column)
        EXPECT_EQ(bench.grid.ColWidth(column) > 0, column <= 3) << column;
}

TEST(ListeColumns, ChoiceThatCannotBeKeptIsReportedAndHoldsForTheRun) {
    ListBench bench;
    bench.list.Form_Load();
    const QString folder = bench.context.folder.filePath(u"settings"_s);
    QDir(folder).removeRecursively();
    QFile inTheWay(folder);
    ASSERT_TRUE(inTheWay.open(QIODevice::WriteOnly));
    inTheWay.close();

    bench.context.prompts.expectErrorContaining(QString());
    child<QAction>(bench.list, "mnAnsichtScore").trigger();
    EXPECT_EQ(bench.grid.ColWidth(Liste::ColScore), 0);
}

TEST(ListeColumns, BorderOfAHiddenColumnCannotBeDragged) {
    ListBench bench;
    bench.list.Form_Load();
    child<QAction>(bench.list, "mnAnsichtWortart").trigger();
    bench.list.resize(900, 560);
    bench.list.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&bench.list));

    const auto moveOverHeaderOf = [&bench](int column) {
        bench.grid.flush();
        QHeaderView& header = *bench.grid.horizontalHeader();
        const int section = column - bench.grid.FixedCols();
        const QPoint place(header.sectionViewportPosition(section) + header.sectionSize(section) / 2,
                           header.height() / 2);
        QTest::mouseMove(header.viewport(), place);
    };
    moveOverHeaderOf(Liste::ColGrammatikalisch);
    EXPECT_FALSE(bench.grid.AllowUserResizing()) << "its left border is that of the hidden column";
    moveOverHeaderOf(Liste::ColSprache2);
    EXPECT_TRUE(bench.grid.AllowUserResizing());
    moveOverHeaderOf(Liste::ColFunktional);
    EXPECT_TRUE(bench.grid.AllowUserResizing());
}

TEST(ListeTitle, FollowsTheGridWhenTheWindowBecomesActive) {
    ListBench bench;
    bench.list.Form_Load();
    bench.addPlainRow(u"1"_s);
    bench.addPlainRow(u"2"_s);
    bench.list.SetzeStatus();
    ASSERT_EQ(bench.list.windowTitle(), u"Vocab List - 2 entries"_s);
    bench.list.initialisiereListe();
    bench.list.show();
    bench.list.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&bench.list));
    EXPECT_EQ(bench.list.windowTitle(), u"Vocab List"_s);
}

TEST(ListeClose, HidesTheWindowAndKeepsRowsAndCounters) {
    ListBench bench;
    bench.list.Form_Load();
    bench.addPlainRow(u"1"_s);
    bench.list.AnzahlNeu = 1;
    bench.list.show();

    QTest::mouseClick(&child<QPushButton>(bench.list, "Command1"), Qt::LeftButton);
    EXPECT_FALSE(bench.list.isVisible());

    bench.list.show();
    EXPECT_TRUE(bench.list.isVisible());
    EXPECT_EQ(bench.grid.Rows(), 2);
    EXPECT_EQ(bench.cell(1, 1), u"1"_s);
    EXPECT_EQ(bench.list.AnzahlNeu, 1);

    child<QAction>(bench.list, "mnSchließen").trigger();
    EXPECT_FALSE(bench.list.isVisible());
}

TEST(ListeLayout, FitsASmallScreenWithALargeFont) {
    const QFont before = QApplication::font();
    QFont large = before;
    large.setPointSize(20);
    QApplication::setFont(large);
    {
        ListBench bench(u"De"_s);
        bench.list.Form_Load();
        EXPECT_LE(bench.list.minimumSizeHint().width(), 800);
        EXPECT_LE(bench.list.minimumSizeHint().height(), 600);
        bench.list.resize(800, 600);
        bench.list.show();
        auto& close = child<QPushButton>(bench.list, "Command1");
        EXPECT_TRUE(bench.list.rect().contains(QRect(close.mapTo(&bench.list, QPoint()), close.size())));
        EXPECT_GE(close.width(), close.sizeHint().width());
    }
    QApplication::setFont(before);
}

TEST(ListeFgi, CountsCellsInReadingOrder) {
    ListBench bench;
    EXPECT_EQ(bench.list.Fgi(0, 5), 5);
    EXPECT_EQ(bench.list.Fgi(3, 2), 74);
    EXPECT_THROW((void)bench.list.Fgi(1366, 0), dao::Error) << "beyond 16 bits";
}
