#include "SelectionBench.h"

#include <QGroupBox>
#include <QLineEdit>
#include <QTabBar>
#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace lingomat;

namespace {

const QStringList german{u"Quelle"_s,
                         u"Bereich"_s,
                         u"Wortart"_s,
                         u"Fehlerscore"_s,
                         u"Grammatikalische Attribute"_s,
                         u"Funktionale Attribute"_s,
                         u"Wortbestandteile"_s,
                         u"Referenzen"_s,
                         u"Sonstiges"_s};
const QStringList english{u"Source"_s,
                          u"Area"_s,
                          u"Part of Speech"_s,
                          u"Error Score"_s,
                          u"Grammar Attributes"_s,
                          u"Functional Attributes"_s,
                          u"Wordparts"_s,
                          u"References"_s,
                          u"Miscellaneous"_s};

struct Tabs : testing::Test {
    explicit Tabs(const QString& language = u"En"_s) : bench(language) {
        bench.loadWith({{.main1 = u"x"_s}});
        bench.form.show();
    }

    SelectionBench bench;
    QTabBar& options = child<QTabBar>(bench.form, "tbsOptions");
    QTabBar& sets = child<QTabBar>(bench.form, "TabStrip1");

    QStringList captions() const {
        QStringList texts;
        for (int index = 0; index < options.count(); ++index)
            texts.append(options.tabText(index));
        return texts;
    }

    /// Names of the boxes, lists and sliders that can be seen.
    QStringList visibleControls() const {
        QStringList names;
        for (const QWidget* widget : bench.form.findChildren<QWidget*>()) {
            const bool counts = qobject_cast<const QLineEdit*>(widget) ||
                                qobject_cast<const QListWidget*>(widget) || widget->inherits("QSlider") ||
                                widget->inherits("QCheckBox");
            const bool isOwn =
                !widget->objectName().startsWith("qt_"_L1) && !widget->parent()->inherits("QComboBox");
            if (counts && isOwn && widget->isVisible())
                names.append(widget->objectName());
        }
        names.sort();
        return names;
    }
};

struct GermanTabs : Tabs {
    GermanTabs() : Tabs(u"De"_s) {}
};

} // namespace

TEST_F(Tabs, AllNineShowAfterLoading) {
    EXPECT_EQ(captions(), english);
    EXPECT_EQ(sets.currentIndex(), 1);
    EXPECT_EQ(sets.count(), 2);
    EXPECT_EQ(options.currentIndex(), 0);
}

TEST_F(GermanTabs, AreGermanInGerman) {
    EXPECT_EQ(captions(), german);
}

TEST_F(Tabs, StandardSetHasFour) {
    sets.setCurrentIndex(0);
    EXPECT_EQ(captions(), english.first(4));
}

TEST_F(Tabs, TheFiveThatComeBackAreGermanInEnglishToo) {
    sets.setCurrentIndex(0);
    sets.setCurrentIndex(1);
    EXPECT_EQ(captions(), english.first(4) + german.last(5));
    bench.selectTab(5);
    EXPECT_EQ(child<QGroupBox>(bench.form, "frmListboxes").title(), u"Grammatikalische Attribute"_s);
}

TEST_F(Tabs, StandardSetKeepsTheSelectedTabUpToTheFourth) {
    bench.selectTab(4);
    bench.form.SetTabToStandard();
    EXPECT_EQ(options.currentIndex(), 3);
    EXPECT_TRUE(child<QWidget>(bench.form, "MinScore").isVisible());
}

TEST_F(Tabs, StandardSetGoesToTheFirstTabFromAnyOther) {
    for (const int number : {5, 9}) {
        bench.form.SetTabToAdvanced();
        bench.selectTab(number);
        bench.form.SetTabToStandard();
        EXPECT_EQ(options.currentIndex(), 0) << number;
        EXPECT_TRUE(bench.listBox(u"lstQuelleLinks"_s).isVisible());
        EXPECT_FALSE(child<QWidget>(bench.form, "Zusatzinfo").isVisible());
    }
}

TEST_F(Tabs, ChangingToTheSetThatShowsChangesNothing) {
    bench.selectTab(6);
    bench.form.SetTabToAdvanced();
    EXPECT_EQ(captions(), english);
    EXPECT_EQ(options.currentIndex(), 5);
    bench.form.SetTabToStandard();
    bench.selectTab(3);
    bench.form.SetTabToStandard();
    EXPECT_EQ(captions(), english.first(4));
    EXPECT_EQ(options.currentIndex(), 2);
}

TEST_F(Tabs, EachShowsItsPageAndNoOther) {
    const auto pair = [](const QString& kind) {
        return QStringList{u"lst"_s + kind + u"Links"_s, u"lst"_s + kind + u"Rechts"_s};
    };
    const QList<QStringList> pages{
        pair(u"Quelle"_s),
        pair(u"Bereich"_s),
        pair(u"Wortart"_s),
        {u"MaxScore"_s, u"MaxScoreSlider"_s, u"MinScore"_s, u"MinScoreSlider"_s},
        pair(u"Grammatikalisch"_s),
        pair(u"Funktional"_s),
        {u"Lang1Check"_s, u"Lang1Kommentar"_s, u"Lang1Main"_s, u"Lang1Prefix"_s, u"Lang1Suffix"_s,
         u"Lang2Check"_s, u"Lang2Kommentar"_s, u"Lang2Main"_s, u"Lang2Prefix"_s, u"Lang2Suffix"_s},
        QStringList{u"chkRefOption1"_s, u"chkRefOption2"_s} + pair(u"Referenzen"_s),
        {u"Beispielsatz"_s, u"Zusatzinfo"_s, u"txtAenderungBisJahr"_s, u"txtAenderungBisMonat"_s,
         u"txtAenderungBisTag"_s, u"txtAenderungVonJahr"_s, u"txtAenderungVonMonat"_s,
         u"txtAenderungVonTag"_s, u"txtEingabeBisJahr"_s, u"txtEingabeBisMonat"_s, u"txtEingabeBisTag"_s,
         u"txtEingabeVonJahr"_s, u"txtEingabeVonMonat"_s, u"txtEingabeVonTag"_s},
    };
    for (const bool backwards : {false, true}) {
        for (int i = 0; i < pages.size(); ++i) {
            const auto index = backwards ? pages.size() - 1 - i : i;
            bench.selectTab(static_cast<int>(index) + 1);
            EXPECT_EQ(visibleControls(), pages[index]) << "tab " << index + 1;
        }
    }
}

