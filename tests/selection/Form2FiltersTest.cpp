#include "SelectionBench.h"
#include "SpinButtons.h"

#include <QLineEdit>
#include <QSlider>
#include <QTest>
#include <QToolButton>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace lingomat;

namespace {

/// A file whose earliest date is the 5th of January 2001; today is the 1st of March 2002.
struct FilterBoxes : testing::Test {
    FilterBoxes() {
        bench.loadWith({{.main1 = u"a"_s, .fields = {{u"Eingabedatum"_s, u"20010405"_s}}},
                        {.main1 = u"b"_s, .fields = {{u"Eingabedatum"_s, u"20010105"_s}}}});
        bench.form.show();
    }

    SelectionBench bench;
    ScriptedPrompts& prompts = bench.context.prompts;

    QString date(const QString& stem) {
        const auto part = [&](const QString& name) {
            return child<QLineEdit>(bench.form, stem + name).text();
        };
        return part(u"Jahr"_s) + part(u"Monat"_s) + part(u"Tag"_s);
    }
    SpinLimits limits(const char* spin) { return child<SpinButtons>(bench.form, spin).limits(); }
    QSlider& slider(const char* name) { return child<QSlider>(bench.form, name); }
    void keys(const char* box, const char16_t* digits) {
        auto& edit = child<QLineEdit>(bench.form, box);
        edit.setFocus();
        edit.selectAll();
        QTest::keyClicks(&edit, QString::fromUtf16(digits));
    }
};

using Dates = FilterBoxes;
using Scores = FilterBoxes;

} // namespace

TEST_F(Dates, ShowTheWholeRangeOfTheDatabase) {
    for (const QString& stem : {u"txtEingabe"_s, u"txtAenderung"_s}) {
        EXPECT_EQ(date(stem + u"Von"_s), u"20010105"_s);
        EXPECT_EQ(date(stem + u"Bis"_s), u"20020301"_s);
    }
    EXPECT_FALSE(bench.form.EingabeEinsteller().Initialisierung);
    EXPECT_EQ(bench.form.AenderungEinsteller().MinDatum, u"20010105"_s);
}

TEST_F(Dates, ArrowsHaveTheLimitsOfTheirKind) {
    EXPECT_EQ(limits("UpDown1"), (SpinLimits{1, 31})); // January
    EXPECT_EQ(limits("UpDown2"), (SpinLimits{1, 12}));
    EXPECT_EQ(limits("UpDown3"), (SpinLimits{1990, 2050}));
    EXPECT_EQ(limits("UpDown4"), (SpinLimits{1, 31})); // March
    EXPECT_EQ(limits("UpDown10"), (SpinLimits{1, 31}));
    EXPECT_EQ(limits("UpDown12"), (SpinLimits{1990, 2050}));
}

TEST_F(Dates, MonthSetsTheHighestDayOfItsSide) {
    bench.type("txtEingabeVonMonat", u"02"_s);
    EXPECT_EQ(limits("UpDown1"), (SpinLimits{1, 29}));
    bench.type("txtEingabeVonMonat", u"04"_s);
    EXPECT_EQ(limits("UpDown1"), (SpinLimits{1, 30}));
    EXPECT_EQ(limits("UpDown4"), (SpinLimits{1, 31})) << "the other side";
    EXPECT_EQ(limits("UpDown7"), (SpinLimits{1, 31})) << "the other date";
}

TEST_F(Dates, FromMonthThatGaveWaySetsTheHighestDayToo) {
    bench.type("txtEingabeVonMonat", u"12"_s);
    bench.type("txtEingabeBisMonat", u"02"_s);
    bench.type("txtEingabeBisJahr", u"2001"_s);
    EXPECT_EQ(date(u"txtEingabeVon"_s), u"20010201"_s);
    EXPECT_EQ(limits("UpDown1"), (SpinLimits{1, 29}));
}

TEST_F(Dates, BoxTakesTheThirtyFirstOfAprilButTheArrowsDoNot) {
    bench.type("txtEingabeVonMonat", u"04"_s);
    bench.type("txtEingabeVonTag", u"31"_s);
    EXPECT_EQ(date(u"txtEingabeVon"_s), u"20010431"_s);
    child<QToolButton>(bench.form, "UpDown1_Up").click();
    EXPECT_EQ(date(u"txtEingabeVon"_s), u"20010430"_s);
}

TEST_F(Dates, ArrowsStepAndPad) {
    child<QToolButton>(bench.form, "UpDown1_Up").click();
    EXPECT_EQ(bench.text("txtEingabeVonTag"), u"06"_s);
    auto& box = child<QLineEdit>(bench.form, "txtAenderungVonTag");
    QTest::keyClick(&box, Qt::Key_Up);
    QTest::keyClick(&box, Qt::Key_Up);
    QTest::keyClick(&box, Qt::Key_Down);
    EXPECT_EQ(bench.text("txtAenderungVonTag"), u"06"_s);
    EXPECT_TRUE(bench.form.AuswahlGeaendert);
}

