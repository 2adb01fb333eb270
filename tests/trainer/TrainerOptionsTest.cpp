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
        EXPECT_EQ(bench.option(Orders[i]).isChecked(), members[i]) << Orders[i];
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
    EXPECT_TRUE(bench.option("Lang1Zuerst").isChecked());
    EXPECT_FALSE(bench.trainer.Lang2Zuerst);
    EXPECT_FALSE(bench.option("Lang2Zuerst").isChecked());
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

TEST(Options, TheProgressComesBackWithTheNextRendering) {
    TrainingBench bench(3);
    bench.trainer.show();
    bench.choose("Reihenfolge_random");
    bench.draw({2});
    bench.step();
    bench.choose("Reihenfolge_sequentiell");
    EXPECT_EQ(bench.trainer.Position, 2);
    bench.step();
    EXPECT_TRUE(bench.bar().isVisible());
    EXPECT_EQ(bench.bar().value(), 2);
    EXPECT_EQ(bench.panel(4), u"2");
}

TEST(Options, InRandomOrderThePositionStaysBlankAfterARestart) {
    TrainingBench bench(3);
    bench.choose("Reihenfolge_random");
    bench.button("Command6").click();
    EXPECT_EQ(bench.panel(4), QString());
    bench.choose("menNeustart");
    EXPECT_EQ(bench.panel(4), QString());
    bench.trainer.Command6_Click(); // as after a change of the list's rows
    EXPECT_EQ(bench.panel(4), QString());
    EXPECT_EQ(bench.panel(2), u"3");
    EXPECT_FALSE(bench.shown("ProgressBar1"));
}

TEST(Options, RandomOrderRestartsWithoutTheLoop) {
    TrainingBench bench;
    bench.openFileWith(3);
    bench.choose("Selbsttest");
    bench.choose("Schleife");
    bench.step();
    bench.context.prompts.expectInformation(ExpectedText::anything());
    bench.choose("Reihenfolge_random");
    EXPECT_EQ(bench.trainer.Position, 0);
    EXPECT_FALSE(bench.option("Schleife").isChecked());
    EXPECT_FALSE(bench.option("Schleife").isEnabled());
    for (int repeated = 0; repeated < 2; ++repeated) { // what was right comes again
        bench.draw({1});
        bench.step();
        EXPECT_EQ(bench.question(), u"Wort 1");
        bench.willConfirm(true);
        bench.step();
    }
    EXPECT_EQ(bench.trainer.SchleifeStatus(1), 1);
}

TEST(Options, InTheLoopTheOrderOfTheListRestartsEachTime) {
    TrainingBench bench;
    bench.openFileWith(3);
    bench.choose("Selbsttest");
    bench.choose("Schleife");
    for (int repeated = 0; repeated < 2; ++repeated) {
        bench.step();
        EXPECT_EQ(bench.trainer.Position, 1);
        bench.choose("Reihenfolge_sequentiell");
        EXPECT_EQ(bench.trainer.Position, 0);
    }
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
    EXPECT_TRUE(bench.option("Lang2Zuerst").isChecked());
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
    EXPECT_TRUE(bench.option("Lang1Zuerst").isChecked());
}