TEST_F(Tabs, FrameOfTheListsBearsTheCaptionOfTheTab) {
    for (const int number : {1, 2, 3, 5, 6, 8}) {
        bench.selectTab(number);
        EXPECT_EQ(child<QGroupBox>(bench.form, "frmListboxes").title(), english[number - 1]);
    }
}

TEST_F(Tabs, AClickSelects) {
    QTest::mouseClick(&options, Qt::LeftButton, {}, options.tabRect(2).center());
    EXPECT_EQ(options.currentIndex(), 2);
    EXPECT_TRUE(bench.listBox(u"lstWortartLinks"_s).isVisible());
    QTest::mouseClick(&sets, Qt::LeftButton, {}, sets.tabRect(0).center());
    EXPECT_EQ(options.count(), 4);
}

TEST_F(Tabs, EditMenuSelectsThemByNumber) {
    const QList<std::pair<const char*, int>> entries{
        {"mnQuelle", 1},          {"mnBereich", 2},      {"mnWortart", 3},     {"mnFehlerscore", 4},
        {"mnGrammatikalisch", 5}, {"mnFunktional", 6},   {"mnRelationen", 8},  {"mnWortbestandteile", 7},
        {"mnBeispielsatz", 9},    {"mnEingabedatum", 9}, {"mnChangeDatum", 9}, {"mnZusatzinfo", 9},
    };
    for (const auto& [entry, number] : entries) {
        bench.selectTab(number == 1 ? 2 : 1);
        bench.trigger(entry);
        EXPECT_EQ(options.currentIndex() + 1, number) << entry;
    }
}

TEST_F(Tabs, EditMenuPutsTheFocusOnTheTextBoxes) {
    bench.form.activateWindow();
    bench.trigger("mnZusatzinfo");
    EXPECT_EQ(bench.form.focusWidget(), &child<QWidget>(bench.form, "Zusatzinfo"));
    bench.trigger("mnBeispielsatz");
    EXPECT_EQ(bench.form.focusWidget(), &child<QWidget>(bench.form, "Beispielsatz"));
}

TEST_F(Tabs, EditMenuBringsTheAdvancedSetForATabThatIsNotThere) {
    sets.setCurrentIndex(0);
    bench.trigger("mnRelationen");
    EXPECT_EQ(sets.currentIndex(), 1);
    EXPECT_EQ(options.currentIndex(), 7);
    EXPECT_TRUE(bench.listBox(u"lstReferenzenLinks"_s).isVisible());
}

TEST_F(Tabs, ControlTabWalksRoundFromAnywhere) {
    bench.form.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&bench.form));
    for (const char* focus : {"Command3", "tbsOptions", "cmdAdd"}) {
        auto& widget = child<QWidget>(bench.form, focus);
        for (const int number : {1, 2, 9}) {
            bench.selectTab(number);
            widget.setFocus();
            QTest::keyClick(&widget, Qt::Key_Tab, Qt::ControlModifier);
            EXPECT_EQ(options.currentIndex() + 1, number % 9 + 1) << focus;
        }
    }
    sets.setCurrentIndex(0);
    bench.selectTab(4);
    QTest::keyClick(&bench.form, Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_EQ(options.currentIndex(), 0) << "from the last tab of the standard set";
}

TEST_F(Tabs, ArrowKeysWalkAlongTheSideBar) {
    options.setFocus();
    QTest::keyClick(&options, Qt::Key_Down);
    QTest::keyClick(&options, Qt::Key_Down);
    EXPECT_EQ(options.currentIndex(), 2);
    QTest::keyClick(&options, Qt::Key_Up);
    EXPECT_EQ(options.currentIndex(), 1);
    bench.selectTab(1);
    QTest::keyClick(&options, Qt::Key_Up);
    EXPECT_EQ(options.currentIndex(), 0);
}

TEST_F(Tabs, PagesAndListsCanBeHiddenByThemselves) {
    bench.selectTab(8);
    bench.form.HideSelectionboxes();
    EXPECT_EQ(visibleControls(), QStringList{});
    bench.form.PositioniereListboxes(u"Wortart"_s);
    EXPECT_EQ(visibleControls(), (QStringList{u"lstWortartLinks"_s, u"lstWortartRechts"_s}));
    bench.form.PositioniereListboxes(u"Referenzen"_s);
    EXPECT_EQ(visibleControls().size(), 4);
    bench.form.HidePictureBoxes();
    EXPECT_EQ(visibleControls(), QStringList{});
    for (const char* page : {"frmListboxes", "picScore", "picWortbestandteile", "picEingabedatum",
                             "picAenderungsdatum", "picBeispielsatz", "picZusatzinfo"})
        EXPECT_TRUE(child<QWidget>(bench.form, page).isHidden()) << page;
}
