#include "CDBCreator.h"
#include "TrainingBench.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace lingomat;

TEST(Walk, AFreshSessionShowsTheLanguagesAndNothingElse) {
    TrainingBench bench(3);
    EXPECT_EQ(bench.question(), QString());
    EXPECT_EQ(bench.solution(), QString());
    EXPECT_EQ(bench.grid.TextMatrix(0, 0), u"German");
    EXPECT_EQ(bench.grid.TextMatrix(2, 0), u"English");
    EXPECT_EQ(bench.panel(2), u"3");
    EXPECT_EQ(bench.panel(4), u"0");
    EXPECT_EQ(bench.bar().minimum(), 0);
    EXPECT_EQ(bench.bar().maximum(), 3);
    EXPECT_EQ(bench.bar().value(), 0);
    EXPECT_EQ(bench.trainer.Position, 0);
    EXPECT_EQ(bench.trainer.ZeigeLoesung, 0);
}

TEST(Walk, AStepAlternatesQuestionAndSolution) {
    TrainingBench bench(2);
    bench.step();
    EXPECT_EQ(bench.question(), u"Wort 1");
    EXPECT_EQ(bench.solution(), QString());
    EXPECT_EQ(bench.panel(4), u"1");
    EXPECT_EQ(bench.bar().value(), 1);
    bench.step();
    EXPECT_EQ(bench.question(), u"Wort 1");
    EXPECT_EQ(bench.solution(), u"word 1");
    EXPECT_EQ(bench.bar().value(), 1);
    bench.step();
    EXPECT_EQ(bench.question(), u"Wort 2");
    EXPECT_EQ(bench.solution(), QString());
    EXPECT_EQ(bench.panel(4), u"2");
}

TEST(Walk, TheStepButtonAndItsMenuEntryAreTheStep) {
    TrainingBench bench(2);
    bench.button("Command3").click();
    EXPECT_EQ(bench.question(), u"Wort 1");
    bench.choose("menStep");
    EXPECT_EQ(bench.solution(), u"word 1");
}

TEST(Walk, PastTheEndTheLastEntryStaysWithItsSolution) {
    TrainingBench bench(2);
    for (int i = 0; i < 4; ++i)
        bench.step();
    for (int repeated = 0; repeated < 2; ++repeated) {
        bench.expectEnd();
        bench.step();
        EXPECT_TRUE(bench.context.prompts.isFinished());
        EXPECT_EQ(bench.trainer.Position, 2);
        EXPECT_EQ(bench.question(), u"Wort 2");
        EXPECT_EQ(bench.solution(), u"word 2");
        EXPECT_EQ(bench.panel(4), u"2");
    }
}

TEST(Walk, TheEndIsToldInGerman) {
    TrainingBench bench(1, u"De"_s);
    bench.step();
    bench.step();
    bench.context.prompts.expect({.text = u"Die Sequenz ist beendet."});
    bench.step();
}

TEST(Walk, AnEmptySessionEndsAtItsFirstStep) {
    TrainingBench bench(0);
    EXPECT_EQ(bench.panel(2), u"0");
    EXPECT_EQ(bench.bar().maximum(), 1);
    bench.expectEnd();
    bench.step();
    EXPECT_EQ(bench.trainer.Position, 0);
    EXPECT_EQ(bench.question(), QString());
}

TEST(Walk, ThePlaceholderOfAnEmptyListIsNoEntry) {
    TrainingBench bench(1);
    EXPECT_EQ(bench.panel(2), u"1");
    bench.list.LoescheListe();
    ASSERT_EQ(bench.list.MSFlexGrid1().Rows(), 2);
    bench.trainer.Command6_Click();
    EXPECT_EQ(bench.trainer.AnzahlEintraege, 0);
    EXPECT_EQ(bench.panel(2), u"0");
    bench.expectEnd();
    bench.step();
    bench.trainer.ToEnd_Click();
    EXPECT_EQ(bench.trainer.Position, 0);
    bench.choose("Reihenfolge_random");
    bench.expectEnd();
    bench.step();
    bench.context.prompts.expectErrorContaining(u"ubscript"_s);
    bench.trainer.Command2_Click();
    EXPECT_EQ(bench.panel(2), u"0");
}

TEST(Walk, RestartForgetsWhereTheSessionStood) {
    TrainingBench bench(3);
    bench.step();
    bench.step();
    bench.step();
    bench.trainer.AnzahlRichtig = 2;
    bench.trainer.RundenPosition = 2;
    bench.button("Command6").click();
    EXPECT_EQ(bench.trainer.Position, 0);
    EXPECT_EQ(bench.trainer.ZeigeLoesung, 0);
    EXPECT_EQ(bench.trainer.AnzahlRichtig, 0);
    EXPECT_EQ(bench.trainer.RundenPosition, 0);
    EXPECT_EQ(bench.question(), QString());
    EXPECT_EQ(bench.panel(4), u"0");
    bench.step();
    EXPECT_EQ(bench.question(), u"Wort 1");
}

