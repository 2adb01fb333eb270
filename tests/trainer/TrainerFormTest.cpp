#include "FlexGridModel.h"
#include "TrainingBench.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QContextMenuEvent>
#include <QMenu>
#include <QMenuBar>
#include <QSignalSpy>
#include <QStatusBar>
#include <QTabBar>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace lingomat;

namespace {

struct NamedText {
    const char* name;
    const char16_t* german;
    const char16_t* english;
};

constexpr NamedText ActionTexts[] = {
    {"menNeustart", u"Neustart", u"&Restart"},
    {"menClose", u"Schließen", u"&Close"},
    {"menMain", u"Reihenfolge...", u"&Order..."},
    {"menTestoptionen", u"Testoptionen...", u"&Test Options..."},
    {"menEinsWeiter", u"Eine Vokabel weiter", u"One Vocab &Forward"},
    {"menEinsZurueck", u"Eine Vokabel zurück", u"One Vocab &Back"},
    {"menStep", u"Step - Geht 1 Schritt weiter", u"Proceed to Next &Step"},
    {"menAnfangSequenz", u"Zum Anfang der Sequenz", u"Be&ginning of Sequence"},
    {"menEndeSequenz", u"Zum Ende der Sequenz", u"&End of Sequence"},
    {"menAttribute", u"Attribute1", u"Attributes&1"},
    {"menDetails", u"Attribute2", u"Attributes&2"},
    {"menReferenzen", u"Referenzen", u"&References"},
    {"menDetailsjanein", u"Details ausblenden", u"Show &Details"},
    {"menSucheZuletzt", u"Suche nach vorheriger Eingabe...", u"&Search last"},
};

constexpr NamedText MenuTitles[] = {
    {"menDatei", u"Datei", u"&File"},
    {"menEinstellungen", u"Einstellungen", u"&Settings"},
    {"menNavigieren", u"Navigieren", u"&Navigate"},
    {"menAnsicht", u"Ansicht", u"&View"},
    {"menExtras", u"Extras", u"Tools"},
};

constexpr NamedText ButtonTips[] = {
    {"Command6", u"Neustart der Sequenz", u"Restarts the sequence"},
    {"Command4", u"Schließt dieses Fenster", u"Closes this window"},
    {"back", u"Springt zur 1. Vokabel der Sequenz", u"Jumps to 1st vocab of the sequence"},
    {"Command1", u"Eine Vokabel zurück", u"One vocab back"},
    {"Command2", u"Eine Vokabel weiter", u"One vocab forward"},
    {"ToEnd", u"Springt zur letzten Vokabel der Sequenz", u"Jumps to last vocab of the sequence"},
    {"Command3", u"Step - Geht 1 Schritt weiter", u"Proceeds to next step"},
};

constexpr NamedText LabelTexts[] = {
    {"Label1", u"Wortart", u"Part of Speech"},
    {"Label12", u"Grammatikalische Attribute", u"Grammar Attributes"},
    {"Label13", u"Funktionale Attribute", u"Functional Attributes"},
    {"Label14", u"Bereiche", u"Areas"},
    {"Label3", u"Quelle", u"Source"},
    {"Label11", u"Quelle", u"Source"},
    {"Label5", u"Zusatzinfo", u"Additional Info"},
    {"Label6", u"Beispielsatz", u"Sample Phrase"},
    {"Label8", u"Eingabedatum", u"Creationdate"},
    {"Label9", u"Änderungsdatum", u"Changedate"},
    {"Label10", u"Score", u"Score"},
    {"labNoReferences", u"<keine Referenzen>", u"<no References>"},
    {"Richtig", u"OK", u"OK"},
};

QString textOf(const NamedText& text, const QString& language) {
    return QString::fromUtf16(language == u"En" ? text.english : text.german);
}

} // namespace

