#include "TestProgram.h"

#include "HelpTopics.h"
#include "HelpWindow.h"
#include "frmAbout.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace lingomat {
namespace {

const QString NoSystemInformation = u"System-Informationen sind augenblicklich nicht verfügbar."_s;

class HelpCommands : public testing::TestWithParam<QString> {
protected:
    HelpCommands() : program(GetParam()) {}

    bool english() const { return GetParam() == u"En"_s; }
    QString text(const char16_t* german, const char16_t* inEnglish) const {
        return QString::fromUtf16(english() ? inEnglish : german);
    }
    QString page() { return program.app().help().window()->currentPage(); }

    void storeSetting(const char16_t* section, const char16_t* key, const QString& value) {
        SettingsStore(program.settingsFolder())
            .SaveSetting(u"LMT"_s, QString::fromUtf16(section), QString::fromUtf16(key), value);
    }

    TestProgram program;
};
INSTANTIATE_TEST_SUITE_P(Languages, HelpCommands, testing::Values(u"En"_s, u"De"_s),
                         [](const auto& parameter) { return parameter.param.toStdString(); });

TEST_P(HelpCommands, ContentsAndSearchOpenTheHelpOfTheLanguage) {
    program.installHelp();
    program.startWithDatabase();
    EXPECT_EQ(program.app().help().window(), nullptr) << "a start without help pays nothing for it";
    program.choose("mnuHelpInhalt");
    EXPECT_EQ(page(), u"contents.html"_s);
    EXPECT_TRUE(program.app().help().window()->isVisible());
    EXPECT_EQ(program.app().help().window()->windowTitle(), text(u"Hilfe zu Lingomat", u"Help for Lingomat"));
    program.choose("mnuHelpSuchen");
    HelpWindow& window = *program.app().help().window();
    EXPECT_EQ(window.focusWidget(), &child<QLineEdit>(window, "searchText"));
}

TEST_P(HelpCommands, TheKeyOpensThePageOfTheWindow) {
    program.installHelp();
    program.startWithDatabase();
    QTest::keyClick(&child<QPushButton>(program.app().form1(), "Command4"), Qt::Key_F1);
    EXPECT_EQ(page(), u"main.html"_s);
    QTest::keyClick(&child<QPushButton>(program.app().form1(), "Command2"), Qt::Key_F1);
    EXPECT_EQ(page(), u"trainer.html"_s) << "a button that opens a window tells of that one";
    QTest::keyClick(&child<QLineEdit>(program.app().form2(), "MinScore"), Qt::Key_F1);
    EXPECT_EQ(page(), u"selection.html#score"_s);
    QTest::keyClick(&child<QLineEdit>(program.app().form2(), "Lang2Suffix"), Qt::Key_F1);
    EXPECT_EQ(page(), u"selection.html#parts"_s);
    QTest::keyClick(&child<QLineEdit>(program.app().form2(), "txtAenderungBisJahr"), Qt::Key_F1);
    EXPECT_EQ(page(), u"selection.html#misc"_s);
    QTest::keyClick(&program.app().liste(), Qt::Key_F1);
    EXPECT_EQ(page(), u"list.html"_s);
}

TEST_P(HelpCommands, EveryWindowOfTheProgramHasAPage) {
    program.installHelp();
    program.startWithDatabase();
    program.choose("mnuHelpInhalt");
    int windows = 0;
    const QWidgetList all = QApplication::topLevelWidgets();
    for (const QWidget* window : all) {
        const bool belongsToOne = window->parentWidget() || window->objectName().isEmpty();
        const bool isPopup = window->windowType() == Qt::Popup || window->windowType() == Qt::ToolTip;
        if (belongsToOne || isPopup || window->objectName().startsWith(u"qt_"_s))
            continue;
        ++windows;
        EXPECT_NE(helpPageFor(QStringList({window->objectName()})), QString())
            << window->objectName().toStdString();
    }
    EXPECT_GE(windows, 6);
}

TEST_P(HelpCommands, WithoutHelpFilesEachWayToThemSaysSo) {
    program.startWithDatabase();
    const QString box =
        text(u"Hilfeinhalt konnte nicht angezeigt werden. Dieser Anwendung ist keine Hilfedatei "
             u"zugeordnet.",
             u"Help content could not be displayed. No help file assigned to this application.");
    program.prompts.expectInformation(box);
    program.choose("mnuHelpInhalt");
    program.prompts.expectInformation(box);
    program.choose("mnuHelpSuchen");
    program.prompts.expectInformation(box);
    QTest::keyClick(&program.app().trainer(), Qt::Key_F1);
}

TEST_P(HelpCommands, TheHelpGoesWithTheProgram) {
    program.installHelp();
    program.startWithDatabase();
    program.choose("mnuHelpInhalt");
    program.click("Command4");
    EXPECT_FALSE(program.app().help().window()->isVisible());
}

TEST_P(HelpCommands, TheWebPageIsThatOfTheLanguage) {
    program.startWithDatabase();
    program.choose("mnWeb");
    ASSERT_EQ(program.desktop.opened.size(), 1);
    const QUrl address = program.desktop.opened.first();
    EXPECT_EQ(address.scheme(), u"https"_s);
    EXPECT_TRUE(address.path().contains(english() ? u"/en"_s : u"/de"_s)) << address.toString().toStdString();
}

TEST_P(HelpCommands, TheAddressOfTheWebPageCanBeSet) {
    storeSetting(u"Parameters", u"WebPage", u"words.example/start"_s);
    program.startWithDatabase();
    program.choose("mnWeb");
    ASSERT_EQ(program.desktop.opened.size(), 1);
    EXPECT_EQ(program.desktop.opened.first(), QUrl(u"https://words.example/start"_s));
}

TEST_P(HelpCommands, WithoutABrowserTheAddressIsTold) {
    storeSetting(u"Parameters", u"WebPage", u"http://words.example"_s);
    program.desktop.hasBrowser = false;
    program.startWithDatabase();
    program.prompts.expectExclamation(
        text(u"Es konnte kein Webbrowser gestartet werden. Die Adresse lautet:\nhttp://words.example",
             u"No web browser could be started. The address is:\nhttp://words.example"));
    program.choose("mnWeb");
}

TEST_P(HelpCommands, TheAboutBoxNamesProgramAndVersion) {
    program.startWithDatabase();
    program.prompts.expectDialog("frmAbout", [](QDialog& form) {
        EXPECT_EQ(form.windowTitle(), u"Lingomat-Info"_s);
        EXPECT_EQ(child<QLabel>(form, "lblTitle").text(), u"Lingomat"_s);
        EXPECT_EQ(child<QLabel>(form, "Label5").text(), u"V3.1A"_s);
        EXPECT_EQ(child<QLabel>(form, "lblVersion").text(), u"Version 3.1.0"_s);
        EXPECT_TRUE(child<QPushButton>(form, "cmdOK").isDefault());
        child<QPushButton>(form, "cmdOK").click();
    });
    program.choose("mnuHelpInfo");
    EXPECT_TRUE(program.prompts.isFinished());
}

TEST_P(HelpCommands, SystemInformationStartsTheProgramThatIsThere) {
    program.desktop.installed = QStringList({u"hardinfo"_s, u"kinfocenter"_s});
    program.startWithDatabase();
    program.prompts.expectDialog("frmAbout", [](QDialog& form) {
        child<QPushButton>(form, "cmdSysInfo").click();
        child<QPushButton>(form, "cmdOK").click();
    });
    program.choose("mnuHelpInfo");
    EXPECT_EQ(program.desktop.started, QStringList({u"/usr/bin/kinfocenter"_s}));
}

TEST_P(HelpCommands, SystemInformationStartsTheOneThatIsSet) {
    storeSetting(u"SystemInformation", u"Path", u"mytool"_s);
    program.desktop.installed = QStringList({u"kinfocenter"_s, u"mytool"_s});
    program.startWithDatabase();
    program.prompts.expectDialog("frmAbout", [](QDialog& form) {
        static_cast<frmAbout&>(form).StartSysInfo();
        form.accept();
    });
    program.choose("mnuHelpInfo");
    EXPECT_EQ(program.desktop.started, QStringList({u"/usr/bin/mytool"_s}));
}

TEST_P(HelpCommands, WithoutSystemInformationItIsToldInGerman) {
    // The program that is set is gone and no usual one is there; then one is there that does not start.
    storeSetting(u"SystemInformation", u"Path", u"/gone/tool"_s);
    program.startWithDatabase();
    const auto press = [](QDialog& form) { child<QPushButton>(form, "cmdSysInfo").click(); };
    program.prompts.expectDialog("frmAbout", [&](QDialog& form) {
        program.prompts.expect({.text = NoSystemInformation});
        press(form);
        program.desktop.installed = QStringList({u"hardinfo"_s});
        program.desktop.programsStart = false;
        program.prompts.expect({.text = NoSystemInformation});
        press(form);
        form.accept();
    });
    program.choose("mnuHelpInfo");
    EXPECT_TRUE(program.prompts.isFinished());
}

} // namespace
} // namespace lingomat
