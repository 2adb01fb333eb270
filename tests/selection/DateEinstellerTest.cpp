#include "SelectionBench.h"
#include "SpinButtons.h"
#include "clsDateEinsteller.h"

#include <QLineEdit>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace lingomat;

namespace {

/// A date setter with six boxes of its own.
struct DateSetter : testing::Test {
    SelectionBench bench;
    clsDateEinsteller setter{bench.context.state, bench.context.prompts, bench.context.forms.today};
    QLineEdit vonDay, vonMonth, vonYear, bisDay, bisMonth, bisYear;
    DateBoxes von{&vonDay, &vonMonth, &vonYear};
    DateBoxes bis{&bisDay, &bisMonth, &bisYear};

    /// The file's dates of entry; today is the 1st of March 2002.
    void open(const QStringList& dates) {
        bench.openDatabase();
        for (const QString& date : dates)
            bench.add({.main1 = u"x"_s, .fields = {{u"Eingabedatum"_s, date}}});
        bench.selection().Requery();
        setter.init();
    }

    void fill(const char16_t* from, const char16_t* to) {
        put(von, QString::fromUtf16(from));
        put(bis, QString::fromUtf16(to));
    }

    static void put(const DateBoxes& boxes, const QString& stored) {
        boxes.year->setText(stored.mid(0, 4));
        boxes.month->setText(stored.mid(4, 2));
        boxes.day->setText(stored.mid(6, 2));
    }

    static QString stored(const DateBoxes& boxes) {
        return boxes.year->text() + boxes.month->text() + boxes.day->text();
    }
};

} // namespace

TEST_F(DateSetter, EmptyDatabaseGivesTodayTwice) {
    open({});
    EXPECT_EQ(setter.MinDatum, u"20020301"_s);
    EXPECT_EQ(setter.MaxDatum, u"20020301"_s);
}

TEST_F(DateSetter, LowestDateIsTheEarliestDateOfEntry) {
    open({u"20010615"_s, u"20010203"_s, u"20011231"_s});
    EXPECT_EQ(setter.MinDatum, u"20010203"_s);
    EXPECT_EQ(setter.MaxDatum, u"20020301"_s);
    EXPECT_EQ(setter.DayMin(), u"03"_s);
    EXPECT_EQ(setter.MonthMin(), u"02"_s);
    EXPECT_EQ(setter.YearMin(), u"2001"_s);
    EXPECT_EQ(setter.DayMax(), u"01"_s);
    EXPECT_EQ(setter.MonthMax(), u"03"_s);
    EXPECT_EQ(setter.YearMax(), u"2002"_s);
}

TEST_F(DateSetter, EntryOfTheFutureLeavesTheUpperBoundAtToday) {
    open({u"20300101"_s});
    EXPECT_EQ(setter.MinDatum, u"20300101"_s);
    EXPECT_EQ(setter.MaxDatum, u"20020301"_s);
}

TEST_F(DateSetter, DateThatIsNullEndsTheSearchQuietly) {
    bench.openDatabase();
    bench.add({.main1 = u"a"_s, .fields = {{u"Eingabedatum"_s, u"20010615"_s}}});
    bench.add({.main1 = u"b"_s, .fields = {{u"Eingabedatum"_s, dao::Value()}}});
    bench.add({.main1 = u"c"_s, .fields = {{u"Eingabedatum"_s, u"20000101"_s}}});
    bench.selection().Requery();
    setter.init();
    EXPECT_EQ(setter.MinDatum, u"20010615"_s);
    EXPECT_EQ(setter.MaxDatum, u"20020301"_s);
}

TEST_F(DateSetter, WithoutADatabaseDoesNothing) {
    setter.init();
    EXPECT_FALSE(setter.hasData());
    fill(u"20990101", u"20000101");
    setter.Plausis(u"von"_s, von, bis);
    setter.HighestDatePlausi(von);
    setter.LowestDatePlausi(von);
    setter.SetInitialisierung(true);
    setter.initMin(u"0"_s);
    EXPECT_FALSE(setter.JahrVonBisPlausi(vonYear, bisYear));
    vonDay.setText(u"1"_s);
    EXPECT_EQ(setter.AddLeadingZero(vonDay), u"1"_s);
    EXPECT_EQ(stored(von), u"2099011"_s);
    EXPECT_FALSE(setter.Initialisierung);
    EXPECT_EQ(setter.MinDatum, QString());
    EXPECT_EQ(bench.context.prompts.beeps(), 0);
}

TEST_F(DateSetter, YearBeyondTheRangeIsCutToTheHighestWithBeeps) {
    open({u"20010615"_s});
    fill(u"20511231", u"20020301");
    setter.HighestDatePlausi(von);
    EXPECT_EQ(stored(von), u"20020301"_s);
    EXPECT_EQ(bench.context.prompts.beeps(), 3);
    setter.HighestDatePlausi(von);
    EXPECT_EQ(bench.context.prompts.beeps(), 3);
}