TEST(Form, TextsInBothLanguages) {
    for (const QString& language : {u"En"_s, u"De"_s}) {
        TrainingBench bench(3, language);
        for (const NamedText& text : ActionTexts)
            EXPECT_EQ(bench.action(text.name).text(), textOf(text, language)) << text.name;
        for (const NamedText& text : MenuTitles)
            EXPECT_EQ(child<QMenu>(bench.trainer, text.name).title(), textOf(text, language)) << text.name;
        for (const NamedText& text : ButtonTips)
            EXPECT_EQ(bench.button(text.name).toolTip(), textOf(text, language)) << text.name;
        for (const NamedText& text : LabelTexts)
            EXPECT_EQ(child<QLabel>(bench.trainer, text.name).text(), textOf(text, language)) << text.name;
        const bool english = language == u"En";
        EXPECT_EQ(bench.button("Suche").text(), english ? u"Find" : u"Suche");
        for (const char* name : {"UpDown1", "UpDown2"})
            EXPECT_EQ(child<QWidget>(bench.trainer, name).toolTip(),
                      english ? u"Displays synonym if any" : u"Synonyme anzeigen, falls vorhanden");
        const auto& tabs = child<QTabBar>(bench.trainer, "TabStrip1");
        const QStringList captions{tabs.tabText(0), tabs.tabText(1), tabs.tabText(2)};
        EXPECT_EQ(captions, english ? (QStringList{u"Attributes1"_s, u"Attributes2"_s, u"References"_s})
                                    : (QStringList{u"Attribute1"_s, u"Attribute2"_s, u"Referenzen"_s}));
    }
    TrainingBench english(3);
    EXPECT_EQ(english.trainer.windowTitle(), u"Trainer");
    EXPECT_EQ(english.button("Command6").text(), u"Restart");
    EXPECT_EQ(english.button("Command4").text(), u"Close");
    EXPECT_EQ(english.grid.toolTip(), u"Change row height with mouse");
    EXPECT_EQ(english.panel(1), u"Number of vocabs");
    EXPECT_EQ(english.panel(3), u"Vocab no.");
    TrainingBench german(3, u"De"_s);
    EXPECT_EQ(german.trainer.windowTitle(), u"Vokabeltrainer");
    EXPECT_EQ(german.button("Command6").text(), u"Neustart");
    EXPECT_EQ(german.button("Command4").text(), u"Schließen");
    EXPECT_EQ(german.grid.toolTip(), u"Zeilenhöhe mit der Maus ändern");
    EXPECT_EQ(german.panel(1), u"Anzahl Vokabeln");
    EXPECT_EQ(german.panel(3), u"Vokabel Nr.");
}

TEST(Form, EveryControlIsNamedForThoseWhoDoNotSeeIt) {
    TrainingBench bench(3);
    for (const NamedText& tip : ButtonTips) {
        const QPushButton& button = bench.button(tip.name);
        EXPECT_FALSE(button.text().isEmpty() && button.accessibleName().isEmpty()) << tip.name;
        EXPECT_FALSE(button.text().isEmpty() && button.icon().isNull()) << tip.name;
    }
    EXPECT_FALSE(bench.grid.accessibleName().isEmpty());
    EXPECT_FALSE(bench.bar().accessibleName().isEmpty());
    EXPECT_EQ(child<QLabel>(bench.trainer, "StatusBar1_Panel2").accessibleName(), bench.panel(1));
}

TEST(Form, TheMenuOfSettingsAsksForTheOptionsByTheirTab) {
    TrainingBench bench(3);
    QList<int> tabs;
    QObject::connect(&bench.trainer, &Trainer::optionsRequested, &bench.trainer,
                     [&tabs](int tab) { tabs += tab; });
    bench.choose("menMain");
    bench.choose("menTestoptionen");
    EXPECT_EQ(tabs, (QList<int>{1, 2}));
}

TEST(Form, LoadingMovesTheSplashBarOn) {
    TestContext context;
    Liste list(context.forms);
    list.Form_Load();
    Trainer trainer(context.forms, list);
    QList<int> values;
    QObject::connect(&trainer, &Trainer::loadProgress, &trainer, [&values](int value) { values += value; });
    trainer.Form_Load();
    ASSERT_GE(values.size(), 2);
    EXPECT_EQ(values.at(0), 83);
    EXPECT_EQ(values.at(1), 85);
    EXPECT_TRUE(std::is_sorted(values.begin(), values.end()));
    EXPECT_LT(values.last(), 95);
}

TEST(Form, ClosingHidesItAndKeepsTheSession) {
    TrainingBench bench(3);
    bench.step();
    for (int way = 0; way < 3; ++way) {
        bench.trainer.show();
        if (way == 0)
            bench.button("Command4").click();
        else if (way == 1)
            bench.choose("menClose");
        else
            bench.trainer.close();
        EXPECT_FALSE(bench.trainer.isVisible());
        EXPECT_EQ(bench.trainer.Position, 1);
        EXPECT_EQ(bench.question(), u"Wort 1");
    }
}

