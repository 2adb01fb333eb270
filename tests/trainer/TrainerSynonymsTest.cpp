#include "PanelsBench.h"

#include <gtest/gtest.h>

#include <QTest>

using namespace Qt::StringLiterals;
using namespace lingomat;

TEST(Synonyms, TheUpperArrowGoesToTheNextTheLowerToThePrevious) {
    PanelsBench bench;
    const QString a = bench.addEntry(u"Haus"_s, u"house"_s);
    bench.addSynonym(a, 1, u"Heim"_s, u"das"_s);
    bench.addSynonym(a, 1, u"Bau"_s);
    bench.addSynonym(a, 2, u"home"_s);
    bench.listEntries();
    bench.showEntry(1);
    for (const char16_t* expected : {u"das Heim", u"Bau", u"Haus", u"das Heim"}) {
        bench.press("UpDown1_Up");
        EXPECT_EQ(bench.question(), expected);
    }
    bench.press("UpDown1_Down");
    EXPECT_EQ(bench.question(), u"Haus");
    EXPECT_EQ(bench.trainer.SynonymFilter[0], QString());
    for (const char16_t* expected : {u"Bau", u"das Heim", u"Haus", u"Bau"}) {
        bench.press("UpDown1_Down");
        EXPECT_EQ(bench.question(), expected);
    }
    EXPECT_EQ(bench.solution(), u"house");
    bench.press("UpDown2_Up");
    EXPECT_EQ(bench.solution(), u"home");
    bench.press("UpDown1_Down"); // goes on where it stood
    EXPECT_EQ(bench.question(), u"das Heim");
}

TEST(Synonyms, ArrowsFollowTheLanguageOnTop) {
    PanelsBench bench;
    const QString a = bench.addEntry(u"Haus"_s, u"house"_s);
    bench.addSynonym(a, 2, u"home"_s);
    bench.listEntries();
    bench.choose("Lang2Zuerst");
    bench.showEntry(1);
    bench.press("UpDown1_Up");
    EXPECT_EQ(bench.question(), u"home");
    bench.press("UpDown2_Up");
    EXPECT_EQ(bench.solution(), u"Haus");
}

TEST(Synonyms, AnotherEntryEndsTheWalk) {
    PanelsBench bench;
    const QString a = bench.addEntry(u"Haus"_s, u"house"_s);
    const QString b = bench.addEntry(u"Baum"_s, u"tree"_s);
    bench.addSynonym(a, 1, u"Heim"_s);
    bench.addSynonym(a, 1, u"Bau"_s);
    bench.addSynonym(b, 1, u"Holz"_s);
    bench.listEntries();
    bench.showEntry(1);
    bench.press("UpDown1_Up");
    EXPECT_NE(bench.trainer.SynonymFilter[0], QString());
    bench.showEntry(2);
    EXPECT_EQ(bench.trainer.SynonymFilter[0], QString());
    bench.press("UpDown1_Up");
    EXPECT_EQ(bench.question(), u"Holz");
}

TEST(Synonyms, TheCheckOfAnAnswerDoesNotDisturbTheWalk) {
    PanelsBench bench;
    const QString a = bench.addEntry(u"Haus"_s, u"house"_s);
    for (const char16_t* word : {u"Heim", u"Bau", u"Hof"})
        bench.addSynonym(a, 1, QString::fromUtf16(word));
    bench.addSynonym(a, 2, u"home"_s);
    bench.listEntries();
    bench.showEntry(1);
    bench.press("UpDown1_Up");
    EXPECT_TRUE(bench.trainer.IsSynonym(u"home"_s));
    EXPECT_FALSE(bench.trainer.IsSynonym(u"nothing"_s));
    bench.press("UpDown1_Up");
    EXPECT_EQ(bench.question(), u"Bau");
}

TEST(Synonyms, ArrowsAreThereOnceAnEntryIs) {
    PanelsBench bench;
    bench.addEntry(u"Haus"_s, u"house"_s);
    bench.listEntries();
    EXPECT_FALSE(bench.shown("UpDown1"));
    EXPECT_FALSE(bench.shown("UpDown2"));
    bench.step();
    EXPECT_TRUE(bench.shown("UpDown1"));
    EXPECT_TRUE(bench.shown("UpDown2"));
    bench.trainer.Command6_Click();
    EXPECT_FALSE(bench.shown("UpDown1"));
}