TEST(Walk, RestartTakesTheRowsOfTheMoment) {
    TrainingBench bench(3);
    bench.list.MSFlexGrid1().AddItem(u"\t4\tWort 4\tword 4"_s);
    EXPECT_EQ(bench.trainer.AnzahlEintraege, 3);
    bench.choose("menNeustart");
    EXPECT_EQ(bench.trainer.AnzahlEintraege, 4);
    EXPECT_EQ(bench.panel(2), u"4");
    EXPECT_EQ(bench.bar().maximum(), 4);
}

TEST(Walk, WhatIsShownIsTheCurrentRowOfTheList) {
    TrainingBench bench(3);
    bench.step();
    bench.step();
    bench.step();
    EXPECT_EQ(bench.list.MSFlexGrid1().Row(), 2);
    EXPECT_EQ(bench.grid.Row(), 1);
    EXPECT_EQ(bench.grid.Col(), 0);
}

TEST(Walk, ShuffledOrderFollowsThePermutation) {
    TrainingBench bench(3);
    bench.draw({3, 3, 1, 2});
    bench.choose("Reihenfolge_shuffle");
    EXPECT_EQ(bench.context.random.drawn(), 4);
    for (const int entry : {3, 1, 2}) {
        bench.step();
        EXPECT_EQ(bench.question(), u"Wort %1"_s.arg(entry));
        bench.step();
        EXPECT_EQ(bench.solution(), u"word %1"_s.arg(entry));
    }
    EXPECT_EQ(bench.panel(4), u"3");
    EXPECT_EQ(bench.trainer.returnSequenz(2), 1);
    EXPECT_EQ(bench.trainer.AktuelleZeile(), 2);
    bench.expectEnd();
    bench.step();
}

TEST(Walk, EveryRestartShufflesAnew) {
    TrainingBench bench(2);
    bench.draw({2, 1});
    bench.choose("Reihenfolge_shuffle");
    EXPECT_EQ(bench.context.random.reseeds(), 1);
    bench.draw({1, 2});
    bench.button("Command6").click();
    EXPECT_EQ(bench.context.random.reseeds(), 2);
    bench.step();
    EXPECT_EQ(bench.question(), u"Wort 1");
}

TEST(Walk, AnEmptySessionShufflesNothing) {
    TrainingBench bench(0);
    bench.draw({});
    bench.choose("Reihenfolge_shuffle");
    bench.expectEnd();
    bench.step();
}

TEST(Walk, ShufflingShowsItsProgress) {
    for (const auto& [language, title] : {std::pair{u"En"_s, u"Shuffeling vocabulary ..."_s},
                                          std::pair{u"De"_s, u"Vokabeln werden gemischt"_s}}) {
        TrainingBench bench(5, language);
        bench.choose("Reihenfolge_shuffle");
        EXPECT_EQ(bench.context.progress.windowTitle(), title);
        EXPECT_EQ(bench.context.progress.maximum(), 5);
        EXPECT_EQ(bench.context.progress.value(), 5);
        EXPECT_FALSE(bench.context.progress.isVisible());
    }
}

TEST(Walk, AFailureOfTheShuffleLeavesNoProgressWindowBehind) {
    TrainingBench bench(2);
    bench.draw({1}); // one number is not enough for two entries
    bench.context.prompts.expectErrorContaining(u"random"_s);
    bench.choose("Reihenfolge_shuffle");
    EXPECT_FALSE(bench.context.progress.isVisible());
}

TEST(Walk, RandomOrderDrawsARowAtEachQuestionAndNeverEnds) {
    TrainingBench bench(3);
    bench.choose("Reihenfolge_random");
    const int reseeds = bench.context.random.reseeds();
    bench.draw({2, 2, 3, 1, 3});
    for (const int entry : {2, 2, 3, 1, 3}) {
        bench.step();
        EXPECT_EQ(bench.question(), u"Wort %1"_s.arg(entry));
        EXPECT_EQ(bench.solution(), QString());
        bench.step();
        EXPECT_EQ(bench.question(), u"Wort %1"_s.arg(entry));
        EXPECT_EQ(bench.solution(), u"word %1"_s.arg(entry));
    }
    EXPECT_EQ(bench.context.random.reseeds(), reseeds + 5);
    EXPECT_EQ(bench.trainer.AnzahlRichtig, 0);
    EXPECT_EQ(bench.bar().value(), 0);
    EXPECT_EQ(bench.panel(4), QString());
}