TEST(Form, AWindowParkedOffTheScreenComesBack) {
    TrainingBench bench(3);
    bench.trainer.move(-10000, 30);
    bench.trainer.Form_Activate();
    EXPECT_EQ(bench.trainer.x(), 45);
    EXPECT_EQ(bench.trainer.y(), 30);
}

TEST(Form, TheKeyboardAloneSuffices) {
    TrainingBench bench(4);
    bench.trainer.show();
    bench.trainer.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&bench.trainer));
    EXPECT_EQ(bench.trainer.focusWidget(), &bench.button("Command3"));

    const auto press = [&](Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    };
    press(Qt::Key_Space);
    EXPECT_EQ(bench.question(), u"Wort 1");
    press(Qt::Key_Return);
    EXPECT_EQ(bench.solution(), u"word 1");
    press(Qt::Key_Enter);
    EXPECT_EQ(bench.question(), u"Wort 2");
    press(Qt::Key_F8);
    EXPECT_EQ(bench.solution(), u"word 2");
    press(Qt::Key_F9);
    EXPECT_EQ(bench.trainer.Position, 3);
    press(Qt::Key_F7);
    EXPECT_EQ(bench.trainer.Position, 2);
    press(Qt::Key_End, Qt::ControlModifier);
    EXPECT_EQ(bench.trainer.Position, 4);
    press(Qt::Key_Home, Qt::ControlModifier);
    EXPECT_EQ(bench.trainer.Position, 1);
    press(Qt::Key_F5);
    EXPECT_EQ(bench.trainer.Position, 0);

    bench.grid.setFocus();
    press(Qt::Key_Space);
    EXPECT_EQ(bench.question(), u"Wort 1");
    press(Qt::Key_Return);
    EXPECT_EQ(bench.solution(), u"word 1");

    bench.button("Command4").setFocus();
    press(Qt::Key_Return);
    EXPECT_FALSE(bench.trainer.isVisible());
}

TEST(Form, LanguagesAndExpressionsAreSetInTheirOwnWays) {
    TrainingBench bench(1);
    bench.step();
    bench.step();
    bench.grid.flush();
    for (const int row : {0, 1, 2, 3}) {
        const bool isLanguage = row % 2 == 0;
        bench.grid.setRow(row);
        bench.grid.setCol(0);
        const QFont font = bench.grid.CellFont();
        EXPECT_EQ(font.family(), u"Arial");
        EXPECT_EQ(font.italic(), isLanguage) << row;
        EXPECT_EQ(font.bold(), !isLanguage) << row;
        const QModelIndex cell = bench.grid.model()->index(row, 0);
        const auto alignment = cell.data(Qt::TextAlignmentRole).value<Qt::Alignment>();
        EXPECT_TRUE(alignment.testFlag(isLanguage ? Qt::AlignLeft : Qt::AlignHCenter)) << row;
        EXPECT_EQ(cell.data(FlexGridModel::BackgroundPaletteRole).toInt(),
                  isLanguage ? QPalette::Button : QPalette::Base);
    }
}

TEST(Form, NothingOffersToTakeTheToolbarAway) {
    TrainingBench bench(1);
    bench.trainer.show();
    const QList<QWidget*> places{bench.trainer.menuBar(), &child<QWidget>(bench.trainer, "Toolbar1"),
                                 &bench.option(1), bench.trainer.statusBar()};
    for (QWidget* const place : places) {
        const QPoint middle = place->rect().center();
        QContextMenuEvent event(QContextMenuEvent::Mouse, middle, place->mapToGlobal(middle));
        QApplication::sendEvent(place, &event);
        EXPECT_EQ(QApplication::activePopupWidget(), nullptr) << place->objectName().toStdString();
    }
}

TEST(Form, QuestionAndSolutionShareTheRoom) {
    TrainingBench bench(3);
    bench.trainer.show();
    for (const QSize& size : {QSize(600, 400), QSize(800, 560), QSize(420, 300)}) {
        bench.trainer.resize(size);
        QApplication::processEvents();
        const FlexGrid& grid = bench.grid;
        EXPECT_NEAR(grid.RowHeight(1), grid.RowHeight(3), 1);
        EXPECT_EQ(grid.RowHeight(0), grid.RowHeight(2));
        EXPECT_GT(grid.RowHeight(1), grid.RowHeight(0));
        const int total = grid.RowHeight(0) + grid.RowHeight(1) + grid.RowHeight(2) + grid.RowHeight(3);
        EXPECT_EQ(total, grid.viewport()->height());
        EXPECT_EQ(grid.ColWidth(0), grid.viewport()->width());
    }
}

