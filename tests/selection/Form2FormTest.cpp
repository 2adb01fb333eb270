#include "SelectionBench.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSlider>
#include <QStatusTipEvent>
#include <QTabBar>
#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace lingomat;

namespace {

struct Form : testing::TestWithParam<const char16_t*> {
    Form() : bench(QString::fromUtf16(GetParam())) {
        bench.loadWith({{.main1 = u"x"_s}});
        bench.form.show();
    }

    SelectionBench bench;
    [[nodiscard]] bool english() const { return GetParam() == std::u16string_view(u"En"); }
};

/// What a tab can be reached by with Alt, on the page that shows.
QStringList mnemonics(const Form2& form) {
    QStringList found;
    const auto collect = [&](const QString& text) {
        const QKeySequence key = QKeySequence::mnemonic(text);
        if (!key.isEmpty())
            found.append(key.toString());
    };
    for (const QAction* menu : form.findChild<QMenuBar*>()->actions())
        collect(menu->text());
    for (const auto* button : form.findChildren<QAbstractButton*>()) {
        if (button->isVisible())
            collect(button->text());
    }
    for (const auto* label : form.findChildren<QLabel*>()) {
        if (label->isVisible() && label->buddy())
            collect(label->text());
    }
    found.sort();
    return found;
}

bool isOwnControl(const QWidget& widget) {
    return widget.focusPolicy() != Qt::NoFocus && !widget.objectName().isEmpty() &&
           !widget.objectName().startsWith("qt_"_L1) && !qobject_cast<const QScrollArea*>(&widget) &&
           !qobject_cast<const QMenuBar*>(&widget);
}

} // namespace

INSTANTIATE_TEST_SUITE_P(InBothLanguages, Form, testing::Values(u"En", u"De"),
                         [](const auto& language) { return language.index == 0 ? "English" : "German"; });

TEST_P(Form, BearsItsNamesAndTitle) {
    EXPECT_EQ(bench.form.objectName(), u"Form2"_s);
    EXPECT_EQ(bench.form.windowTitle(), english() ? u"Selection"_s : u"Auswahl"_s);
    for (const char* name : {"Command1",
                             "Command2",
                             "Command3",
                             "Command4",
                             "cmdAdd",
                             "cmdRemove",
                             "cmdAddAll",
                             "cmdRemoveAll",
                             "tbsOptions",
                             "TabStrip1",
                             "frmListboxes",
                             "StatusBar1",
                             "MinScore",
                             "MaxScore",
                             "MinScoreSlider",
                             "MaxScoreSlider",
                             "Lang1Check",
                             "Lang2Check",
                             "chkRefOption1",
                             "chkRefOption2",
                             "WortartBox",
                             "BereichBox",
                             "QuelleBox",
                             "Beispielsatz",
                             "Zusatzinfo",
                             "UpDown1",
                             "UpDown2",
                             "UpDown3",
                             "UpDown4",
                             "UpDown5",
                             "UpDown6",
                             "UpDown7",
                             "UpDown8",
                             "UpDown9",
                             "UpDown10",
                             "UpDown11",
                             "UpDown12",
                             "cmbName",
                             "cmdSpeichern",
                             "cmdLoeschen",
                             "cmdFont",
                             "mnAuswahlNeu",
                             "mnAuswahlOpen",
                             "mnAuswahlSpeichern",
                             "mnAuswahlDelete",
                             "mnSuchen",
                             "mnSelectAll",
                             "mnClose",
                             "lstReferenzenLinks",
                             "lstReferenzenRechts"})
        EXPECT_TRUE(hasChild(bench.form, name)) << name;
    const QTabBar& tabs = child<QTabBar>(bench.form, "tbsOptions");
    for (int index = 0; index < tabs.count(); ++index)
        EXPECT_TRUE(tabs.tabData(index).toString().startsWith("tab"_L1)) << index;
}

TEST_P(Form, AsksForTheSpecialCharacters) {
    QWidget* asker = nullptr;
    QObject::connect(&bench.form, &Form2::specialCharactersRequested, &bench.form,
                     [&asker](QWidget& widget) { asker = &widget; });
    bench.click("cmdFont");
    EXPECT_EQ(asker, &bench.form);
}

TEST_P(Form, ButtonsHaveTheirToolTips) {
    const auto tip = [this](const char* name) { return child<QPushButton>(bench.form, name).toolTip(); };
    if (english()) {
        EXPECT_EQ(tip("Command1"),
                  u"Starts the query as defined by the selection parameters and closes this window"_s);
        EXPECT_EQ(tip("Command4"), u"Starts the query as defined by the selection parameters"_s);
        EXPECT_EQ(tip("Command2"), u"Clears all settings and sets default values"_s);
        EXPECT_EQ(tip("cmdRemove"), u"Remove entry"_s);
        EXPECT_EQ(tip("cmdRemoveAll"), u"Remove all entries"_s);
    } else {
        for (const char* name : {"Command1", "Command2", "Command4", "cmdRemove", "cmdRemoveAll"})
            EXPECT_FALSE(tip(name).isEmpty()) << name;
    }
    for (const char* name : {"Command3", "cmdAdd", "cmdAddAll"})
        EXPECT_EQ(tip(name), QString()) << name;
}