TEST(Walk, LanguageTwoOnTopIsAskedFirst) {
    TrainingBench bench(2);
    bench.choose("Lang2Zuerst");
    bench.step();
    EXPECT_EQ(bench.question(), u"word 1");
    bench.step();
    EXPECT_EQ(bench.solution(), u"Wort 1");
}

TEST(Navigation, ShowsTheWholeEntryAtOnce) {
    TrainingBench bench(4);
    const struct {
        const char* button;
        int entry;
    } moves[] = {{"Command2", 1}, {"Command2", 2}, {"ToEnd", 4}, {"Command1", 3}, {"back", 1}};
    for (const auto& [button, entry] : moves) {
        SCOPED_TRACE(button);
        bench.button(button).click();
        EXPECT_EQ(bench.trainer.Position, entry);
        EXPECT_EQ(bench.trainer.ZeigeLoesung, 1);
        EXPECT_EQ(bench.question(), u"Wort %1"_s.arg(entry));
        EXPECT_EQ(bench.solution(), u"word %1"_s.arg(entry));
        EXPECT_EQ(bench.panel(4), QString::number(entry));
        EXPECT_EQ(bench.bar().value(), entry);
    }
}

TEST(Navigation, TheMenuEntriesDoTheSame) {
    TrainingBench bench(4);
    const struct {
        const char* entry;
        int position;
    } moves[] = {{"menEinsWeiter", 1}, {"menEndeSequenz", 4}, {"menEinsZurueck", 3}, {"menAnfangSequenz", 1}};
    for (const auto& [entry, position] : moves) {
        bench.choose(entry);
        EXPECT_EQ(bench.trainer.Position, position) << entry;
    }
}

TEST(Navigation, FollowsTheShuffledOrder) {
    TrainingBench bench(3);
    bench.draw({3, 1, 2});
    bench.choose("Reihenfolge_shuffle");
    bench.button("ToEnd").click();
    EXPECT_EQ(bench.question(), u"Wort 2");
    bench.button("Command1").click();
    EXPECT_EQ(bench.question(), u"Wort 1");
    bench.button("back").click();
    EXPECT_EQ(bench.question(), u"Wort 3");
    EXPECT_EQ(bench.panel(4), u"1");
}

TEST(Navigation, TheNextStepAfterItShowsTheSameEntryAndThenGoesOn) {
    TrainingBench bench(3);
    bench.button("Command2").click();
    bench.step();
    EXPECT_EQ(bench.question(), u"Wort 1");
    EXPECT_EQ(bench.solution(), u"word 1");
    bench.step();
    EXPECT_EQ(bench.question(), u"Wort 2");
    EXPECT_EQ(bench.solution(), QString());
}

TEST(Navigation, ForwardPastTheEndStays) {
    TrainingBench bench(2);
    bench.button("ToEnd").click();
    for (int repeated = 0; repeated < 2; ++repeated) {
        bench.expectEnd();
        bench.button("Command2").click();
        EXPECT_EQ(bench.trainer.Position, 2);
        EXPECT_EQ(bench.question(), u"Wort 2");
    }
}

TEST(Navigation, BackBeforeTheBeginningIsToldInEnglishInBothLanguages) {
    for (const QString& language : {u"En"_s, u"De"_s}) {
        TrainingBench bench(2, language);
        for (const int from : {0, 1}) {
            bench.trainer.Position = static_cast<qint16>(from);
            bench.context.prompts.expect({.text = u"Beginning"});
            bench.trainer.Command1_Click();
            EXPECT_EQ(bench.trainer.Position, 1);
        }
        EXPECT_EQ(bench.question(), QString()); // out of range nothing is shown
    }
}

TEST(Navigation, InAnEmptySessionNothingIsShown) {
    TrainingBench bench(0);
    bench.trainer.back_Click();
    EXPECT_EQ(bench.trainer.Position, 1);
    bench.trainer.ToEnd_Click();
    EXPECT_EQ(bench.trainer.Position, 0);
    bench.expectEnd();
    bench.trainer.Command2_Click();
    EXPECT_EQ(bench.trainer.Position, 0);
    bench.context.prompts.expect({.text = u"Beginning"});
    bench.trainer.Command1_Click();
    EXPECT_EQ(bench.question(), QString());
}

TEST(Navigation, AlwaysShowsTheArrowsOfTheSynonyms) {
    struct Move {
        void (Trainer::*act)();
        const char16_t* text; // of the message where there is no entry
    };
    for (const Move& move : {Move{&Trainer::back_Click, nullptr}, Move{&Trainer::ToEnd_Click, nullptr},
                             Move{&Trainer::Command1_Click, u"Beginning"},
                             Move{&Trainer::Command2_Click, u"End of sequence."}}) {
        for (const int entries : {0, 3}) {
            TrainingBench bench(entries);
            bench.trainer.Position = 2;
            if (entries == 0)
                bench.trainer.Position = 0;
            if (entries == 0 && move.text)
                bench.context.prompts.expect({.text = move.text});
            ASSERT_FALSE(bench.shown("UpDown1"));
            (bench.trainer.*move.act)();
            EXPECT_TRUE(bench.shown("UpDown1"));
            EXPECT_TRUE(bench.shown("UpDown2"));
        }
    }
}