TEST(Options, LanguagesOfANewlyOpenedFileAppearWhenTheWindowIsActivated) {
    TrainingBench bench(3);
    bench.context.state.Lang1Name = u"Deutsch"_s;
    bench.context.state.Lang2Name = u"Español"_s;
    bench.trainer.Form_Activate();
    EXPECT_EQ(bench.grid.TextMatrix(0, 0), u"Deutsch");
    EXPECT_EQ(bench.grid.TextMatrix(2, 0), u"Español");
    EXPECT_EQ(bench.option("Lang2Zuerst").toolTip(), u"Español first");
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
    TrainingBench bench;
    bench.openFileWith(3);
    bench.trainer.Selbsttest = true;
    bench.trainer.OptionsToUI();
    expectEnabled(bench, {.back = false, .forward = false, .last = false});
    bench.step();
    bench.willConfirm(true);
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

TEST(Options, WhatExcludesWhat) {
    for (const bool selfTest : {false, true}) {
        for (const bool random : {false, true}) {
            for (const bool write : {false, true}) {
                TrainingBench bench(3);
                bench.trainer.Selbsttest = selfTest;
                bench.trainer.Reihenfolge_sequentiell = !random;
                bench.trainer.Reihenfolge_random = random;
                bench.trainer.Schreiben = write;
                bench.trainer.Schleife = true; // what they are set to does not matter
                bench.trainer.MainOnly = true;
                bench.trainer.OptionsToUI();
                for (const int always : {1, 2, 3, 5, 6, 8})
                    EXPECT_TRUE(bench.option(always).isEnabled()) << always;
                EXPECT_EQ(bench.option("Schleife").isEnabled(), selfTest && !random);
                EXPECT_EQ(bench.option("Schreiben").isEnabled(), selfTest);
                EXPECT_EQ(bench.option("FehlerBestaetigen").isEnabled(), selfTest && write);
                EXPECT_EQ(bench.option("MainOnly").isEnabled(), selfTest && write);
                EXPECT_EQ(bench.option("Selbsttest").isChecked(), selfTest);
                EXPECT_EQ(bench.option("Schreiben").isChecked(), write);
                EXPECT_TRUE(bench.option("Schleife").isChecked());
                EXPECT_TRUE(bench.option("MainOnly").isChecked());
                EXPECT_FALSE(bench.option("FehlerBestaetigen").isChecked());
            }
        }
    }
}

TEST(Options, NumbersFourAndSevenAreSeparators) {
    TrainingBench bench(3);
    EXPECT_FALSE(hasChild(bench.trainer, "Toolbar1_Button4"));
    EXPECT_FALSE(hasChild(bench.trainer, "Toolbar1_Button7"));
    EXPECT_FALSE(hasChild(bench.trainer, "Toolbar1_Button13"));
}

TEST(Options, TipsInBothLanguages) {
    const std::pair<int, std::pair<QString, QString>> tips[]{
        {1, {u"Vokabeln Sequentiell"_s, u"Vocabulary in sequential order"_s}},
        {2, {u"Vokabeln Gemischt"_s, u"Vocabulary shuffled"_s}},
        {3, {u"Zufällige Vokabelauswahl"_s, u"Vocabulary selected randomly"_s}},
        {5, {u"German zuerst"_s, u"German first"_s}},
        {6, {u"English zuerst"_s, u"English first"_s}},
        {8, {u"Vokabeltest ein/ausschalten"_s, u"Switch self-test on/off"_s}},
        {9, {u"Schleifenmodus ein/ausschalten"_s, u"Switch loop-mode on/off"_s}},
        {10, {u"Schreibmodus ein/ausschalten"_s, u"Switch write-mode on/off"_s}},
        {11, {u"Fehlerbestätigungsoption ein/ausschalten"_s, u"Switch error confirmation mode on/off"_s}},
        {12, {u"Vergleich nur mit Hauptausdruck ein/aus"_s, u"Compare with main part only on/off"_s}},
    };
    for (const QString& language : {u"En"_s, u"De"_s}) {
        TrainingBench bench(3, language);
        for (const auto& [number, tip] : tips) {
            EXPECT_EQ(bench.option(number).toolTip(), language == u"En" ? tip.second : tip.first);
            EXPECT_EQ(bench.option(number).accessibleName(), bench.option(number).toolTip());
            EXPECT_FALSE(bench.option(number).icon().isNull());
        }
    }
}

TEST(Options, WhatRestartsTheSession) {
    const auto positionAfter = [](const char* pressed, const QList<const char*>& before) {
        TrainingBench bench(3);
        for (const char* option : before)
            bench.choose(option);
        bench.button("Command2").setEnabled(true);
        bench.trainer.Command2_Click();
        bench.choose(pressed);
        return bench.trainer.Position;
    };
    EXPECT_EQ(positionAfter("Selbsttest", {}), 1);
    EXPECT_EQ(positionAfter("Selbsttest", {"Selbsttest"}), 1);
    EXPECT_EQ(positionAfter("Selbsttest", {"Selbsttest", "Schleife"}), 0);
    EXPECT_EQ(positionAfter("Schleife", {"Selbsttest"}), 0);
    EXPECT_EQ(positionAfter("Schleife", {"Selbsttest", "Schleife"}), 0);
    EXPECT_EQ(positionAfter("Schreiben", {"Selbsttest"}), 1);
    EXPECT_EQ(positionAfter("Schreiben", {"Selbsttest", "Schreiben"}), 1);
    EXPECT_EQ(positionAfter("FehlerBestaetigen", {"Selbsttest", "Schreiben"}), 1);
    EXPECT_EQ(positionAfter("MainOnly", {"Selbsttest", "Schreiben"}), 1);
    EXPECT_EQ(positionAfter("Lang2Zuerst", {}), 1);
    EXPECT_EQ(positionAfter("Reihenfolge_sequentiell", {}), 1);
    EXPECT_EQ(positionAfter("Reihenfolge_shuffle", {}), 0);
    EXPECT_EQ(positionAfter("Reihenfolge_random", {}), 0);
}

TEST(Options, SelfTestSwitchedOffTakesWhatDependsOnItAlong) {
    TrainingBench bench(3);
    for (const char* option : {"Selbsttest", "Schleife", "Schreiben", "FehlerBestaetigen", "MainOnly"}) {
        bench.choose(option);
        EXPECT_TRUE(bench.option(option).isChecked()) << option;
    }
    EXPECT_TRUE(bench.trainer.FehlerBestaetigen);
    EXPECT_TRUE(bench.trainer.MainOnly);
    bench.choose("Selbsttest");
    EXPECT_FALSE(bench.trainer.Selbsttest || bench.trainer.Schleife || bench.trainer.Schreiben ||
                 bench.trainer.FehlerBestaetigen || bench.trainer.MainOnly);
    for (const int number : {8, 9, 10, 11, 12})
        EXPECT_FALSE(bench.option(number).isChecked()) << number;
}

TEST(Options, WritingSwitchedOffTakesItsTwoAlong) {
    TrainingBench bench(3);
    for (const char* option : {"Selbsttest", "Schreiben", "FehlerBestaetigen", "MainOnly", "Schreiben"})
        bench.choose(option);
    EXPECT_TRUE(bench.trainer.Selbsttest);
    EXPECT_FALSE(bench.trainer.Schreiben || bench.trainer.FehlerBestaetigen || bench.trainer.MainOnly);
}
