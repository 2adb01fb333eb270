#include "TrainingBench.h"

#include <gtest/gtest.h>

#include <array>

using namespace Qt::StringLiterals;
using namespace lingomat;

namespace {

constexpr std::array Orders{"Reihenfolge_sequentiell", "Reihenfolge_shuffle", "Reihenfolge_random"};

/// The order that the members say, and that the menu shows.
QString order(TrainingBench& bench) {
    const Trainer& trainer = bench.trainer;
    const bool members[]{trainer.Reihenfolge_sequentiell, trainer.Reihenfolge_shuffle,
                         trainer.Reihenfolge_random};
    QStringList found;
    for (size_t i = 0; i < Orders.size(); ++i) {
        EXPECT_EQ(bench.action(Orders[i]).isChecked(), members[i]) << Orders[i];
        if (members[i])
            found += QString::fromLatin1(Orders[i]);
    }
    return found.join(u'+');
}

struct Enabled {
    bool back;    ///< Command1, menEinsZurueck, back, menAnfangSequenz
    bool forward; ///< Command2, menEinsWeiter
    bool last;    ///< ToEnd, menEndeSequenz
};

void expectEnabled(TrainingBench& bench, const Enabled& expected) {
    for (const char* name : {"Command1", "back"})
        EXPECT_EQ(bench.button(name).isEnabled(), expected.back) << name;
    for (const char* name : {"menEinsZurueck", "menAnfangSequenz"})
        EXPECT_EQ(bench.action(name).isEnabled(), expected.back) << name;
    EXPECT_EQ(bench.button("Command2").isEnabled(), expected.forward);
    EXPECT_EQ(bench.action("menEinsWeiter").isEnabled(), expected.forward);
    EXPECT_EQ(bench.button("ToEnd").isEnabled(), expected.last);
    EXPECT_EQ(bench.action("menEndeSequenz").isEnabled(), expected.last);
    EXPECT_TRUE(bench.button("Command3").isEnabled());
    EXPECT_TRUE(bench.action("menStep").isEnabled());
}

} // namespace

TEST(Options, BeginWithTheOrderOfTheListAndLanguageOne) {
    TrainingBench bench(3);
    EXPECT_EQ(order(bench), u"Reihenfolge_sequentiell");
    EXPECT_TRUE(bench.trainer.Lang1Zuerst);
    EXPECT_TRUE(bench.action("Lang1Zuerst").isChecked());
    EXPECT_FALSE(bench.trainer.Lang2Zuerst);
    EXPECT_FALSE(bench.action("Lang2Zuerst").isChecked());
    EXPECT_FALSE(bench.trainer.Selbsttest);
}

TEST(Options, ExactlyOneOrderIsSet) {
    TrainingBench bench(3);
    for (const char* name : {"Reihenfolge_shuffle", "Reihenfolge_random", "Reihenfolge_sequentiell",
                             "Reihenfolge_random", "Reihenfolge_shuffle"}) {
        bench.choose(name);
        EXPECT_EQ(order(bench), QString::fromLatin1(name));
    }
}

TEST(Options, ShuffledAndRandomOrderRestart) {
    for (const char* name : {"Reihenfolge_shuffle", "Reihenfolge_random"}) {
        TrainingBench bench(3);
        bench.step();
        bench.choose(name);
        EXPECT_EQ(bench.trainer.Position, 0) << name;
        EXPECT_EQ(bench.question(), QString()) << name;
    }
}

TEST(Options, BackToTheOrderOfTheListTheWalkGoesOnByNumber) {
    TrainingBench bench(3);
    bench.draw({3, 1, 2});
    bench.choose("Reihenfolge_shuffle");
    bench.step();
    bench.step();
    bench.choose("Reihenfolge_sequentiell");
    EXPECT_EQ(bench.question(), u"Wort 3");
    EXPECT_EQ(bench.trainer.Position, 1);
    bench.step();
    EXPECT_EQ(bench.question(), u"Wort 2");
}

TEST(Options, InTheLoopTheOrderOfTheListRestartsToo) {
    TrainingBench bench(3);
    bench.trainer.Selbsttest = true;
    bench.trainer.Schleife = true;
    bench.choose("Reihenfolge_shuffle");
    bench.step();
    bench.choose("Reihenfolge_sequentiell");
    EXPECT_EQ(bench.trainer.Position, 0);
}

TEST(Options, RandomOrderEndsTheLoopAndSaysSo) {
    for (const auto& [language, text] :
         {std::pair{u"En"_s, u"The option 'Loop'is being deactivated in order to set option 'Random'."_s},
          std::pair{u"De"_s, u"Die Option 'Schleife' wird zur Aktivierung von 'random' zurückgesetzt."_s}}) {
        TrainingBench bench(3, language);
        bench.trainer.Schleife = true;
        bench.context.prompts.expectInformation(text);
        bench.choose("Reihenfolge_random");
        EXPECT_FALSE(bench.trainer.Schleife);
        bench.choose("Reihenfolge_random"); // nothing left to say
    }
}