TEST(Navigation, InRandomOrderAnEmptySessionHasNothingToDraw) {
    TrainingBench bench(0);
    bench.choose("Reihenfolge_random");
    bench.expectEnd();
    bench.step();
    EXPECT_EQ(bench.trainer.Position, 0);
    bench.context.prompts.expectErrorContaining(u"ubscript"_s);
    bench.trainer.Command2_Click();
    EXPECT_EQ(bench.question(), QString());
    EXPECT_EQ(bench.trainer.Position, 0);
}

TEST(Navigation, InRandomOrderForwardDrawsAndStaysWhereItIs) {
    TrainingBench bench(3);
    bench.choose("Reihenfolge_random");
    bench.draw({2, 3, 1});
    bench.step();
    bench.button("Command2").click();
    EXPECT_EQ(bench.trainer.Position, 2);
    EXPECT_EQ(bench.question(), u"Wort 3");
    EXPECT_EQ(bench.solution(), u"word 3");
    bench.button("Command2").click();
    EXPECT_EQ(bench.question(), u"Wort 1");
    EXPECT_EQ(bench.bar().value(), 0);
}

TEST(Records, AnEntryIsFoundByItsID) {
    TrainingBench bench(1);
    SharedState& state = bench.context.state;
    CDBCreator creator(
        {[](const QString&) {}, [](const QString& text) { ADD_FAILURE() << text.toStdString(); }, [] {}});
    state.DBHandler.Database = creator.CreateNewDatabase(bench.context.path(u"words.lmt"_s), true, state);
    ASSERT_TRUE(state.DBHandler.OpenAllRecordsets());
    dao::Recordset& vokabular = state.DBHandler.RecordsetVokabular;
    QStringList ids;
    for (const QString& word : {u"Hund"_s, u"Katze"_s}) {
        vokabular.AddNew();
        for (const QString& field : {state.Lang1PrefixField, state.Lang1SuffixField,
                                     state.Lang1KommentarField, state.Lang2PrefixField, state.Lang2MainField,
                                     state.Lang2SuffixField, state.Lang2KommentarField})
            vokabular.setField(field, QString());
        vokabular.setField(state.Lang1MainField, word);
        vokabular.Update();
        vokabular.setBookmark(vokabular.LastModified());
        ids += vokabular.field(u"ID"_s).toText();
    }
    EXPECT_TRUE(bench.trainer.PositioniereRecord(ids.at(0)));
    EXPECT_EQ(vokabular.field(state.Lang1MainField).toText(), u"Hund");
    EXPECT_TRUE(bench.trainer.PositioniereRecord(ids.at(1)));
    EXPECT_EQ(vokabular.field(state.Lang1MainField).toText(), u"Katze");
    EXPECT_FALSE(bench.trainer.PositioniereRecord(u"30000"_s));
    EXPECT_FALSE(bench.trainer.PositioniereRecord(u"*no such*"_s));
}

TEST(Failures, ARowThatIsGoneIsReportedAndTheWalkGoesOn) {
    TrainingBench bench(3);
    bench.draw({3, 1, 2});
    bench.choose("Reihenfolge_shuffle");
    bench.list.MSFlexGrid1().RemoveItem(3);
    bench.context.prompts.expectErrorContaining(u"ubscript"_s);
    bench.step();
    EXPECT_EQ(bench.trainer.ZeigeLoesung, 1);
    EXPECT_EQ(bench.trainer.Position, 1);
}

TEST(Failures, APositionBeyondThePermutationIsReported) {
    TrainingBench bench(1);
    bench.choose("Reihenfolge_shuffle");
    bench.list.MSFlexGrid1().AddItem(u"\t2\tWort 2\tword 2"_s);
    bench.step();
    bench.step();
    bench.context.prompts.expectError(u"Subscript out of range"_s);
    bench.step();
}

TEST(Failures, APositionBeyond16BitsIsAnOverflow) {
    TrainingBench bench(2);
    bench.trainer.Position = 32767;
    bench.context.prompts.expectError(u"Overflow"_s);
    bench.expectEnd();
    bench.step();
}

TEST(Failures, TooManyRowsForA16BitSessionAreReported) {
    TrainingBench bench(2);
    bench.list.MSFlexGrid1().setRows(32769);
    bench.context.prompts.expectError(u"Overflow"_s);
    bench.trainer.Command6_Click();
    EXPECT_EQ(bench.trainer.AnzahlEintraege, 2);
}
