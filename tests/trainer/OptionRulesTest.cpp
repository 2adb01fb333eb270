#include "OptionRules.h"

#include <gtest/gtest.h>

#include <array>

using namespace lingomat;

namespace {

/// Every way in which the six choices can stand.
std::array<OptionChoices, 64> everyChoice() {
    std::array<OptionChoices, 64> all;
    for (size_t number = 0; number < all.size(); ++number) {
        const auto bit = [number](int place) { return (number >> place & 1U) != 0; };
        all[number] = {.random = bit(0),
                       .selfTest = bit(1),
                       .loop = bit(2),
                       .write = bit(3),
                       .confirmError = bit(4),
                       .mainOnly = bit(5)};
    }
    return all;
}

} // namespace

TEST(OptionRules, WhatMayBeChosen) {
    struct Row {
        bool selfTest, write, random;
        EnabledOptions enabled;
    };
    constexpr Row rows[]{
        {false, false, false, {}},
        {false, false, true, {}},
        {false, true, false, {}},
        {false, true, true, {}},
        {true, false, false, {.loop = true, .write = true}},
        {true, false, true, {.write = true}},
        {true, true, false, {.loop = true, .write = true, .confirmError = true, .mainOnly = true}},
        {true, true, true, {.write = true, .confirmError = true, .mainOnly = true}},
    };
    for (const OptionChoices& choices : everyChoice()) {
        for (const Row& row : rows) {
            const bool applies = row.selfTest == choices.selfTest && row.write == choices.write &&
                                 row.random == choices.random;
            if (applies) {
                EXPECT_EQ(enabledOptions(choices), row.enabled);
            }
        }
    }
}

TEST(OptionRules, RandomOrderEndsTheLoopAndSaysSo) {
    for (const OptionChoices& choices : everyChoice()) {
        const SettledOptions result = settled(choices, ChangedOption::Order);
        OptionChoices expected = choices;
        expected.loop = choices.loop && !choices.random;
        EXPECT_EQ(result.choices, expected);
        EXPECT_EQ(result.note, choices.random && choices.loop ? LoopNote::Ended : LoopNote::None);
    }
}

TEST(OptionRules, TheLoopIsRefusedInRandomOrder) {
    for (const OptionChoices& choices : everyChoice()) {
        const SettledOptions result = settled(choices, ChangedOption::Loop);
        OptionChoices expected = choices;
        expected.loop = choices.loop && !choices.random;
        EXPECT_EQ(result.choices, expected);
        EXPECT_EQ(result.note, choices.random && choices.loop ? LoopNote::Refused : LoopNote::None);
    }
}

TEST(OptionRules, TheSelfTestTakesWhatDependsOnItAlong) {
    for (const OptionChoices& choices : everyChoice()) {
        const SettledOptions result = settled(choices, ChangedOption::SelfTest);
        OptionChoices expected = choices;
        if (choices.selfTest)
            expected.loop = choices.loop && !choices.random;
        else
            expected = {.random = choices.random};
        EXPECT_EQ(result.choices, expected);
    }
}

TEST(OptionRules, WritingSwitchedOffKeepsWhatItDisables) {
    for (const OptionChoices& choices : everyChoice()) {
        const SettledOptions result = settled(choices, ChangedOption::Other);
        EXPECT_EQ(result.choices, choices);
        EXPECT_EQ(result.note, LoopNote::None);
    }
}