TEST(Options, RandomOrderHidesTheProgressAndBlanksThePosition) {
    TrainingBench bench(3);
    bench.trainer.show();
    EXPECT_TRUE(bench.bar().isVisible());
    bench.choose("Reihenfolge_random");
    EXPECT_FALSE(bench.bar().isVisible());
    EXPECT_EQ(bench.panel(4), QString());
    bench.choose("Reihenfolge_shuffle");
    EXPECT_TRUE(bench.bar().isVisible());
    EXPECT_EQ(bench.panel(4), u"0");
}

TEST(Options, ALanguageSwapKeepsTheSession) {
    TrainingBench bench(3);
    bench.step();
    bench.step();
    bench.choose("Lang2Zuerst");
    EXPECT_TRUE(bench.trainer.Lang2Zuerst);
    EXPECT_FALSE(bench.trainer.Lang1Zuerst);
    EXPECT_EQ(bench.grid.TextMatrix(0, 0), u"English");
    EXPECT_EQ(bench.grid.TextMatrix(2, 0), u"German");
    EXPECT_EQ(bench.question(), u"word 1");
    EXPECT_EQ(bench.solution(), u"Wort 1");
    EXPECT_EQ(bench.trainer.Position, 1);
    EXPECT_EQ(bench.trainer.ZeigeLoesung, 0);
    EXPECT_TRUE(bench.action("Lang2Zuerst").isChecked());
    bench.choose("Lang1Zuerst");
    EXPECT_EQ(bench.question(), u"Wort 1");
    EXPECT_EQ(bench.grid.TextMatrix(0, 0), u"German");
}

TEST(Options, ALanguageSwapMovesTheQuestionDownUntilTheNextRendering) {
    TrainingBench bench(3);
    bench.step();
    bench.choose("Lang2Zuerst");
    EXPECT_EQ(bench.question(), QString());
    EXPECT_EQ(bench.solution(), u"Wort 1");
    EXPECT_EQ(bench.trainer.ZeigeLoesung, 1);
    bench.step();
    EXPECT_EQ(bench.question(), u"word 1");
    EXPECT_EQ(bench.solution(), u"Wort 1");
}

TEST(Options, TheLanguageThatIsOnTopAlreadyStaysThere) {
    TrainingBench bench(3);
    bench.step();
    bench.choose("Lang1Zuerst");
    EXPECT_EQ(bench.question(), u"Wort 1");
    EXPECT_TRUE(bench.action("Lang1Zuerst").isChecked());
}

TEST(Options, LanguagesOfANewlyOpenedFileAppearWhenTheWindowIsActivated) {
    TrainingBench bench(3);
    bench.context.state.Lang1Name = u"Deutsch"_s;
    bench.context.state.Lang2Name = u"Español"_s;
    bench.trainer.Form_Activate();
    EXPECT_EQ(bench.grid.TextMatrix(0, 0), u"Deutsch");
    EXPECT_EQ(bench.grid.TextMatrix(2, 0), u"Español");
    EXPECT_EQ(bench.action("Lang2Zuerst").text(), u"Español first");
}

TEST(Options, CommandsAreEnabledByPosition) {
    TrainingBench bench(3);
    expectEnabled(bench, {.back = false, .forward = true, .last = true});
    bench.step();
    expectEnabled(bench, {.back = false, .forward = true, .last = true});
    bench.button("Command2").click();
    expectEnabled(bench, {.back = true, .forward = true, .last = true});
    bench.button("back").click();
    expectEnabled(bench, {.back = false, .forward = true, .last = true});
}

TEST(Options, InRandomOrderOnlyForwardIsLeft) {
    TrainingBench bench(3);
    bench.choose("Reihenfolge_random");
    expectEnabled(bench, {.back = false, .forward = true, .last = false});
    bench.draw({3});
    bench.step();
    bench.trainer.Form_Activate();
    expectEnabled(bench, {.back = false, .forward = true, .last = false});
}

TEST(Options, InSelfTestNothingMovesByHand) {
    TrainingBench bench(3);
    bench.trainer.Selbsttest = true;
    bench.trainer.OptionsToUI();
    expectEnabled(bench, {.back = false, .forward = false, .last = false});
    bench.step();
    bench.step();
    bench.step(); // at position 2
    expectEnabled(bench, {.back = false, .forward = false, .last = false});
    bench.trainer.Selbsttest = false;
    bench.trainer.OptionsToUI();
    expectEnabled(bench, {.back = true, .forward = true, .last = true});
}

TEST(Options, BeginningStaysReachableBehindAChoice) {
    TrainingBench bench(3);
    bench.choose("Lang2Zuerst");
    ASSERT_TRUE(bench.button("Command1").isEnabled());
    bench.context.prompts.expect({.text = u"Beginning"});
    bench.button("Command1").click();
}
