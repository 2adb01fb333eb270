// The options with the whole program: the ways to them, what lasts for the run and what is kept.

#include "TestProgram.h"

#include "FlexGrid.h"
#include "Globals.h"

#include <QAbstractButton>
#include <QAction>
#include <QLineEdit>
#include <QTabBar>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace lingomat {
namespace {

class OptionsStory : public testing::Test {
protected:
    void willUse(const std::function<void(QDialog&)>& act) {
        program.prompts.expectDialog("frmOptions", [this, act](QDialog& form) {
            tab = child<QTabBar>(form, "tbsOptions").currentIndex() + 1;
            act(form);
        });
    }
    static void press(QDialog& form, const char* name) { child<QAbstractButton>(form, name).click(); }
    static void cancel(QDialog& form) { press(form, "cmdCancel"); }
    void choose(QWidget& window, const char* entry) { child<QAction>(window, entry).trigger(); }
    void store(const char* section, const char* key, const QString& value) {
        SettingsStore(program.settingsFolder())
            .SaveSetting(AppName(), QString::fromLatin1(section), QString::fromLatin1(key), value);
    }
    int columnWidth(int column) { return program.app().liste().MSFlexGrid1().ColWidth(column); }

    TestProgram program;
    int tab = 0; ///< on top when the dialog came up
};

TEST_F(OptionsStory, OpenFromTheMainWindowAndFromTheTrainer) {
    program.startWithDatabase();
    willUse(cancel);
    program.choose("Optionen");
    EXPECT_EQ(tab, 1);
    willUse(cancel);
    choose(program.app().trainer(), "menTestoptionen");
    EXPECT_EQ(tab, 2);
    willUse(cancel);
    program.choose("Optionen");
    EXPECT_EQ(tab, 2) << "as it stands";
    willUse(cancel);
    choose(program.app().trainer(), "menMain");
    EXPECT_EQ(tab, 1);
}

TEST_F(OptionsStory, OpenFromTheListOnTheColumnsOrAsTheyStand) {
    program.startWithDatabase();
    willUse(cancel);
    choose(program.app().liste(), "mnAnsichtOptionen");
    EXPECT_EQ(tab, 4);
    willUse([](QDialog& form) {
        child<QTabBar>(form, "tbsOptions").setCurrentIndex(2);
        cancel(form);
    });
    choose(program.app().liste(), "mnOptionen");
    EXPECT_EQ(tab, 4);
    willUse(cancel);
    choose(program.app().liste(), "mnOptionen");
    EXPECT_EQ(tab, 3) << "as it stands";
}

TEST_F(OptionsStory, PairsAndColumnsAreKeptTheRestIsNot) {
    program.startWithDatabase();
    willUse([](QDialog& form) {
        press(form, "Reihenfolge_shuffle");
        press(form, "chkQuelle");
        child<QLineEdit>(form, "Text1").setText(u"a"_s);
        child<QLineEdit>(form, "Text2").setText(u"ä"_s);
        press(form, "Add");
        press(form, "cmdOK");
    });
    program.choose("Optionen");
    EXPECT_TRUE(program.app().trainer().Reihenfolge_shuffle);
    EXPECT_EQ(columnWidth(Liste::ColQuelle), 0);
    program.click("Command4");

    program.start();
    EXPECT_TRUE(program.app().trainer().Reihenfolge_sequentiell);
    EXPECT_EQ(columnWidth(Liste::ColQuelle), 0);
    EXPECT_FALSE(child<QAction>(program.app().liste(), "mnAnsichtQuelle").isChecked());
    EXPECT_EQ(program.app().state().Exceptions.WorkInException(u"a"_s), u"ä");
    willUse([](QDialog& form) {
        EXPECT_TRUE(child<QAbstractButton>(form, "Reihenfolge_sequentiell").isChecked());
        EXPECT_FALSE(child<QAbstractButton>(form, "chkQuelle").isChecked());
        cancel(form);
    });
    program.choose("Optionen");
}

TEST_F(OptionsStory, SectionsEditedByHandDoNoHarm) {
    store("List", "Wortart", u"maybe"_s);
    store("List", "Quelle", u"0"_s);
    store("List", "Bereich", u"-99999999999999999999"_s);
    store("List", "Unknown", u"1"_s);
    store("Exceptions", "Exc_1", u"xyz=;[]"_s);
    store("Exceptions", "Exc_2", u"\t"_s);
    store("Exceptions", "Exc_3", QString());
    store("Exceptions", "Exc_x", u"ab"_s);
    program.startWithDatabase();
    EXPECT_EQ(columnWidth(Liste::ColQuelle), 0);
    EXPECT_GT(columnWidth(Liste::ColWortart), 0);
    EXPECT_GT(columnWidth(Liste::ColBereich), 0);
    EXPECT_EQ(program.app().state().Exceptions.WorkInException(u"x"_s), u"]");
    willUse([](QDialog& form) {
        EXPECT_TRUE(child<QAbstractButton>(form, "chkWortart").isChecked());
        EXPECT_FALSE(child<QAbstractButton>(form, "chkQuelle").isChecked());
        press(form, "cmdOK");
    });
    program.choose("Optionen");
    EXPECT_EQ(program.setting("List", "Wortart"), u"1");
    EXPECT_EQ(program.setting("List", "Quelle"), u"0");
    EXPECT_EQ(program.setting("Exceptions", "Exc_1"), u"x]");
    EXPECT_EQ(program.setting("Exceptions", "Exc_x"), QString()) << "the section is written anew";
}

TEST_F(OptionsStory, PairsThatAStartWithoutDatabaseHasNotReadAreNotLost) {
    store("Exceptions", "Exc_1", u"!¡"_s);
    program.rememberDatabase(program.path(u"gone.lmt"_s));
    program.prompts.expectErrorContaining(u""_s);
    program.start();
    willUse([](QDialog& form) { press(form, "cmdOK"); });
    program.choose("Optionen");
    EXPECT_EQ(program.setting("Exceptions", "Exc_1"), u"!¡");
}

TEST_F(OptionsStory, NamesOfTheLanguagesFollowTheFile) {
    program.startWithDatabase();
    willUse([this](QDialog& form) {
        EXPECT_EQ(child<QAbstractButton>(form, "Sprache_spanisch").text(),
                  program.app().state().Lang1Name + u" first"_s);
        cancel(form);
    });
    program.choose("Optionen");
}

} // namespace
} // namespace lingomat
