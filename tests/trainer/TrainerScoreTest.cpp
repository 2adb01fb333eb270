#include "TypingBench.h"

#include "DBEngine.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace lingomat;

TEST(Score, RightAndWrongMoveTheScoreInListAndFile) {
    TypingBench bench;
    bench.addEntry({{bench.context.state.Lang2MainField, u"house"_s}, {u"Score"_s, 3}});
    bench.addEntry({{bench.context.state.Lang2MainField, u"tree"_s}, {u"Score"_s, 6}});
    bench.addEntry({{bench.context.state.Lang2MainField, u"dog"_s}, {u"Score"_s, 1}});
    bench.begin();
    bench.type(u"house"_s);
    bench.expectRight();
    EXPECT_EQ(bench.score(1), u"2");
    EXPECT_EQ(bench.stored(1), u"2");
    EXPECT_EQ(bench.stored(1, u"Aenderungsdatum"_s), u"20010105");
    EXPECT_EQ(bench.trainer.AnzahlRichtig, 1);
    EXPECT_EQ(bench.context.prompts.beeps(), 0);
    bench.type(u"bush"_s);
    bench.expectWrong(u"Not: bush"_s);
    EXPECT_EQ(bench.score(2), u"6");
    EXPECT_EQ(bench.stored(2), u"6");
    EXPECT_EQ(bench.trainer.AnzahlRichtig, 1);
    bench.type(u"dog"_s);
    bench.expectRight();
    EXPECT_EQ(bench.score(3), u"1");
    EXPECT_EQ(bench.stored(3), u"1");
}

TEST(Score, OddScoresCountAsNone) {
    TypingBench bench;
    bench.addEntry(u"a"_s, u"one"_s);
    bench.addEntry({{bench.context.state.Lang2MainField, u"two"_s}, {u"Score"_s, 7}});
    bench.begin();
    bench.list.MSFlexGrid1().setTextMatrix(1, Liste::ColScore, {});
    bench.type(u"one"_s);
    EXPECT_EQ(bench.stored(1), u"1");
    bench.type(u"wrong"_s);
    EXPECT_EQ(bench.score(2), u"1");
    EXPECT_EQ(bench.stored(2), u"1");
}

TEST(Score, ARowThatIsNotInTheFileTouchesNoOther) {
    TypingBench bench;
    bench.addEntry({{bench.context.state.Lang2MainField, u"house"_s}, {u"Score"_s, 3}});
    bench.begin();
    bench.list.MSFlexGrid1().setTextMatrix(1, Liste::ColSchluessel, u"*"_s);
    bench.type(u"house"_s);
    bench.expectRight();
    EXPECT_EQ(bench.score(1), u"2");
    EXPECT_EQ(bench.stored(1), u"3");
    EXPECT_EQ(bench.trainer.CheckForSpecialRelation(u"house"_s), QString());
    EXPECT_FALSE(bench.trainer.IsSynonym(u"house"_s));
    EXPECT_FALSE(bench.trainer.PositioniereRecord(u"*"_s));
}

TEST(Score, FaultsAreReportedAndTheSessionGoesOn) {
    TypingBench bench;
    for (const char16_t* word : {u"one", u"two", u"three"})
        bench.addEntry({{bench.context.state.Lang2MainField, QString::fromUtf16(word)}, {u"Score"_s, 3}});
    bench.begin();
    {
        dao::Database other = dao::DBEngine::OpenDatabase(bench.filePath());
        dao::Recordset rows = other.OpenRecordset(u"SELECT * FROM Vokabular"_s);
        rows.Delete();
    }
    bench.willType(u"one"_s);
    bench.context.prompts.expectErrorContaining(u""_s);
    bench.step();
    bench.expectRight();
    EXPECT_EQ(bench.score(1), u"2") << "the list keeps the new value";
    EXPECT_EQ(bench.stored(1), u"3") << "of the second entry, which is the first now";
    bench.type(u"two"_s);
    bench.expectRight();
    EXPECT_EQ(bench.stored(1), u"2");

    bench.context.state.DBHandler.Database.Close();
    bench.willType(u"three"_s);
    bench.context.prompts.expectErrorContaining(u""_s);
    bench.step();
    bench.expectRight();
    bench.expectEnd();
    bench.step();
}

TEST(Score, RowAndScoreAreTheSameInEveryOrderAlsoAfterSorting) {
    for (const char* order : {"Reihenfolge_sequentiell", "Reihenfolge_shuffle", "Reihenfolge_random"}) {
        TrainingBench bench;
        bench.openFileWith(3);
        bench.draw({3, 1, 2});
        bench.choose(order);
        bench.draw({3});
        bench.trainer.Selbsttest = true;
        bench.step();
        FlexGrid& rows = bench.list.MSFlexGrid1();
        for (int row = 1; row <= 3; ++row)
            rows.setTextMatrix(row, Liste::ColWortart, QString::number(9 - row));
        rows.setCol(Liste::ColWortart);
        rows.Sort(); // the other way round
        ASSERT_EQ(rows.TextMatrix(1, Liste::ColSprache1), u"Wort 3");
        bench.willConfirm(true);
        bench.step();
        const QString word = bench.question().mid(5);
        for (int row = 1; row <= 3; ++row) {
            EXPECT_EQ(bench.stored(row), QString::number(row) == word ? u"2"_s : u"3"_s) << order;
            EXPECT_EQ(bench.score(4 - row), bench.stored(row));
        }
    }
}

TEST(Score, SelfAssessment) {
    TrainingBench bench;
    bench.openFileWith(3);
    bench.trainer.Selbsttest = true;
    bench.step();
    bench.willConfirm(true);
    bench.step();
    EXPECT_EQ(bench.stored(1), u"2");
    EXPECT_EQ(bench.trainer.AnzahlRichtig, 1);
    EXPECT_FALSE(bench.saysRight());
    bench.step();
    bench.willConfirm(false);
    bench.step();
    EXPECT_EQ(bench.stored(2), u"4");
    EXPECT_EQ(bench.trainer.AnzahlRichtig, 1);
    EXPECT_FALSE(bench.saysWrong());
    bench.step();
    bench.context.prompts.expectDialog("ConfirmDlg", [](QDialog& form) { form.close(); });
    bench.step();
    EXPECT_EQ(bench.stored(3), u"4") << "closing leaves the last answer";
}