TEST_F(Dates, AreCutToTheRangeSilently) {
    bench.type("txtEingabeVonJahr", u"1999"_s);
    EXPECT_EQ(date(u"txtEingabeVon"_s), u"20010105"_s);
    bench.type("txtAenderungBisJahr", u"2051"_s);
    EXPECT_EQ(date(u"txtAenderungBis"_s), u"20020301"_s);
    EXPECT_EQ(prompts.beeps(), 0);
}

TEST_F(Dates, FromDateIsPulledDownToTheToDate) {
    bench.type("txtEingabeVonJahr", u"2002"_s);
    bench.type("txtEingabeVonMonat", u"03"_s);
    EXPECT_EQ(date(u"txtEingabeVon"_s), u"20020301"_s);
    EXPECT_EQ(date(u"txtEingabeBis"_s), u"20020301"_s);
}

TEST_F(Dates, EmptyBoxBecomesASingleZero) {
    bench.type("txtEingabeVonMonat", u"02"_s); // no lowest day any more
    bench.type("txtEingabeVonTag", QString());
    EXPECT_EQ(bench.text("txtEingabeVonTag"), u"0"_s);
}

TEST_F(Dates, CanBeTypedDigitByDigit) {
    keys("txtEingabeVonMonat", u"12");
    EXPECT_EQ(bench.text("txtEingabeVonMonat"), u"12"_s);
    keys("txtEingabeVonTag", u"24");
    EXPECT_EQ(date(u"txtEingabeVon"_s), u"20011224"_s);
    keys("txtEingabeVonJahr", u"2002"); // December 2002 is behind today
    EXPECT_EQ(date(u"txtEingabeVon"_s), u"20020301"_s);
    keys("txtEingabeVonJahr", u"2001");
    EXPECT_EQ(date(u"txtEingabeVon"_s), u"20010301"_s);
}

TEST_F(Dates, ClearAllShowsTheWholeRangeAgain) {
    bench.type("txtEingabeVonJahr", u"2002"_s);
    bench.type("txtAenderungBisJahr", u"2001"_s);
    bench.click("Command2");
    EXPECT_EQ(date(u"txtEingabeVon"_s), u"20010105"_s);
    EXPECT_EQ(date(u"txtAenderungBis"_s), u"20020301"_s);
}

TEST_F(Dates, BoundsAreReadAnewForAnotherDatabase) {
    bench.add({.main1 = u"c"_s, .fields = {{u"Eingabedatum"_s, u"19951224"_s}}});
    bench.selection().Requery();
    bench.form.initialisiere();
    EXPECT_EQ(date(u"txtEingabeVon"_s), u"19951224"_s);
    EXPECT_EQ(date(u"txtAenderungVon"_s), u"19951224"_s);
    EXPECT_EQ(bench.statusText(), u"0 entries selected"_s);
}

TEST(DatesOfTheFuture, StandInTheBoxesAndLeaveTheFilterUnused) {
    SelectionBench bench;
    bench.loadWith({{.main1 = u"a"_s, .fields = {{u"Eingabedatum"_s, u"20300615"_s}}}});
    EXPECT_EQ(bench.text("txtEingabeVonTag") + bench.text("txtEingabeVonMonat") +
                  bench.text("txtEingabeVonJahr"),
              u"15062030"_s);
    EXPECT_EQ(bench.text("txtEingabeBisJahr"), u"2002"_s);
    bench.run();
    EXPECT_EQ(bench.listed(), QStringList{u"a"_s});
}

TEST(DatesWithoutADatabase, StayAsTheyAre) {
    SelectionBench bench;
    bench.load();
    EXPECT_EQ(bench.text("txtEingabeVonTag"), QString());
    bench.type("txtEingabeVonTag", u"5"_s);
    EXPECT_EQ(bench.text("txtEingabeVonTag"), u"5"_s);
    bench.click("Command2");
    EXPECT_EQ(bench.text("txtEingabeVonTag"), u"5"_s);
}

TEST_F(Scores, SliderFollowsTheText) {
    bench.type("MinScore", u"3"_s);
    EXPECT_EQ(slider("MinScoreSlider").value(), 3);
    bench.type("MaxScore", u"4"_s);
    EXPECT_EQ(slider("MaxScoreSlider").value(), 4);
    EXPECT_EQ(prompts.beeps(), 0);
}

TEST_F(Scores, TextFollowsTheSlider) {
    slider("MaxScoreSlider").setValue(5);
    slider("MinScoreSlider").setValue(2);
    EXPECT_EQ(bench.text("MaxScore"), u"5"_s);
    EXPECT_EQ(bench.text("MinScore"), u"2"_s);
    EXPECT_TRUE(bench.form.CheckScoreValues(u"MinSlider"_s));
    EXPECT_FALSE(bench.form.CheckScoreValues(u"MinText"_s));
}

TEST_F(Scores, NumberOutsideTheRangeIsRefusedWithAMessage) {
    bench.type("MinScore", u"3"_s);
    for (const char16_t* text : {u"7", u"0", u"12", u"x", u"'", u"😀"}) {
        prompts.expectExclamation(u"The value must lie between 1 and 6!");
        bench.form.AuswahlGeaendert = false;
        bench.type("MinScore", QString::fromUtf16(text));
        EXPECT_EQ(bench.text("MinScore"), u"3"_s);
        EXPECT_TRUE(bench.form.AuswahlGeaendert);
        prompts.verify();
    }
}

