// Lessons in settings that were damaged or cannot be written.

#include "LessonBench.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace lingomat {
namespace {

TEST_F(Lessons, DeletedElsewhereAreReported) {
    save(u"One"_s);
    save(u"Two"_s);
    take(u""_s, u"I1"_s);
    enter(u"One"_s);
    bench.context.prompts.expectYesNo(ExpectedText::anything(), true);
    bench.context.prompts.expectCritical(u"False configuration parameter!");
    bench.click("cmdLoeschen");
    EXPECT_EQ(name().currentText(), u"One"_s);

    take(u""_s, u"I2"_s);
    enter(u"Two"_s);
    bench.context.prompts.expectYesNo(ExpectedText::anything(), true);
    bench.context.prompts.expectCritical(u"Konfigurationsparameter fehlerhaft!");
    bench.click("cmdLoeschen");
}

TEST_F(GermanLessons, DeletedElsewhereAreReported) {
    save(u"Eins"_s);
    save(u"Zwei"_s);
    take(u""_s, u"I1"_s);
    enter(u"Eins"_s);
    bench.context.prompts.expectYesNo(ExpectedText::anything(), true);
    bench.context.prompts.expectCritical(u"Konfigurationsparameter fehlerhaft!");
    bench.click("cmdLoeschen");
}

TEST_F(Lessons, DamagedKeysOfNamesAreReplacedBySoundOnes) {
    put(u""_s, u"Ix"_s, u"One"_s);
    put(u""_s, u"I2"_s, u""_s);
    put(u""_s, u"I3"_s, QString(300, u'z'));
    bench.form.initialisiere();
    EXPECT_EQ(offeredLessons(), (QStringList{u"One"_s, QString(300, u'z')}));
    save(u"One"_s);
    EXPECT_EQ(stored(u""_s, u"I1"_s), u"One"_s);
    EXPECT_EQ(stored(u""_s, u"Ix"_s), u"(none)"_s);
}

TEST_F(Lessons, DamagedValuesDoNoHarm) {
    fillForm();
    save(u"One"_s);
    put(u"\\One\\Score"_s, u"Min"_s, u"many"_s);
    put(u"\\One\\Score"_s, u"Max"_s, u"77"_s);
    put(u"\\One\\Eingabe"_s, u"MonthMin"_s, u"ab"_s);
    put(u"\\One\\lang1"_s, u"Main"_s, u"line\nbreak"_s);
    type(u""_s);
    bench.context.prompts.expectExclamation(u"The value must lie between 1 and 6!");
    bench.context.prompts.expectExclamation(u"The value must lie between 1 and 6!");
    type(u"One"_s);
    EXPECT_EQ(bench.text("MinScore") + bench.text("MaxScore"), u"16"_s);
    EXPECT_EQ(dates(), fullRange) << "what is no date counts as missing";
}

TEST_F(Lessons, LowerScoreAboveTheUpperOneIsMended) {
    save(u"One"_s);
    put(u"\\One\\Score"_s, u"Min"_s, u"5"_s);
    put(u"\\One\\Score"_s, u"Max"_s, u"2"_s);
    type(u""_s);
    type(u"One"_s);
    EXPECT_EQ(bench.text("MinScore") + bench.text("MaxScore"), u"56"_s);
}

TEST_F(Lessons, LessonWithoutItsSectionsIsTheEmptyForm) {
    fillForm();
    put(u""_s, u"I1"_s, u"One"_s);
    bench.form.InitialisiereAuswahlBox();
    type(u"One"_s);
    EXPECT_EQ(bench.items(u"lstBereichRechts"_s), QStringList());
    EXPECT_EQ(bench.text("MinScore") + bench.text("MaxScore"), u"16"_s);
    EXPECT_EQ(dates(), fullRange);
    EXPECT_EQ(bench.text("Lang2Main") + bench.text("Zusatzinfo"), QString());
}

TEST_F(Lessons, SettingsThatCannotBeWrittenAreToldAndTheFormStays) {
    save(u"One"_s);
    bench.type("Lang1Main", u"dog"_s);
    type(u"Two"_s);
    const QString file = bench.context.path(u"settings/LMT.ini"_s);
    ASSERT_TRUE(QFile::exists(file)) << "where the settings of a test lie";
    // A folder in place of the file: no user, however mighty, writes into that.
    ASSERT_TRUE(QFile::rename(file, file + u".aside"_s));
    ASSERT_TRUE(QDir().mkpath(file + u"/x"_s));
    bench.context.prompts.expectYesNo(ExpectedText::anything(), true);
    bench.context.prompts.expectErrorContaining(u"The settings could not be saved"_s);
    bench.click("cmdSpeichern");
    EXPECT_EQ(name().currentText(), u"Two"_s);
    EXPECT_EQ(bench.text("Lang1Main"), u"dog"_s);
    EXPECT_EQ(offeredLessons(), QStringList{u"One"_s});
    EXPECT_TRUE(enabled("cmdSpeichern"));
    EXPECT_FALSE(enabled("cmdLoeschen"));

    ASSERT_TRUE(QDir(file).removeRecursively());
    ASSERT_TRUE(QFile::rename(file + u".aside"_s, file));
    bench.context.prompts.expectYesNo(ExpectedText::anything(), true);
    bench.click("cmdSpeichern");
    EXPECT_EQ(storedKeys(u""_s), (QStringList{u"I1=One"_s, u"I2=Two"_s})) << "once they can be written";
}

} // namespace
} // namespace lingomat