TEST_P(Form, ReferenceOptionsSayWhatTheyWereMeantFor) {
    const QString first = child<QCheckBox>(bench.form, "chkRefOption1").text();
    const QString second = child<QCheckBox>(bench.form, "chkRefOption2").text();
    if (english()) {
        EXPECT_FALSE(first.contains(u"Eintr"_s) || second.contains(u"Eintr"_s));
    } else {
        EXPECT_EQ(first, u"Suche Einträge mit angegebenen Referenzen"_s);
        EXPECT_EQ(second, u"Referenzierte Einträge suchen"_s);
    }
}

TEST_P(Form, EveryTextIsThere) {
    for (const auto* button : bench.form.findChildren<QPushButton*>())
        EXPECT_FALSE(button->text().isEmpty()) << button->objectName().toStdString();
    for (const auto* label : bench.form.findChildren<QLabel*>())
        EXPECT_FALSE(label->text().isEmpty()) << label->objectName().toStdString();
    for (const auto* group : bench.form.findChildren<QGroupBox*>())
        EXPECT_FALSE(group->title().isEmpty()) << group->objectName().toStdString();
    for (const auto* menu : bench.form.findChildren<QMenu*>()) {
        for (const QAction* action : menu->actions())
            EXPECT_TRUE(action->isSeparator() || !action->text().isEmpty())
                << action->objectName().toStdString();
    }
}

TEST_P(Form, EveryControlHasANameForScreenReaders) {
    for (const auto* widget : bench.form.findChildren<QWidget*>()) {
        if (!isOwnControl(*widget))
            continue;
        const auto* button = qobject_cast<const QAbstractButton*>(widget);
        const bool named = !widget->accessibleName().isEmpty() || (button && !button->text().isEmpty());
        EXPECT_TRUE(named) << widget->objectName().toStdString() << ", a "
                           << widget->metaObject()->className();
    }
}

TEST_P(Form, LanguageGatesBearTheNamesOfTheLanguages) {
    EXPECT_EQ(child<QCheckBox>(bench.form, "Lang1Check").text(), u"German"_s);
    bench.context.state.Lang2Name = u"R&B"_s;
    bench.form.initialisiere();
    EXPECT_EQ(child<QCheckBox>(bench.form, "Lang2Check").text(), u"R&&B"_s);
}

TEST_P(Form, EveryMnemonicStandsForOneControl) {
    for (int number = 1; number <= 9; ++number) {
        bench.selectTab(number);
        QStringList all = mnemonics(bench.form);
        const auto count = all.size();
        EXPECT_GE(count, 5) << "tab " << number;
        EXPECT_EQ(all.removeDuplicates(), 0) << "tab " << number << ": " << all.join(u' ').toStdString();
    }
    for (const auto* menu : bench.form.findChildren<QMenu*>()) {
        QStringList keys;
        for (const QAction* action : menu->actions()) {
            if (!action->isSeparator())
                keys.append(QKeySequence::mnemonic(action->text()).toString());
        }
        EXPECT_FALSE(keys.contains(QString())) << menu->objectName().toStdString();
        EXPECT_EQ(keys.removeDuplicates(), 0) << menu->objectName().toStdString();
    }
}

TEST_P(Form, FitsTheSmallestScreenOnEveryTab) {
    EXPECT_LE(bench.form.width(), 800);
    EXPECT_LE(bench.form.height(), 600);
    const auto& scroller = child<QScrollArea>(bench.form, "pageScroller");
    const QTabBar& tabs = child<QTabBar>(bench.form, "tbsOptions");
    for (int number = 1; number <= 9; ++number) {
        bench.selectTab(number);
        bench.form.grab();
        EXPECT_EQ(scroller.horizontalScrollBar()->maximum(), 0) << "tab " << number;
        EXPECT_EQ(scroller.verticalScrollBar()->maximum(), 0) << "tab " << number;
        EXPECT_TRUE(tabs.rect().contains(tabs.tabRect(number - 1))) << "tab " << number;
    }
}

TEST_P(Form, IsNotCutOnTheSmallestScreenInALargeFont) {
    const QFont before = QApplication::font();
    QFont large = before;
    large.setPointSizeF(before.pointSizeF() * 1.5);
    QApplication::setFont(large);
    {
        SelectionBench enlarged(QString::fromUtf16(GetParam()));
        enlarged.loadWith({{.main1 = u"x"_s}});
        enlarged.form.show();
        EXPECT_LE(enlarged.form.width(), 800);
        EXPECT_LE(enlarged.form.height(), 600);
        const auto& scroller = child<QScrollArea>(enlarged.form, "pageScroller");
        for (int number = 1; number <= 9; ++number) {
            enlarged.selectTab(number);
            enlarged.form.grab();
            EXPECT_EQ(scroller.horizontalScrollBar()->maximum(), 0) << "tab " << number;
        }
    }
    QApplication::setFont(before);
}

