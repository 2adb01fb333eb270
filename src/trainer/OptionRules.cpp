#include "OptionRules.h"

namespace lingomat {

namespace {

SettledOptions withoutLoopIfRandom(OptionChoices choices, LoopNote note) {
    if (!choices.random || !choices.loop)
        return {choices};
    choices.loop = false;
    return {choices, note};
}

} // namespace

EnabledOptions enabledOptions(const OptionChoices& choices) {
    const bool judgesTyping = choices.selfTest && choices.write;
    return {.loop = choices.selfTest && !choices.random,
            .write = choices.selfTest,
            .confirmError = judgesTyping,
            .mainOnly = judgesTyping};
}

SettledOptions settled(OptionChoices choices, ChangedOption changed) {
    switch (changed) {
    case ChangedOption::Order: return withoutLoopIfRandom(choices, LoopNote::Ended);
    case ChangedOption::Loop: return withoutLoopIfRandom(choices, LoopNote::Refused);
    case ChangedOption::SelfTest:
        if (!choices.selfTest)
            return {{.random = choices.random}};
        return withoutLoopIfRandom(choices, LoopNote::Ended);
    case ChangedOption::Other: break;
    }
    return {choices};
}

} // namespace lingomat
