#include "TrainingBench.h"
#include "TrainingWalk.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace lingomat;

namespace {

/// A session in loop mode.
struct LoopBench : TrainingBench {
    explicit LoopBench(int entries) {
        openFileWith(entries);
        trainer.Selbsttest = true;
        trainer.Schleife = true;
        trainer.Command6_Click();
    }

    void ask(int entry) {
        step();
        EXPECT_EQ(question(), u"Wort %1"_s.arg(entry));
        EXPECT_EQ(solution(), QString());
    }

    void answer(bool isRight) {
        willConfirm(isRight);
        step();
        EXPECT_NE(solution(), QString());
    }
};

} // namespace

TEST(Loop, SecondRoundAsksOnlyWhatWasWrong) {
    LoopBench bench(3);
    for (const int entry : {1, 2, 3}) {
        bench.ask(entry);
        EXPECT_EQ(bench.panel(2), u"3");
        EXPECT_EQ(bench.panel(4), QString::number(entry));
        EXPECT_EQ(bench.bar().value(), entry);
        bench.answer(entry != 2);
    }
    bench.ask(2);
    EXPECT_EQ(bench.panel(2), u"1");
    EXPECT_EQ(bench.panel(4), u"1");
    EXPECT_EQ(bench.bar().maximum(), 1);
    EXPECT_EQ(bench.bar().value(), 1);
    bench.answer(true);
    bench.expectEnd();
    bench.step();
    EXPECT_EQ(bench.panel(2), u"1"); // keeps its last count
    EXPECT_EQ(bench.solution(), u"word 2");
}

TEST(Loop, TheEndIsToldAgainAtEveryFurtherStep) {
    LoopBench bench(2);
    bench.ask(1);
    bench.answer(true);
    bench.ask(2);
    bench.answer(true);
    for (int repeated = 0; repeated < 5; ++repeated) {
        bench.expectEnd();
        bench.step();
        EXPECT_TRUE(bench.context.prompts.isFinished());
    }
}

TEST(Loop, EachRoundShrinksToWhatIsLeft) {
    LoopBench bench(4);
    for (const int entry : {1, 2, 3, 4}) {
        bench.ask(entry);
        bench.answer(entry == 1);
    }
    for (const int entry : {2, 3, 4}) {
        bench.ask(entry);
        EXPECT_EQ(bench.panel(2), u"3");
        EXPECT_EQ(bench.panel(4), QString::number(entry - 1));
        bench.answer(entry == 3);
    }
    bench.ask(2);
    EXPECT_EQ(bench.panel(2), u"2");
    EXPECT_EQ(bench.bar().maximum(), 2);
    EXPECT_EQ(bench.panel(4), u"1");
}

TEST(Loop, RunsOverTheShuffledOrder) {
    LoopBench bench(3);
    bench.draw({2, 3, 1});
    bench.choose("Reihenfolge_shuffle");
    for (const int entry : {2, 3, 1}) {
        bench.ask(entry);
        bench.answer(entry != 3);
    }
    bench.ask(3);
    EXPECT_EQ(bench.trainer.Position, 2);
}

TEST(Loop, WithoutSelfTestThereIsNone) {
    TrainingBench bench(2);
    bench.trainer.Schleife = true;
    bench.trainer.Command6_Click();
    for (int i = 0; i < 4; ++i)
        bench.step();
    EXPECT_EQ(bench.panel(4), u"2");
    bench.expectEnd();
    bench.step();
}

TEST(Loop, AnEmptySessionReportsTheMissingArrayAndEnds) {
    LoopBench bench(0);
    bench.context.prompts.expectError(u"Subscript out of range"_s);
    bench.expectEnd();
    bench.step();
    EXPECT_EQ(bench.trainer.Position, 0);
}

TEST(Loop, RestartOpensEveryEntryAgain) {
    LoopBench bench(2);
    bench.ask(1);
    bench.answer(true);
    bench.trainer.Command6_Click();
    EXPECT_EQ(bench.trainer.SchleifeStatus, openLoop(2));
    bench.ask(1);
}

TEST(Loop, RestartOfAnEmptySessionLeavesTheArrayAsItWas) {
    LoopBench bench(2);
    bench.setEntries(0);
    EXPECT_EQ(bench.trainer.SchleifeStatus.size(), 2);
}

TEST(Loop, AfterAnEmptyRestartTheOldArrayIsGoneThrough) {
    LoopBench bench(2);
    bench.ask(1);
    bench.answer(true);
    bench.trainer.SchleifeStatus(1) = LoopEntryDone;
    bench.setEntries(0);
    for (int repeated = 0; repeated < 2; ++repeated) {
        bench.expectEnd(); // entry 2 is open, and has no row
        bench.step();
        EXPECT_EQ(bench.trainer.Position, 1);
    }
    bench.trainer.SchleifeStatus(2) = LoopEntryDone;
    bench.context.prompts.expectError(u"Subscript out of range"_s);
    bench.expectEnd();
    bench.step();
}

TEST(Loop, OfOneEntryAsksItUntilItIsRight) {
    LoopBench bench(1);
    for (const bool right : {false, false, true}) {
        bench.ask(1);
        EXPECT_EQ(bench.panel(2), u"1");
        EXPECT_EQ(bench.panel(4), u"1");
        bench.answer(right);
    }
    EXPECT_EQ(bench.stored(1), u"4") << "up twice, down once";
    bench.expectEnd();
    bench.step();
}

TEST(Loop, WaivedErrorsLeadToItsEnd) {
    LoopBench bench(2);
    bench.trainer.Schreiben = true;
    bench.trainer.FehlerBestaetigen = true;
    const auto answer = [&bench](bool isError) {
        bench.willType(u"mouse"_s);
        bench.context.prompts.expectDialog("ConfirmForm", [isError](QDialog& form) {
            child<QPushButton>(form, isError ? "Ja" : "Nein").click();
        });
        bench.step();
    };
    answer(false);
    answer(true);
    EXPECT_EQ(bench.question(), u"Wort 2");
    answer(false);
    EXPECT_EQ(bench.question(), u"Wort 2") << "the only one left";
    EXPECT_EQ(bench.trainer.AnzahlRichtig, 2);
    bench.expectEnd();
    bench.step();
    EXPECT_EQ(bench.stored(1), u"2");
    EXPECT_EQ(bench.stored(2), u"3");
}