TEST_P(Form, EscapeClosesAndEnterRunsAndCloses) {
    bench.selectTab(7);
    auto& box = child<QLineEdit>(bench.form, "Lang1Main");
    QTest::keyClick(&box, Qt::Key_Escape);
    EXPECT_FALSE(bench.form.isVisible());
    EXPECT_EQ(bench.listed(), QStringList{});
    bench.form.show();
    QTest::keyClick(&box, Qt::Key_Return);
    EXPECT_FALSE(bench.form.isVisible());
    EXPECT_EQ(bench.listed(), QStringList{u"x"_s});
}

TEST_P(Form, EnterOnAButtonPressesThatButton) {
    bench.type("Lang1Main", u"y"_s);
    QTest::keyClick(&child<QPushButton>(bench.form, "Command2"), Qt::Key_Return);
    EXPECT_EQ(bench.text("Lang1Main"), QString());
    EXPECT_TRUE(bench.form.isVisible());
}

TEST_P(Form, TabKeyReachesEveryControlOfThePage) {
    bench.form.activateWindow();
    for (const char* button : {"cmdSpeichern", "cmdLoeschen"}) // as with a lesson
        child<QPushButton>(bench.form, button).setEnabled(true);
    for (int number = 1; number <= 9; ++number) {
        bench.selectTab(number);
        QSet<QString> wanted;
        for (const auto* widget : bench.form.findChildren<QWidget*>()) {
            if (isOwnControl(*widget) && widget->isVisible() && (widget->focusPolicy() & Qt::TabFocus))
                wanted.insert(widget->objectName());
        }
        QSet<QString> reached;
        child<QWidget>(bench.form, "TabStrip1").setFocus();
        for (int step = 0; step < 60; ++step) {
            reached.insert(bench.form.focusWidget()->objectName());
            QTest::keyClick(bench.form.focusWidget(), Qt::Key_Tab);
        }
        EXPECT_TRUE((wanted - reached).isEmpty())
            << "tab " << number << ": " << QStringList((wanted - reached).values()).join(u' ').toStdString();
    }
}

TEST_P(Form, TabKeyWalksFromTheTabsThroughThePageToTheButtons) {
    bench.form.activateWindow();
    const QStringList buttons{u"Command2"_s, u"cmdFont"_s, u"Command1"_s, u"Command4"_s, u"Command3"_s};
    const QList<std::pair<int, QStringList>> pages{
        {1,
         {u"lstQuelleLinks"_s, u"cmdAdd"_s, u"cmdRemove"_s, u"cmdAddAll"_s, u"cmdRemoveAll"_s,
          u"lstQuelleRechts"_s}},
        {4, {u"MinScore"_s, u"MinScoreSlider"_s, u"MaxScore"_s, u"MaxScoreSlider"_s}},
        {7,
         {u"Lang1Check"_s, u"Lang1Prefix"_s, u"Lang1Main"_s, u"Lang1Suffix"_s, u"Lang1Kommentar"_s,
          u"Lang2Check"_s, u"Lang2Prefix"_s, u"Lang2Main"_s, u"Lang2Suffix"_s, u"Lang2Kommentar"_s}},
        {9,
         {u"txtEingabeVonTag"_s, u"txtEingabeVonMonat"_s, u"txtEingabeVonJahr"_s, u"txtEingabeBisTag"_s,
          u"txtEingabeBisMonat"_s, u"txtEingabeBisJahr"_s, u"txtAenderungVonTag"_s, u"txtAenderungVonMonat"_s,
          u"txtAenderungVonJahr"_s, u"txtAenderungBisTag"_s, u"txtAenderungBisMonat"_s,
          u"txtAenderungBisJahr"_s, u"Beispielsatz"_s, u"Zusatzinfo"_s}},
    };
    for (const auto& [number, controls] : pages) {
        bench.selectTab(number);
        child<QWidget>(bench.form, "tbsOptions").setFocus();
        QStringList walked;
        for (qsizetype step = 0; step < controls.size() + buttons.size(); ++step) {
            QTest::keyClick(bench.form.focusWidget(), Qt::Key_Tab);
            walked.append(bench.form.focusWidget()->objectName());
        }
        EXPECT_EQ(walked, controls + buttons) << "tab " << number;
    }
}

TEST_P(Form, WalkingThroughAMenuLeavesTheCountInTheStatusBar) {
    const QString before = bench.statusText();
    EXPECT_FALSE(before.isEmpty());
    QStatusTipEvent tip{QString()};
    QApplication::sendEvent(&bench.form, &tip);
    EXPECT_EQ(bench.statusText(), before);
}
