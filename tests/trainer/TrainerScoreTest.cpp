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

TEST(Score, BeforeTheFirstQuestionThereIsNothingToJudge) {
    for (const bool typed : {false, true}) {
        TrainingBench bench;
        bench.openFileWith(3);
        const QString head = bench.score(0);
        bench.choose("Reihenfolge_random");
        bench.draw({2});
        bench.button("Command2").click();
        bench.choose("Selbsttest");
        if (typed)
            bench.choose("Schreiben");
        bench.step();
        EXPECT_EQ(bench.question(), u"Wort 2");
        EXPECT_EQ(bench.solution(), u"word 2");
        EXPECT_EQ(bench.score(0), head);
        EXPECT_EQ(bench.trainer.ZeigeLoesung, 0);
        EXPECT_EQ(bench.stored(2), u"3");

        bench.draw({3});
        if (typed) {
            bench.type(u"word 3"_s);
        } else {
            bench.step();
            bench.willConfirm(true);
            bench.step();
        }
        EXPECT_EQ(bench.stored(3), u"2");
    }
}

TEST(Score, AListWithoutRowsKeepsItsHead) {
    TrainingBench bench;
    bench.openFileWith(0);
    const QString head = bench.score(0);
    bench.button("ToEnd").click();
    bench.choose("Selbsttest");
    bench.step();
    EXPECT_EQ(bench.score(0), head);
    bench.context.prompts.expectError(u"Subscript out of range"_s);
    bench.trainer.ChangeErrorCount(Trainer::ScoreFalsch);
    EXPECT_EQ(bench.score(0), head);
}

TEST(Score, AStepFromBrowsingCountsAsTheReveal) {
    TrainingBench bench;
    bench.openFileWith(3);
    bench.button("Command2").click();
    bench.button("Command2").click();
    bench.choose("Selbsttest");
    bench.willConfirm(true);
    bench.step();
    EXPECT_EQ(bench.question(), u"Wort 2");
    EXPECT_EQ(bench.solution(), u"word 2");
    EXPECT_EQ(bench.stored(2), u"2");
    EXPECT_EQ(bench.trainer.ZeigeLoesung, 0);
}

TEST(Score, AStepFromBrowsingJudgesNothingThatIsToBeTyped) {
    TrainingBench bench;
    bench.openFileWith(3);
    bench.button("Command2").click();
    bench.choose("Selbsttest");
    bench.choose("Schreiben");
    bench.step();
    EXPECT_EQ(bench.solution(), u"word 1");
    EXPECT_EQ(bench.stored(1), u"3");
    bench.type(u"word 2"_s);
    EXPECT_EQ(bench.stored(2), u"2");
}

TEST(Score, AnEntryWhoseRowIsGoneIsNotJudged) {
    for (const bool typed : {false, true}) {
        TrainingBench bench;
        bench.openFileWith(3);
        bench.draw({1, 3, 2});
        bench.choose("Reihenfolge_shuffle");
        bench.choose("Selbsttest");
        if (typed) {
            bench.choose("Schreiben");
            bench.type(u"word 1"_s);
        } else {
            bench.step();
            bench.willConfirm(true);
            bench.step();
        }
        bench.list.MSFlexGrid1().RemoveItem(3);
        for (int repeated = 0; repeated < 2; ++repeated) { // at the question and at the solution
            bench.context.prompts.expectErrorContaining(u"ubscript"_s);
            bench.step();
            EXPECT_TRUE(bench.context.prompts.isFinished());
            EXPECT_EQ(bench.question(), QString()) << "not the one before";
            EXPECT_EQ(bench.solution(), QString());
            EXPECT_EQ(bench.panel(4), u"2");
            EXPECT_EQ(bench.bar().value(), 2);
        }
        EXPECT_EQ(bench.trainer.AnzahlRichtig, 1);
        EXPECT_EQ(bench.stored(1), u"2");
        EXPECT_EQ(bench.stored(3), u"3");
    }
}

TEST(Score, ClosingTheQuestionLeavesTheAnswerBefore) {
    TrainingBench bench;
    bench.openFileWith(3);
    bench.trainer.Selbsttest = true;
    const auto close = [](QDialog& form) { form.close(); };
    bench.step();
    bench.context.prompts.expectDialog("ConfirmDlg", close);
    bench.step();
    EXPECT_EQ(bench.stored(1), u"4") << "there was none";
    bench.step();
    bench.willConfirm(true);
    bench.step();
    bench.step();
    bench.context.prompts.expectDialog("ConfirmDlg", close);
    bench.step();
    EXPECT_EQ(bench.stored(3), u"2");
    EXPECT_EQ(bench.trainer.AnzahlRichtig, 2);
}

TEST(Score, AVerdictTouchesNoOtherField) {
    TrainingBench bench;
    bench.openFileWith(2);
    const auto fields = [&bench] {
        dao::Database file = dao::DBEngine::OpenDatabase(bench.filePath());
        dao::Recordset entries = file.OpenRecordset(u"SELECT * FROM Vokabular"_s);
        QHash<QString, QString> row;
        for (int field = 0; field < entries.fieldCount(); ++field)
            row[entries.fieldName(field)] = entries.field(field).toText(u"none"_s);
        return row;
    };
    QHash<QString, QString> expected = fields();
    bench.trainer.Selbsttest = true;
    bench.step();
    bench.willConfirm(false);
    bench.step();
    expected[u"Score"_s] = u"4"_s;
    EXPECT_EQ(fields(), expected);
    EXPECT_EQ(bench.list.MSFlexGrid1().Col(), Liste::ColScore);
    EXPECT_EQ(bench.list.MSFlexGrid1().Row(), 1);
}

TEST(Score, AtItsEndsItIsWrittenAllTheSame) {
    for (const bool right : {false, true}) {
        TrainingBench bench;
        bench.openFileWith(1);
        bench.list.MSFlexGrid1().setTextMatrix(1, Liste::ColScore, right ? u"1"_s : u"6"_s);
        bench.trainer.Selbsttest = true;
        bench.step();
        bench.willConfirm(right);
        bench.step();
        EXPECT_EQ(bench.stored(1), right ? u"1" : u"6") << "the file had another one";
        EXPECT_EQ(bench.score(1), bench.stored(1));
    }
}
