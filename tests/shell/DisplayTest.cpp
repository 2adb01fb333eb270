#include "TestProgram.h"

#include "FlexGrid.h"

#include <QLabel>
#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace lingomat {
namespace {

class Display : public testing::Test {
protected:
    Display() { program.startWithDatabase(); }
    SharedState& state() { return program.app().state(); }
    Form1& form() { return program.app().form1(); }
    QLabel& labelOf(const char* name) { return child<QLabel>(form(), name); }

    TestProgram program;
};

TEST_F(Display, CountIsThatOfTheSelection) {
    state().DBHandler.RecordsetAuswahl =
        state().DBHandler.Database.OpenRecordset(u"SELECT * FROM Vokabular WHERE Wortart = 'noun'"_s);
    form().Form_Activate();
    EXPECT_EQ(program.label("AnzahlLabel"), u"Number of entries: 1"_s);
    EXPECT_EQ(state().DBHandler.RecordsetVokabular.RecordCount(), 4);
}

TEST_F(Display, CountThatCannotBeReadIsIgnored) {
    state().DBHandler.RecordsetAuswahl.Close();
    form().Form_Activate();
    EXPECT_EQ(program.label("Lang1Label"), u"Deutsch"_s) << "no error box, and the rest is shown";
}

TEST(DisplayInGerman, Labels) {
    TestProgram program(u"De"_s);
    program.startWithDatabase();
    EXPECT_TRUE(program.label("DBAnzeige").startsWith(u"Datenbank: /"_s));
    EXPECT_EQ(program.label("AnzahlLabel"), u"Anzahl Einträge: 4"_s);
}

TEST_F(Display, LongPathIsCutAndFitsAgainInAWiderWindow) {
    QString longPath = program.path(QString(120, u'x')) + ".lmt"_L1;
    state().CurrentDBPath = longPath;
    form().resize(500, 300);
    QCoreApplication::processEvents();
    form().SetzeAnzeigen();
    const QLabel& label = labelOf("DBAnzeige");
    EXPECT_TRUE(label.text().startsWith(u"Database: "_s));
    EXPECT_TRUE(label.text().endsWith(u"..."_s));
    const QFontMetrics metrics = label.fontMetrics();
    EXPECT_LE(metrics.horizontalAdvance(label.text()), label.width() - 6 * metrics.averageCharWidth());
    EXPECT_TRUE(label.toolTip().contains(longPath)) << "the whole path is a hover away";

    form().resize(3000, 300);
    QCoreApplication::processEvents();
    EXPECT_EQ(label.text(), "Database: "_L1 + longPath);
    EXPECT_EQ(label.toolTip(), QString());
}

TEST_F(Display, LanguageNamesAreCutTo38PercentOfTheWindow) {
    state().Lang1Name = QString(300, u'm');
    form().SetzeAnzeigen();
    const QLabel& label = labelOf("Lang1Label");
    EXPECT_TRUE(label.text().endsWith(u"m..."_s));
    const QFontMetrics metrics = label.fontMetrics();
    const int width = metrics.horizontalAdvance(label.text());
    EXPECT_LE(width, form().width() * 38 / 100);
    EXPECT_GT(width + 2 * metrics.horizontalAdvance(u'm'), form().width() * 38 / 100);
    EXPECT_EQ(program.label("Lang2Label"), u"Englisch"_s);
}

TEST_F(Display, TextsAreNoMarkup) {
    state().Lang1Name = u"<b>x</b>"_s;
    form().SetzeAnzeigen();
    for (const char* name : {"DBAnzeige", "Lang1Label", "Lang2Label", "AnzahlLabel"})
        EXPECT_EQ(labelOf(name).textFormat(), Qt::PlainText) << name;
    EXPECT_EQ(program.label("Lang1Label"), u"<b>x</b>"_s);
}

TEST_F(Display, LanguageNamesStandOverTheListAndItsCurrentCellStays) {
    FlexGrid& grid = program.app().liste().MSFlexGrid1();
    grid.AddItem(u"\t1\tja\tyes"_s);
    grid.setRow(1);
    grid.setCol(3);
    state().Lang1Name = u"Alt"_s;
    state().Lang2Name = u"Neu"_s;
    form().UpdateLanguageFields();
    EXPECT_EQ(grid.TextMatrix(0, Liste::ColSprache1), u"Alt"_s);
    EXPECT_EQ(grid.TextMatrix(0, Liste::ColSprache2), u"Neu"_s);
    EXPECT_EQ(grid.Row(), 1);
    EXPECT_EQ(grid.Col(), 3);
}

TEST_F(Display, SelectionMakesListAndTrainerUsable) {
    state().SelectionValid = true;
    form().GreyOut();
    EXPECT_TRUE(program.isEnabled("Grid"));
    EXPECT_TRUE(program.isEnabled("Menu_Auswahl_Liste"));
    EXPECT_TRUE(program.isEnabled("Command2"));
    EXPECT_TRUE(program.isEnabled("Menu_Ansicht_Vokabeltrainer"));
    EXPECT_TRUE(program.isEnabled("Menu_Ansicht"));
}

TEST_F(Display, EmptyDatabaseWithoutSelectionHasAnEmptyList) {
    program.app().liste().MSFlexGrid1().AddItem(u"\t1\tja\tyes"_s);
    state().DBIsEmpty = true;
    state().SelectionValid = true;
    form().ConditionToUI(false);
    EXPECT_EQ(program.app().liste().countRows(), 1) << "a selection counts more than the flag";

    state().SelectionValid = false;
    form().ConditionToUI(false);
    EXPECT_EQ(program.app().liste().countRows(), 0);
}

TEST_F(Display, ChangedDatabaseForgetsTheSelectionOnce) {
    state().SelectionValid = true;
    state().DBChanged = true;
    form().ConditionToUI(false);
    EXPECT_FALSE(state().SelectionValid);
    EXPECT_FALSE(state().DBChanged);

    state().SelectionValid = true;
    form().ConditionToUI(false);
    EXPECT_TRUE(state().SelectionValid);
}

TEST_F(Display, WithoutDatabaseTheListIsEmptied) {
    program.app().liste().MSFlexGrid1().AddItem(u"\t1\tja\tyes"_s);
    state().SelectionValid = true;
    state().CurrentDBPath.clear();

    state().FormIsLoading = true;
    form().ConditionToUI(true);
    EXPECT_TRUE(state().SelectionValid) << "while the form loads, nothing happens";

    state().FormIsLoading = false;
    form().ConditionToUI(true);
    EXPECT_FALSE(state().SelectionValid);
    EXPECT_EQ(program.app().liste().countRows(), 0);
    EXPECT_EQ(program.label("AnzahlLabel"), u"Number of Entries: <none>"_s);
}

TEST_F(Display, ActivationBringsTheWindowUpToDate) {
    state().SelectionValid = true;
    EXPECT_FALSE(program.isEnabled("Grid"));
    QEvent activation(QEvent::WindowActivate);
    QCoreApplication::sendEvent(&form(), &activation);
    EXPECT_TRUE(program.isEnabled("Grid"));
}

TEST_F(Display, EveryWayOpensItsWindow) {
    state().SelectionValid = true;
    form().GreyOut();
    struct Way {
        const char* button;
        const char* entry;
        QWidget& window;
    };
    Application& app = program.app();
    const Way ways[] = {{"Command1", "Menu_Ansicht_Auswahl", app.form2()},
                        {"Grid", "Menu_Auswahl_Liste", app.liste()},
                        {"Command2", "Menu_Ansicht_Vokabeltrainer", app.trainer()}};
    for (const Way& way : ways) {
        program.click(way.button);
        EXPECT_TRUE(way.window.isVisible()) << way.button;
        way.window.close();
        EXPECT_FALSE(way.window.isVisible());
        program.choose(way.entry);
        EXPECT_TRUE(way.window.isVisible()) << way.entry;
    }
}

TEST_F(Display, MinimizedWindowComesBack) {
    program.click("Command1");
    program.app().form2().showMinimized();
    program.click("Command1");
    EXPECT_FALSE(program.app().form2().isMinimized());
}

} // namespace
} // namespace lingomat
