#include "TestProgram.h"

#include "FlexGrid.h"
#include "Globals.h"

#include <QLabel>
#include <QProgressBar>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace lingomat {
namespace {

/// The values of the splash's bar, each with the status below it at that moment.
class BarRecord {
public:
    explicit BarRecord(frmSplash& splash) {
        const auto& status = child<QLabel>(splash, "labStatus");
        const auto& bar = child<QProgressBar>(splash, "ProgressBar1");
        QObject::connect(&bar, &QProgressBar::valueChanged, &splash, [this, &status](int value) {
            values.append(value);
            if (texts.isEmpty() || texts.last() != status.text())
                texts.append(status.text());
        });
    }
    QList<int> values;
    QStringList texts;
};

TEST(FormLoad, BarAndStatusFollowTheSteps) {
    TestProgram program;
    writeDatabase(program.path(u"a.lmt"_s), {.entries = someEntries()});
    program.rememberDatabase(program.path(u"a.lmt"_s));
    BarRecord record(program.make().splash());
    program.app().form1().Form_Load();

    EXPECT_EQ(record.values.first(3), QList({5, 6, 10}));
    const QList<int> told{5,  6,  10, 13, 20, 22, 25, 27, 30, 33, 35, 40, 42, 45, 48, 50, 52,
                          55, 57, 60, 62, 65, 68, 70, 75, 77, 78, 80, 81, 83, 85, 95, 100};
    QList<int> own = record.values;
    own.removeIf([&told](int value) { return !told.contains(value); });
    EXPECT_EQ(own, told);
    EXPECT_TRUE(std::is_sorted(record.values.begin(), record.values.end())) << "the bar never goes back";
    EXPECT_EQ(record.texts,
              QStringList({u"Loading program ..."_s, u"Opening database ..."_s, u"Database is open ..."_s,
                           u"Retrieving languages ..."_s, u"Reading database ..."_s,
                           u"Initializing Vocab List ..."_s, u"Initializing Trainer ..."_s}));
}

TEST(FormLoad, GermanStatus) {
    TestProgram program(u"De"_s);
    writeDatabase(program.path(u"a.lmt"_s), {.entries = someEntries()});
    program.rememberDatabase(program.path(u"a.lmt"_s));
    BarRecord record(program.make().splash());
    program.app().form1().Form_Load();
    EXPECT_EQ(record.texts,
              QStringList({u"Programm wird geladen ..."_s, u"Datenbank wird geöffnet ..."_s,
                           u"Datenbank geöffnet ..."_s, u"Sprachen werden extrahiert ..."_s,
                           u"Datenbank wird gelesen ..."_s, u"Vokabelliste initialisieren ..."_s,
                           u"Vokabeltrainer initialisieren ..."_s}));
}

TEST(FormLoad, BarNeverGoesBackAtFirstStart) {
    TestProgram program;
    program.installSample();
    program.prompts.expect({.icon = QMessageBox::NoIcon, .text = ExpectedText::anything()});
    BarRecord record(program.make().splash());
    program.app().form1().Form_Load();
    EXPECT_TRUE(std::is_sorted(record.values.begin(), record.values.end()));
    EXPECT_EQ(record.values.last(), 100);
}

TEST(FormLoad, OpensTheDatabaseOfTheLastRun) {
    TestProgram program;
    Application& app = program.startWithDatabase();
    const SharedState& state = app.state();
    EXPECT_EQ(state.CurrentDBPath, program.path(u"vocab.lmt"_s));
    EXPECT_EQ(state.Lang1Name, u"Deutsch"_s);
    EXPECT_EQ(state.Lang2Name, u"Englisch"_s);
    EXPECT_EQ(state.Lang2KommentarField, u"Lang2_Kommentar"_s);
    EXPECT_EQ(state.MarkePath, program.programFolder() + "/marke.gif"_L1);
    EXPECT_FALSE(state.DBIsEmpty);
    EXPECT_FALSE(state.DBChanged);
    EXPECT_FALSE(state.SelectionValid);
    EXPECT_FALSE(state.FormIsLoading);
    EXPECT_EQ(program.label("AnzahlLabel"), u"Number of entries: 4"_s);
    EXPECT_TRUE(program.isEnabled("Command1"));
    EXPECT_FALSE(program.isEnabled("Grid"));
    EXPECT_FALSE(program.isEnabled("Command2"));
}

TEST(FormLoad, WorkingWindowsAreLoadedHidden) {
    TestProgram program;
    Application& app = program.startWithDatabase();
    EXPECT_FALSE(app.liste().isVisible());
    EXPECT_FALSE(app.trainer().isVisible());
    EXPECT_FALSE(app.form2().isVisible());
    EXPECT_EQ(app.liste().MSFlexGrid1().TextMatrix(0, Liste::ColSprache1), u"Deutsch"_s);
    EXPECT_EQ(app.liste().MSFlexGrid1().TextMatrix(0, Liste::ColSprache2), u"Englisch"_s);
}

TEST(FormLoad, CleansUnusedRowsUp) {
    TestProgram program;
    const QString file = program.path(u"a.lmt"_s);
    writeDatabase(file, {.entries = someEntries(), .unusedAreas = {u"nobody's"_s}});
    program.rememberDatabase(file);
    program.start();
    EXPECT_EQ(readColumn(file, u"Bereiche"_s, u"Bereich_Text"_s), QStringList({u"talk"_s, u"home"_s}));
}

TEST(FormLoad, EmptyDatabaseIsToldAndOffersTheListOnly) {
    for (const auto& [language, text, status] :
         {std::tuple{u"En"_s, u"The database is empty!"_s, u"Databse is empty"_s},
          std::tuple{u"De"_s, u"Die Datenbank ist leer!"_s, u"Datenbank ist leer"_s}}) {
        TestProgram program(language);
        writeDatabase(program.path(u"a.lmt"_s), {});
        program.rememberDatabase(program.path(u"a.lmt"_s));
        program.prompts.expect({.icon = QMessageBox::NoIcon, .text = text});
        BarRecord record(program.make().splash());
        program.app().form1().start();
        EXPECT_TRUE(record.texts.contains(status));
        EXPECT_TRUE(program.app().state().DBIsEmpty);
        EXPECT_FALSE(program.isEnabled("Command1"));
        EXPECT_TRUE(program.isEnabled("Grid"));
        EXPECT_FALSE(program.isEnabled("Command2"));
        EXPECT_EQ(program.recentDatabase(), program.path(u"a.lmt"_s));
    }
}

TEST(FormLoad, FirstStartOpensTheSampleAndWelcomes) {
    TestProgram program;
    program.installSample();
    program.prompts.expect(
        {.icon = QMessageBox::NoIcon,
         .text = u"Welcome to Lingomat!\n\n"
                 u"The program has opened the sample database.\n\n"
                 u"The sample database consists of German and English vocabulary.\n\n"
                 u"You can use this database in order to get familiar with the features of Lingomat,\n\n"
                 u"or you can create your own database or open an already existing one.",
         .title = u"Welcome!"_s});
    program.start();
    EXPECT_EQ(program.app().state().CurrentDBPath, program.sample());
    EXPECT_EQ(program.recentDatabase(), program.sample());
    EXPECT_EQ(program.label("AnzahlLabel"), u"Number of entries: 4"_s);
    EXPECT_EQ(program.setting("Exceptions", "Exc_1"), u"!¡"_s);
    EXPECT_EQ(program.setting("Exceptions", "Exc_2"), u"?¿"_s);
    EXPECT_EQ(program.app().state().Exceptions.ExceptionCount(), 2);
}

TEST(FormLoad, GermanFirstStartOpensTheGermanSample) {
    TestProgram program(u"De"_s);
    program.installSample();
    program.prompts.expect(
        {.icon = QMessageBox::NoIcon,
         .text = u"Willkommen bei Lingomat!\n\n"
                 u"Das Programm hat die Beispieldatenbank geöffnet.\n\n"
                 u"Die Beispieldatenbank enthält deutsche und spanische Vokabeln.\n\n"
                 u"Sie können diese Datenbank dazu verwenden, sich mit dem Programm vertraut zu machen,\n\n"
                 u"oder Sie können eine eigene Datenbank anlegen bzw. eine bereits bestehende laden.",
         .title = u"Willkommen!"_s});
    program.start();
    EXPECT_EQ(program.app().state().CurrentDBPath, program.programFolder() + "/ExampleGerman.lmt"_L1);
    EXPECT_EQ(program.label("Lang2Label"), u"Spanisch"_s);
}

TEST(FormLoad, SecondStartDoesNotWelcome) {
    TestProgram program;
    program.installSample();
    program.prompts.expect({.icon = QMessageBox::NoIcon, .text = ExpectedText::anything()});
    program.start();
    program.click("Command4");
    program.start();
    EXPECT_EQ(program.app().state().CurrentDBPath, program.sample());
}

TEST(FormLoad, StoredPairsAreReadAndTenOfThemCountAsNone) {
    for (const int pairs : {9, 10}) {
        TestProgram program;
        SettingsStore settings(program.settingsFolder());
        for (int number = 1; number <= pairs; ++number)
            settings.SaveSetting(AppName(), u"Exceptions"_s, "Exc_"_L1 + QString::number(number), u"ab"_s);
        program.startWithDatabase();
        EXPECT_EQ(program.app().state().Exceptions.ExceptionCount(), pairs == 9 ? 9 : 0);
    }
}

TEST(FormLoad, SmallScreenIsToldAndTheProgramGoesOn) {
    for (const auto& [language, text] :
         {std::pair{u"En"_s,
                    u"The screen resolution is too low! Set the resolution of your screen to 800x600 "
                    u"pixels or higher."_s},
          std::pair{u"De"_s,
                    u"Die Bildschirmauflösung ist zu gering! Stellen Sie eine Bildschirmauflösung von "
                    u"mindestens 800x600 Pixel ein."_s}}) {
        TestProgram program(language);
        program.workArea = {320, 200};
        program.prompts.expectExclamation(text);
        program.startWithDatabase();
        EXPECT_TRUE(program.app().form1().isVisible());
        EXPECT_TRUE(program.isEnabled("Command1"));
    }
}

TEST(FormLoad, ScreenOf800x600IsLargeEnough) {
    TestProgram program;
    program.workArea = {800, 600};
    program.startWithDatabase();
    EXPECT_TRUE(program.app().form1().isVisible());
}

} // namespace
} // namespace lingomat