TEST(Form, ADraggedBorderSharesTheRoomOutAnewAndStaysWithTheWindow) {
    TrainingBench bench(3);
    bench.trainer.resize(600, 500);
    bench.trainer.show();
    QApplication::processEvents();
    const FlexGrid& grid = bench.grid;
    const int before = grid.RowHeight(1);
    const int captionHeight = grid.RowHeight(0);

    const auto drag = [&grid](int fromY, int distance) {
        QTest::mousePress(grid.viewport(), Qt::LeftButton, {}, {20, fromY});
        QTest::mouseMove(grid.viewport(), {20, fromY + distance});
        QTest::mouseRelease(grid.viewport(), Qt::LeftButton, {}, {20, fromY + distance});
        QApplication::processEvents();
    };
    const auto expectFilled = [&] {
        EXPECT_EQ(grid.RowHeight(0), captionHeight);
        EXPECT_EQ(grid.RowHeight(2), captionHeight);
        EXPECT_EQ(2 * captionHeight + grid.RowHeight(1) + grid.RowHeight(3), grid.viewport()->height());
    };
    drag(captionHeight + before, -40); // the lower border of the question
    EXPECT_NEAR(grid.RowHeight(1), before - 40, 2);
    expectFilled();
    drag(2 * captionHeight + grid.RowHeight(1), 20); // that of the name below it
    EXPECT_NEAR(grid.RowHeight(1), before - 20, 3);
    expectFilled();

    const double share = static_cast<double>(grid.RowHeight(1)) / (grid.RowHeight(1) + grid.RowHeight(3));
    bench.trainer.resize(600, 700);
    QApplication::processEvents();
    EXPECT_NEAR(static_cast<double>(grid.RowHeight(1)) / (grid.RowHeight(1) + grid.RowHeight(3)), share,
                0.01);
    expectFilled();

    drag(captionHeight + grid.RowHeight(1), 2000); // neither of the two goes away
    EXPECT_GT(grid.RowHeight(3), captionHeight);
    expectFilled();
}

TEST(Form, ALargerFontTakesTheDisplayAlong) {
    TrainingBench bench(3);
    bench.trainer.resize(800, 570);
    bench.trainer.show();
    bench.step();
    QApplication::processEvents();
    bench.grid.setRow(1);
    const qreal before = bench.grid.CellFont().pointSizeF();
    const int captionHeight = bench.grid.RowHeight(0);

    QFont larger = bench.trainer.font();
    larger.setPointSizeF(larger.pointSizeF() * 2);
    bench.trainer.setFont(larger);
    QApplication::processEvents();
    EXPECT_NEAR(bench.grid.CellFont().pointSizeF(), 2 * before, 0.5);
    EXPECT_GT(bench.grid.RowHeight(0), captionHeight);
    EXPECT_NEAR(bench.grid.RowHeight(1), bench.grid.RowHeight(3), 1);
    EXPECT_EQ(bench.grid.RowHeight(0) * 2 + bench.grid.RowHeight(1) + bench.grid.RowHeight(3),
              bench.grid.viewport()->height());
    EXPECT_LE(bench.trainer.minimumSizeHint().width(), 800);
    EXPECT_LE(bench.trainer.minimumSizeHint().height(), 600);
}

TEST(Form, ALongExpressionIsSetSmallerSoThatAllOfItIsSeen) {
    TrainingBench bench(1);
    FlexGrid& rows = bench.list.MSFlexGrid1();
    rows.setTextMatrix(1, Liste::ColSprache1, u"eine sehr lange Wendung "_s.repeated(15));
    bench.trainer.resize(500, 300);
    bench.trainer.show();
    QApplication::processEvents();
    bench.step();
    bench.step();
    const qreal question = bench.grid.CellFont().pointSizeF();
    bench.grid.setRow(3);
    EXPECT_LT(question, bench.grid.CellFont().pointSizeF());
    EXPECT_EQ(bench.question(), rows.TextMatrix(1, Liste::ColSprache1));
}

TEST(Form, FitsASmallScreen) {
    TrainingBench bench(3);
    const QSize smallest = bench.trainer.minimumSizeHint();
    EXPECT_LE(smallest.width(), 800);
    EXPECT_LE(smallest.height(), 600);
}