TEST(Synonyms, TheKeyboardSuffices) {
    PanelsBench bench;
    const QString a = bench.addEntry(u"Haus"_s, u"house"_s);
    bench.addSynonym(a, 1, u"Heim"_s);
    bench.listEntries();
    bench.trainer.show();
    bench.showEntry(1);
    auto& up = child<QToolButton>(bench.trainer, "UpDown1_Up");
    QTest::keyClick(&up, Qt::Key_Up);
    EXPECT_EQ(bench.question(), u"Heim");
    QTest::keyClick(&up, Qt::Key_Down);
    EXPECT_EQ(bench.question(), u"Haus");
    QTest::keyClick(&up, Qt::Key_Space);
    EXPECT_EQ(bench.question(), u"Heim");
}

TEST(Synonyms, OfTheSolutionAreAHintWhileItIsHidden) {
    PanelsBench bench;
    const QString a = bench.addEntry(u"Haus"_s, u"house"_s);
    bench.addSynonym(a, 2, u"home"_s);
    bench.listEntries();
    bench.step();
    ASSERT_EQ(bench.solution(), QString());
    bench.press("UpDown2_Up");
    EXPECT_EQ(bench.solution(), u"home");
    bench.press("UpDown2_Up");
    EXPECT_EQ(bench.solution(), u"house") << "behind the last one the solution itself";
}

TEST(Synonyms, AreShownWithAllTheirParts) {
    PanelsBench bench;
    const QString a = bench.addEntry(u"Haus"_s, u"house"_s);
    bench.addRow(bench.context.state.DBHandler.RecordsetSynonyme, {{u"VID"_s, a.toInt()},
                                                                   {u"Sprache"_s, 1},
                                                                   {u"Prefix"_s, u"das"_s},
                                                                   {u"Main"_s, u"Heim"_s},
                                                                   {u"Suffix"_s, u"-e"_s},
                                                                   {u"Kommentar"_s, u"Wohnung"_s}});
    bench.listEntries();
    bench.showEntry(1);
    bench.press("UpDown1_Up");
    EXPECT_EQ(bench.question(), u"das Heim -e (Wohnung)");
}

TEST(Synonyms, ALanguageSwapTakesTheWalkAlong) {
    PanelsBench bench;
    const QString a = bench.addEntry(u"Haus"_s, u"house"_s);
    bench.addSynonym(a, 1, u"Heim"_s);
    bench.addSynonym(a, 1, u"Bau"_s);
    bench.listEntries();
    bench.showEntry(1);
    bench.press("UpDown1_Up");
    bench.choose("Lang2Zuerst");
    EXPECT_EQ(bench.question(), u"house");
    EXPECT_EQ(bench.solution(), u"Heim");
    bench.press("UpDown2_Up");
    EXPECT_EQ(bench.question(), u"house");
    EXPECT_EQ(bench.solution(), u"Bau");
    bench.press("UpDown2_Up");
    EXPECT_EQ(bench.solution(), u"Haus");
}

TEST(Synonyms, AfterAnErrorTheNextPressStartsAgain) {
    PanelsBench bench;
    const QString a = bench.addEntry(u"Haus"_s, u"house"_s);
    const QString b = bench.addEntry(u"Baum"_s, u"tree"_s);
    bench.addSynonym(b, 1, u"Holz"_s);
    bench.addSynonym(a, 1, u"Heim"_s);
    bench.addSynonym(b, 1, u"Stamm"_s);
    bench.listEntries();
    CDBHandler& session = bench.context.state.DBHandler;
    const auto fail = [&] {
        session.RecordsetSynonyme.Close();
        bench.context.prompts.expectErrorContaining(u""_s);
        bench.press("UpDown1_Up");
        ASSERT_TRUE(session.OpenAllRecordsets());
    };
    bench.showEntry(1);
    bench.press("UpDown1_Up");
    ASSERT_EQ(bench.question(), u"Heim");
    bench.showEntry(2);
    fail(); // at the first press for this entry
    EXPECT_EQ(bench.question(), u"Baum");
    bench.press("UpDown1_Up");
    EXPECT_EQ(bench.question(), u"Holz");
    fail(); // in the middle of the walk
    EXPECT_EQ(bench.trainer.SynonymFilter[0], QString());
    bench.press("UpDown1_Up");
    EXPECT_EQ(bench.question(), u"Holz");
}