TEST(ScoresInGerman, AreRefusedInGerman) {
    SelectionBench bench(u"De"_s);
    bench.loadWith({});
    bench.context.prompts.expectExclamation(u"Der Wert muß zwischen 1 und 6 liegen!");
    bench.type("MaxScore", u"9"_s);
    EXPECT_EQ(bench.text("MaxScore"), u"6"_s);
}

TEST_F(Scores, TextThatCrossesTheOtherGoesBackToItsSlider) {
    bench.type("MaxScore", u"4"_s);
    bench.type("MinScore", u"5"_s);
    EXPECT_EQ(bench.text("MinScore"), u"1"_s);
    EXPECT_EQ(prompts.beeps(), 1);
    bench.type("MinScore", u"3"_s);
    bench.type("MaxScore", u"2"_s);
    EXPECT_EQ(bench.text("MaxScore"), u"4"_s);
    EXPECT_EQ(prompts.beeps(), 2);
}

TEST_F(Scores, SliderThatCrossesTheOtherSpringsBackWithABeep) {
    bench.type("MinScore", u"3"_s);
    slider("MaxScoreSlider").setValue(2);
    EXPECT_EQ(slider("MaxScoreSlider").value(), 3);
    EXPECT_EQ(bench.text("MaxScore"), u"3"_s);
    EXPECT_EQ(prompts.beeps(), 1);
    slider("MaxScoreSlider").setValue(4);
    slider("MinScoreSlider").setValue(6);
    EXPECT_EQ(slider("MinScoreSlider").value(), 4);
    EXPECT_EQ(bench.text("MinScore"), u"4"_s);
    EXPECT_EQ(prompts.beeps(), 2);
}

TEST_F(Scores, DraggingSpringsBackToo) {
    bench.selectTab(4);
    bench.type("MinScore", u"3"_s);
    QSlider& handle = slider("MaxScoreSlider");
    handle.setSliderDown(true);
    handle.setSliderPosition(2);
    EXPECT_EQ(handle.value(), 3);
    EXPECT_EQ(bench.text("MaxScore"), u"3"_s);
    handle.setSliderDown(false);
    EXPECT_EQ(prompts.beeps(), 1);
}

TEST_F(Scores, ClearAllShowsOneToSix) {
    bench.type("MaxScore", u"3"_s);
    bench.type("MinScore", u"3"_s);
    bench.click("Command2");
    EXPECT_EQ(bench.text("MinScore"), u"1"_s);
    EXPECT_EQ(bench.text("MaxScore"), u"6"_s);
    EXPECT_EQ(slider("MinScoreSlider").value(), 1);
    EXPECT_EQ(slider("MaxScoreSlider").value(), 6);
    EXPECT_EQ(prompts.beeps(), 0);
}

TEST_F(FilterBoxes, ClearAllEmptiesEveryTextBox) {
    const QList<const char*> boxes{"Lang1Prefix",  "Lang1Main", "Lang1Suffix", "Lang1Kommentar",
                                   "Lang2Prefix",  "Lang2Main", "Lang2Suffix", "Lang2Kommentar",
                                   "Beispielsatz", "Zusatzinfo"};
    for (const char* box : boxes)
        bench.type(box, u"x"_s);
    bench.form.AuswahlGeaendert = false;
    bench.click("Command2");
    for (const char* box : boxes)
        EXPECT_EQ(bench.text(box), QString()) << box;
    EXPECT_TRUE(bench.form.AuswahlGeaendert);
}

TEST_F(FilterBoxes, ClosingKeepsThem) {
    bench.type("Lang1Main", u"Haus"_s);
    bench.click("Command3");
    EXPECT_FALSE(bench.form.isVisible());
    bench.form.show();
    bench.form.close();
    EXPECT_FALSE(bench.form.isVisible());
    EXPECT_EQ(bench.text("Lang1Main"), u"Haus"_s);
}

TEST_F(FilterBoxes, FocusIsNoted) {
    bench.form.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&bench.form));
    bench.selectTab(9);
    for (const char* name : {"Beispielsatz", "Zusatzinfo", "txtEingabeVonTag", "txtAenderungBisJahr"}) {
        child<QLineEdit>(bench.form, name).setFocus();
        EXPECT_EQ(bench.context.state.ActiveFieldName, QString::fromUtf8(name));
    }
    bench.selectTab(7);
    child<QLineEdit>(bench.form, "Lang2Kommentar").setFocus();
    EXPECT_EQ(bench.context.state.ActiveFieldName, u"Lang2Kommentar"_s);
    bench.selectTab(4);
    child<QLineEdit>(bench.form, "MaxScore").setFocus();
    child<QSlider>(bench.form, "MaxScoreSlider").setFocus();
    EXPECT_EQ(bench.context.state.ActiveFieldName, u"MaxScore"_s) << "no text box";
}