TEST_F(DateSetter, DateBelowTheRangeIsRaised) {
    open({u"20010615"_s});
    fill(u"19991231", u"20020301");
    setter.LowestDatePlausi(von);
    EXPECT_EQ(stored(von), u"20011231"_s);
    EXPECT_EQ(bench.context.prompts.beeps(), 1);
}

TEST_F(DateSetter, CorrectionsAreSilentWhileTheProgramFillsTheBoxes) {
    open({u"20010615"_s});
    fill(u"20511231", u"20020301");
    setter.SetInitialisierung(true);
    setter.HighestDatePlausi(von);
    vonYear.setText(u"2003"_s);
    EXPECT_TRUE(setter.JahrVonBisPlausi(vonYear, bisYear));
    EXPECT_EQ(bench.context.prompts.beeps(), 0);
}

TEST_F(DateSetter, FromGivesWayToTo) {
    open({u"20010615"_s});
    fill(u"20011231", u"20010801");
    EXPECT_TRUE(setter.JahrVonBisPlausi(vonYear, bisYear));
    EXPECT_EQ(bench.context.prompts.beeps(), 0);
    EXPECT_TRUE(setter.MonatVonBisPlausi(vonMonth, bisMonth));
    EXPECT_EQ(vonMonth.text(), u"08"_s);
    EXPECT_TRUE(setter.TagVonBisPlausi(vonDay, bisDay));
    EXPECT_EQ(vonDay.text(), u"01"_s);
    EXPECT_EQ(bench.context.prompts.beeps(), 2);
    vonDay.setText(u"00"_s);
    EXPECT_FALSE(setter.TagVonBisPlausi(vonDay, bisDay));
}

TEST_F(DateSetter, CheckPullsAFromDateDownYearFirst) {
    open({u"20000101"_s});
    fill(u"20021231", u"20010815");
    setter.Plausis(u"bis"_s, von, bis);
    EXPECT_EQ(stored(von), u"20010815"_s);
    EXPECT_EQ(stored(bis), u"20010815"_s);
    EXPECT_EQ(bench.context.prompts.beeps(), 0) << "corrections of the whole check are silent";
    EXPECT_FALSE(setter.Initialisierung);
}

TEST_F(DateSetter, DaysOfDifferentMonthsAreLeftAlone) {
    open({u"20000101"_s});
    fill(u"20010731", u"20010801");
    setter.Plausis(u"von"_s, von, bis);
    EXPECT_EQ(stored(von), u"20010731"_s);
    fill(u"20010820", u"20010801");
    setter.Plausis(u"von"_s, von, bis);
    EXPECT_EQ(stored(von), u"20010801"_s);
}

TEST_F(DateSetter, CheckKeepsTheChangedSideInTheRange) {
    open({u"20010615"_s});
    fill(u"20000101", u"20050101");
    setter.Plausis(u"von"_s, von, bis);
    EXPECT_EQ(stored(von), u"20010615"_s);
    EXPECT_EQ(stored(bis), u"20050101"_s) << "the other side was not changed";
    setter.Plausis(u"bis"_s, von, bis);
    EXPECT_EQ(stored(bis), u"20020101"_s);
}

TEST_F(DateSetter, CheckPadsDaysAndMonthsOfBothSides) {
    open({u"20000101"_s});
    fill(u"20010101", u"20020801");
    vonDay.setText(u"5"_s);
    bisMonth.clear();
    setter.Plausis(u"von"_s, von, bis);
    EXPECT_EQ(vonDay.text(), u"05"_s);
    EXPECT_EQ(bisMonth.text(), u"0"_s);
}

TEST_F(DateSetter, CheckIsSkippedWhileTheProgramFillsTheBoxes) {
    open({u"20010615"_s});
    fill(u"20990101", u"20000101");
    setter.SetInitialisierung(true);
    setter.Plausis(u"von"_s, von, bis);
    EXPECT_EQ(stored(von), u"20990101"_s);
    EXPECT_TRUE(setter.Initialisierung);
}

TEST_F(DateSetter, ThirtyFirstOfAprilIsLimitedByTheArrowsOnly) {
    open({u"20000101"_s});
    fill(u"20010431", u"20020301");
    SpinButtons spin(u"spin"_s, vonDay);
    setter.SetBuddyParams(spin, u"day"_s);
    setter.MonthPlausi(vonMonth, spin);
    setter.Plausis(u"von"_s, von, bis);
    EXPECT_EQ(stored(von), u"20010431"_s);
    EXPECT_EQ(spin.limits(), (SpinLimits{1, 30}));
    spin.stepBy(1);
    EXPECT_EQ(vonDay.text(), u"30"_s);
}

TEST_F(DateSetter, UnknownKindSetsNoLimits) {
    open({});
    SpinButtons spin(u"spin"_s, vonDay);
    spin.setLimits({3, 4});
    setter.SetBuddyParams(spin, u"week"_s);
    EXPECT_EQ(spin.limits(), (SpinLimits{3, 4}));
}
