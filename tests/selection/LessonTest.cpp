#include "LessonBench.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QCheckBox>
#include <QWheelEvent>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace lingomat {
namespace {

// The commands.

TEST_F(Lessons, CommandsStartDisabled) {
    for (const char* button : {"cmdSpeichern", "cmdLoeschen"})
        EXPECT_FALSE(enabled(button)) << button;
    for (const char* entry : {"mnAuswahlSpeichern", "mnAuswahlDelete"})
        EXPECT_FALSE(menuEnabled(entry)) << entry;
    EXPECT_TRUE(menuEnabled("mnAuswahlNeu"));
    EXPECT_TRUE(menuEnabled("mnAuswahlOpen"));
}

TEST_F(Lessons, NewNameEnablesSavingOnly) {
    type(u"New"_s);
    EXPECT_TRUE(enabled("cmdSpeichern") && menuEnabled("mnAuswahlSpeichern"));
    EXPECT_FALSE(enabled("cmdLoeschen") || menuEnabled("mnAuswahlDelete"));
    type(u""_s);
    EXPECT_FALSE(enabled("cmdSpeichern") || menuEnabled("mnAuswahlSpeichern"));
}

TEST_F(Lessons, NameOfBlanksIsNone) {
    type(u"   "_s);
    EXPECT_FALSE(enabled("cmdSpeichern"));
}

TEST_F(Lessons, SavingAsksAndEnablesDeleting) {
    bench.context.prompts.expectYesNo(
        u"Shall the current settings really be saved as a lesson with name 'One'?", true);
    type(u"One"_s);
    bench.trigger("mnAuswahlSpeichern");
    EXPECT_TRUE(enabled("cmdLoeschen") && menuEnabled("mnAuswahlDelete"));
    EXPECT_EQ(offeredLessons(), QStringList{u"One"_s});
    EXPECT_EQ(name().currentText(), u"One"_s);
}

TEST_F(Lessons, NoSavesNothing) {
    bench.context.prompts.expectYesNo(ExpectedText::anything(), false);
    type(u"One"_s);
    bench.click("cmdSpeichern");
    EXPECT_EQ(offeredLessons(), QStringList());
    EXPECT_EQ(storedKeys(u""_s), QStringList());
    EXPECT_FALSE(enabled("cmdLoeschen"));
}

TEST_F(Lessons, DeletingAsksAndLeavesTheFiltersAlone) {
    bench.type("Lang1Main", u"dog"_s);
    save(u"One"_s);
    bench.context.prompts.expectYesNo(u"Shall the lesson 'One' really be deleted?", false);
    bench.trigger("mnAuswahlDelete");
    EXPECT_EQ(offeredLessons(), QStringList{u"One"_s});

    bench.context.prompts.expectYesNo(u"Shall the lesson 'One' really be deleted?", true);
    bench.click("cmdLoeschen");
    EXPECT_EQ(offeredLessons(), QStringList());
    EXPECT_EQ(name().currentText(), QString());
    EXPECT_FALSE(enabled("cmdSpeichern") || enabled("cmdLoeschen"));
    EXPECT_EQ(bench.text("Lang1Main"), u"dog"_s);
    EXPECT_EQ(storedKeys(u""_s), QStringList());
    EXPECT_EQ(storedKeys(u"\\One\\lang1"_s), QStringList());
}

TEST_F(Lessons, OneThatIsCalledLikeAListOfAnotherLeavesThatList) {
    save(u"a"_s);
    put(u"\\a\\Quelle"_s, u"I0"_s, u"book"_s);
    save(u"a\\Quelle"_s);
    save(u"a\\Quelle"_s);
    EXPECT_EQ(stored(u"\\a\\Quelle"_s, u"I0"_s), u"book"_s);
    bench.context.prompts.expectYesNo(ExpectedText::anything(), true);
    bench.click("cmdLoeschen");
    EXPECT_EQ(stored(u"\\a\\Quelle"_s, u"I0"_s), u"book"_s);
    EXPECT_EQ(storedKeys(u"\\a\\Quelle\\lang1"_s), QStringList());
}

TEST_F(GermanLessons, Questions) {
    type(u"Eins"_s);
    bench.context.prompts.expectYesNo(
        u"Soll die aktuelle Einstellung wirklich unter 'Eins' als Lektion gespeichert werden?", true);
    bench.click("cmdSpeichern");
    bench.context.prompts.expectYesNo(u"Soll die Lektion 'Eins' wirklich gelöscht werden?", true);
    bench.click("cmdLoeschen");
}

TEST_F(Lessons, LongNameIsCutWithABeep) {
    type(QString(105, u'x'));
    EXPECT_EQ(name().currentText(), QString(100, u'x'));
    EXPECT_EQ(name().lineEdit()->cursorPosition(), 100);
    EXPECT_EQ(bench.context.prompts.beeps(), 5);
    EXPECT_TRUE(enabled("cmdSpeichern"));
}

// What is stored.

TEST_F(Lessons, AreStoredUnderTheNameOfTheFile) {
    fillForm();
    save(u"Lesson 1"_s);
    const QString lesson = u"\\Lesson 1"_s;
    EXPECT_EQ(storedKeys(u""_s), QStringList{u"I1=Lesson 1"_s}) << "the first has number 1";
    EXPECT_EQ(storedKeys(lesson + u"\\Quelle"_s), QStringList{u"I0=Radio"_s});
    EXPECT_EQ(storedKeys(lesson + u"\\Bereich"_s), (QStringList{u"I0=Sport"_s, u"I1=Kunst"_s}));
    EXPECT_EQ(storedKeys(lesson + u"\\Wortart"_s), QStringList{u"I0=adverb"_s});
    EXPECT_EQ(storedKeys(lesson + u"\\Grammatikalisch"_s), QStringList{u"I0=dual"_s});
    EXPECT_EQ(storedKeys(lesson + u"\\Funktional"_s), QStringList{u"I0=archaic"_s});
    EXPECT_EQ(storedKeys(lesson + u"\\Referenzen"_s), (QStringList{u"I0=Rhymes with"_s, u"I1=See also"_s}));
    EXPECT_EQ(storedKeys(lesson + u"\\Score"_s), (QStringList{u"Max=4"_s, u"Min=2"_s}));
    EXPECT_EQ(storedKeys(lesson + u"\\lang1"_s),
              (QStringList{u"Comment=Tier"_s, u"Main=Hund*"_s, u"Prefix=der"_s, u"Suffix=-e"_s}));
    EXPECT_EQ(storedKeys(lesson + u"\\lang2"_s),
              (QStringList{u"Comment=pet"_s, u"Main=dog"_s, u"Prefix=the"_s, u"Suffix=s"_s}));
    EXPECT_EQ(storedKeys(lesson + u"\\Eingabe"_s),
              (QStringList{u"DayMax=01"_s, u"DayMin=03"_s, u"MonthMax=03"_s, u"MonthMin=02"_s,
                           u"YearMax=2002"_s, u"YearMin=2001"_s}));
    EXPECT_EQ(stored(lesson + u"\\Aenderung"_s, u"MonthMax"_s), u"01"_s);
    EXPECT_EQ(stored(lesson + u"\\Aenderung"_s, u"DayMax"_s), u"28"_s);
    EXPECT_EQ(storedKeys(lesson + u"\\Msc"_s),
              (QStringList{u"Beispielsatz=Das ist ein Satz."_s, u"Zusatz=more"_s}));
}

TEST_F(Lessons, WithoutAChoiceHaveNoSectionForIt) {
    save(u"Plain"_s);
    EXPECT_EQ(storedKeys(u"\\Plain\\Quelle"_s), QStringList());
    EXPECT_EQ(storedKeys(u"\\Plain\\lang1"_s).size(), 4) << "empty texts are stored";
}

TEST_F(Lessons, LowestFreeNumberWins) {
    for (const QString& lesson : {u"One"_s, u"Two"_s, u"Three"_s})
        save(lesson);
    remove(u"One"_s);
    save(u"Four"_s);
    EXPECT_EQ(storedKeys(u""_s), (QStringList{u"I1=Four"_s, u"I2=Two"_s, u"I3=Three"_s}));
}

TEST_F(Lessons, SavingAgainKeepsTheNumberAndLeavesNothingOfBefore) {
    save(u"One"_s);
    bench.choose(u"Bereich"_s, {u"Sport"_s, u"Kunst"_s});
    save(u"Two"_s);
    clear();
    bench.choose(u"Bereich"_s, {u"Reisen"_s});
    save(u"Two"_s);
    EXPECT_EQ(storedKeys(u""_s), (QStringList{u"I1=One"_s, u"I2=Two"_s}));
    EXPECT_EQ(storedKeys(u"\\Two\\Bereich"_s), QStringList{u"I0=Reisen"_s});
    EXPECT_EQ(offeredLessons(), (QStringList{u"One"_s, u"Two"_s}));
}

TEST_F(Lessons, BlankItemLeavesAGapAndReadingStopsThere) {
    auto& right = bench.listBox(u"lstBereichRechts"_s);
    right.addItems({u"Sport"_s, u"  "_s, u"Kunst"_s});
    save(u"One"_s);
    EXPECT_EQ(storedKeys(u"\\One\\Bereich"_s), (QStringList{u"I0=Sport"_s, u"I2=Kunst"_s}));
    clear();
    type(u"One"_s);
    EXPECT_EQ(bench.items(u"lstBereichRechts"_s), QStringList{u"Sport"_s});
}

TEST_F(Lessons, BlanksAtTheEndsOfANameDoNotCount) {
    bench.type("Lang1Main", u"dog"_s);
    save(u" One "_s);
    EXPECT_EQ(storedKeys(u""_s), QStringList{u"I1=One"_s});
    clear();
    type(u" One"_s);
    EXPECT_EQ(bench.text("Lang1Main"), u"dog"_s);
    bench.context.prompts.expectYesNo(u"Shall the lesson 'One' really be deleted?", true);
    bench.click("cmdLoeschen");
    EXPECT_EQ(offeredLessons(), QStringList());
}

// Recalling.

TEST_F(Lessons, FillTheWholeForm) {
    fillForm();
    const QStringList datesBefore = dates();
    save(u"One"_s);
    clear();
    bench.form.AuswahlGeaendert = false;
    type(u"One"_s);
    EXPECT_EQ(bench.items(u"lstQuelleRechts"_s), QStringList{u"Radio"_s});
    EXPECT_EQ(bench.items(u"lstQuelleLinks"_s), QStringList{u"Book"_s});
    EXPECT_EQ(bench.items(u"lstBereichRechts"_s), (QStringList{u"Sport"_s, u"Kunst"_s}));
    EXPECT_EQ(bench.items(u"lstBereichLinks"_s), QStringList{u"Reisen"_s});
    EXPECT_EQ(bench.items(u"lstWortartRechts"_s), QStringList{u"adverb"_s});
    EXPECT_EQ(bench.items(u"lstGrammatikalischRechts"_s), QStringList{u"dual"_s});
    EXPECT_EQ(bench.items(u"lstFunktionalRechts"_s), QStringList{u"archaic"_s});
    EXPECT_EQ(bench.items(u"lstReferenzenRechts"_s), (QStringList{u"Rhymes with"_s, u"See also"_s}));
    EXPECT_EQ(bench.items(u"lstReferenzenLinks"_s).size(), 6);
    EXPECT_EQ(bench.text("MinScore") + bench.text("MaxScore"), u"24"_s);
    EXPECT_EQ(bench.text("Lang1Prefix"), u"der"_s);
    EXPECT_EQ(bench.text("Lang1Main"), u"Hund*"_s) << "without the blanks round it";
    EXPECT_EQ(bench.text("Lang1Suffix"), u"-e"_s);
    EXPECT_EQ(bench.text("Lang1Kommentar"), u"Tier"_s);
    EXPECT_EQ(bench.text("Lang2Prefix"), u"the"_s);
    EXPECT_EQ(bench.text("Lang2Main"), u"dog"_s);
    EXPECT_EQ(bench.text("Lang2Suffix"), u"s"_s);
    EXPECT_EQ(bench.text("Lang2Kommentar"), u"pet"_s);
    EXPECT_EQ(dates(), datesBefore);
    EXPECT_EQ(bench.text("Zusatzinfo"), u"more"_s);
    EXPECT_EQ(bench.text("Beispielsatz"), u"Das ist ein Satz."_s);
    EXPECT_TRUE(bench.form.AuswahlGeaendert) << "by the boxes that changed";
    EXPECT_EQ(bench.listed(), QStringList()) << "nothing is run";
}

TEST_F(Lessons, ScoreIsTakenWhateverStoodBefore) {
    bench.type("MinScore", u"5"_s);
    save(u"Hard"_s);
    bench.type("MinScore", u"1"_s);
    bench.type("MaxScore", u"2"_s);
    type(u"Hard"_s);
    EXPECT_EQ(bench.text("MinScore") + bench.text("MaxScore"), u"56"_s);
    EXPECT_EQ(bench.context.prompts.beeps(), 0);
}

TEST_F(Lessons, ReplaceWhatTheFormShows) {
    save(u"Plain"_s);
    fillForm();
    type(u"Plain"_s);
    for (const char16_t* list : {u"lstQuelleRechts", u"lstBereichRechts", u"lstReferenzenRechts"})
        EXPECT_EQ(bench.items(QString::fromUtf16(list)), QStringList());
    EXPECT_EQ(bench.text("MinScore") + bench.text("MaxScore"), u"16"_s);
    EXPECT_EQ(bench.text("Lang1Main"), QString()) << "an empty text empties its box";
    EXPECT_EQ(dates(), fullRange);
    EXPECT_EQ(bench.text("Beispielsatz"), QString());
}

TEST_F(Lessons, AreRecalledAtTheLastLetterOfTheirName) {
    bench.type("Lang1Main", u"dog"_s);
    save(u"Animals"_s);
    clear();
    type(u"Animal"_s);
    EXPECT_EQ(bench.text("Lang1Main"), QString());
    EXPECT_FALSE(enabled("cmdLoeschen"));
    EXPECT_EQ(name().currentText(), u"Animal"_s) << "no name is put in place of the one typed";
    QTest::keyClick(name().lineEdit(), 's');
    EXPECT_EQ(bench.text("Lang1Main"), u"dog"_s);
    EXPECT_TRUE(enabled("cmdLoeschen"));
    bench.type("Lang1Main", u"cat"_s);
    QTest::keyClick(name().lineEdit(), 'x');
    EXPECT_EQ(bench.text("Lang1Main"), u"cat"_s) << "a new name changes nothing";
    EXPECT_FALSE(enabled("cmdLoeschen"));
}

TEST_F(Lessons, NamesTellCaseApart) {
    bench.type("Lang1Main", u"dog"_s);
    save(u"Animals"_s);
    clear();
    type(u"animals"_s);
    EXPECT_EQ(bench.text("Lang1Main"), QString());
    save(u"animals"_s);
    EXPECT_EQ(storedKeys(u""_s), (QStringList{u"I1=Animals"_s, u"I2=animals"_s}));
    type(u"Animals"_s);
    EXPECT_EQ(bench.text("Lang1Main"), u"dog"_s);
}

TEST_F(Lessons, ChoosingRecallsOnceMore) {
    bench.type("Lang1Main", u"dog"_s);
    save(u"One"_s);
    bench.type("Lang1Main", u"cat"_s);
    save(u"Two"_s);
    QComboBox& box = name();
    const auto choose = [&box](int index) {
        box.showPopup();
        box.view()->setCurrentIndex(box.model()->index(index, 0));
        QTest::keyClick(box.view(), Qt::Key_Return);
    };
    choose(0);
    EXPECT_EQ(bench.text("Lang1Main"), u"dog"_s);
    bench.type("Lang1Main", u"mouse"_s);
    choose(0); // the one that stands there
    EXPECT_EQ(bench.text("Lang1Main"), u"dog"_s);
    choose(1);
    EXPECT_EQ(bench.text("Lang1Main"), u"cat"_s);
    type(u"One"_s);
    bench.type("Lang1Main", u"mouse"_s);
    choose(0); // the one that was typed
    EXPECT_EQ(bench.text("Lang1Main"), u"dog"_s);
}

TEST_F(Lessons, WheelOverTheNameRecallsNothing) {
    bench.type("Lang1Main", u"dog"_s);
    save(u"One"_s);
    save(u"Two"_s);
    bench.type("Lang1Main", u"cat"_s);
    const QPointF place = name().rect().center();
    QWheelEvent turn(place, name().mapToGlobal(place), {}, QPoint(0, 120), Qt::NoButton, Qt::NoModifier,
                     Qt::NoScrollPhase, false);
    QApplication::sendEvent(&name(), &turn);
    EXPECT_EQ(name().currentText(), u"Two"_s);
    EXPECT_EQ(bench.text("Lang1Main"), u"cat"_s);
}

TEST_F(Lessons, LeaveGatesTabsAndOptionsAsTheyAre) {
    bench.type("Lang1Main", u"b"_s);
    save(u"One"_s);
    clear();
    child<QCheckBox>(bench.form, "Lang1Check").setChecked(false);
    child<QCheckBox>(bench.form, "chkRefOption2").setChecked(true);
    bench.selectTab(3);
    type(u"One"_s);
    EXPECT_EQ(bench.text("Lang1Main"), u"b"_s);
    EXPECT_FALSE(child<QCheckBox>(bench.form, "Lang1Check").isChecked());
    EXPECT_TRUE(child<QCheckBox>(bench.form, "chkRefOption2").isChecked());
    EXPECT_TRUE(bench.listBox(u"lstWortartLinks"_s).isVisible());
    bench.run();
    EXPECT_EQ(bench.listed(), (QStringList{u"a"_s, u"b"_s}))
        << "the text of an unticked language does not count";
}

TEST_F(Lessons, ValueThatTheFileHasNotIsDropped) {
    bench.choose(u"Bereich"_s, {u"Sport"_s, u"Kunst"_s});
    save(u"One"_s);
    put(u"\\One\\Bereich"_s, u"I0"_s, u"Gone"_s);
    clear();
    type(u"One"_s);
    EXPECT_EQ(bench.items(u"lstBereichRechts"_s), QStringList{u"Kunst"_s});
    EXPECT_EQ(bench.items(u"lstBereichLinks"_s), (QStringList{u"Reisen"_s, u"Sport"_s}));
}

TEST_F(Lessons, WithoutDatesShowTheFullRange) {
    fillForm();
    save(u"One"_s);
    for (const char16_t* key : {u"DayMin", u"MonthMin", u"YearMin", u"DayMax", u"MonthMax", u"YearMax"}) {
        take(u"\\One\\Eingabe"_s, QString::fromUtf16(key));
        take(u"\\One\\Aenderung"_s, QString::fromUtf16(key));
    }
    type(u""_s);
    type(u"One"_s);
    EXPECT_EQ(dates(), fullRange);
    EXPECT_EQ(bench.text("Zusatzinfo"), u"more"_s) << "what follows the dates is read";
}

TEST_F(Lessons, FirstMissingDateThrowsAllDatesAway) {
    fillForm();
    save(u"One"_s);
    take(u"\\One\\Aenderung"_s, u"YearMax"_s); // the last of the twelve
    type(u""_s);
    type(u"One"_s);
    EXPECT_EQ(dates(), fullRange);
}

TEST_F(Lessons, DatesAreCheckedAgainAfterwards) {
    fillForm();
    save(u"One"_s);
    type(u""_s);
    type(u"One"_s);
    bench.type("txtEingabeVonJahr", u"1990"_s);
    EXPECT_EQ(bench.text("txtEingabeVonJahr"), u"2001"_s);
}

// Names.

TEST_F(Lessons, EveryNameSurvivesAndTouchesNoOther) {
    const QStringList names{u"I1"_s,  u"I2"_s,    u"a.b"_s,          u"..."_s,         u"a/b"_s,
                            u"'x'"_s, u"\"y\""_s, u"Übung ß"_s,      u"🙂 日本"_s, u"[Score]"_s,
                            u"x=y"_s, u"%3D"_s,   u"Score"_s,        u"lang1"_s,       u";c"_s,
                            u"\\x"_s, u"x\\"_s,   u"\\"_s,           u"p\\Score"_s,    u"a\tb"_s,
                            u"*?#"_s, u"!§$%&"_s, QString(100, u'ü')};
    for (const QString& lesson : names) {
        bench.type("Zusatzinfo", u"of "_s + lesson);
        save(lesson);
    }
    bench.form.initialisiere(); // reads the names anew
    for (const QString& lesson : names) {
        clear();
        enter(u""_s);
        enter(lesson);
        EXPECT_EQ(bench.text("Zusatzinfo"), u"of "_s + lesson) << lesson.toStdString();
        EXPECT_TRUE(enabled("cmdLoeschen")) << lesson.toStdString();
    }
    // Storing and deleting one leaves the others.
    enter(u"I1"_s);
    save(u"I1"_s);
    remove(u"Score"_s);
    for (const QString& lesson : names) {
        if (lesson == u"Score"_s)
            continue;
        clear();
        enter(u""_s);
        enter(lesson);
        EXPECT_EQ(bench.text("Zusatzinfo"), u"of "_s + lesson) << lesson.toStdString();
    }
}

TEST_F(Lessons, NameWithABackslashNests) {
    bench.type("Zusatzinfo", u"outer"_s);
    save(u"a"_s);
    bench.type("Zusatzinfo", u"inner"_s);
    save(u"a\\b"_s);
    EXPECT_EQ(stored(u"\\a\\b\\Msc"_s, u"Zusatz"_s), u"inner"_s);
    EXPECT_EQ(stored(u"\\a\\Msc"_s, u"Zusatz"_s), u"outer"_s);
    clear();
    type(u"a\\b"_s);
    EXPECT_EQ(bench.text("Zusatzinfo"), u"inner"_s);
    remove(u"a\\b"_s);
    type(u"a"_s);
    EXPECT_EQ(bench.text("Zusatzinfo"), u"outer"_s) << "the inner one goes alone";
    save(u"a\\b"_s);
    remove(u"a"_s);
    EXPECT_EQ(stored(u"\\a\\b\\Msc"_s, u"Zusatz"_s), u"(none)"_s) << "the outer one takes it along";
}

// The file that is open.

TEST_F(Lessons, BelongToTheFileByItsName) {
    save(u"One"_s);
    bench.context.state.CurrentDBPath = bench.context.path(u"other.lmt"_s);
    bench.form.initialisiere();
    EXPECT_EQ(offeredLessons(), QStringList());
    EXPECT_EQ(name().currentText(), QString());
    EXPECT_FALSE(enabled("cmdSpeichern"));
    bench.context.state.CurrentDBPath = bench.context.path(u"elsewhere/selection.lmt"_s);
    bench.form.initialisiere();
    EXPECT_EQ(offeredLessons(), QStringList{u"One"_s});
}

TEST_F(Lessons, ClearAllKeepsTheName) {
    save(u"One"_s);
    clear();
    EXPECT_EQ(name().currentText(), u"One"_s);
}

} // namespace
} // namespace lingomat
