#pragma once

namespace lingomat {

/// What is chosen in the options dialog, as far as one choice bears on another.
struct OptionChoices {
    bool random = false; ///< the order is random
    bool selfTest = false;
    bool loop = false;
    bool write = false;
    bool confirmError = false;
    bool mainOnly = false;

    friend bool operator==(const OptionChoices&, const OptionChoices&) = default;
};

/// Which of the choices that depend on others may be made. The rest always may.
struct EnabledOptions {
    bool loop = false;
    bool write = false;
    bool confirmError = false;
    bool mainOnly = false;

    friend bool operator==(const EnabledOptions&, const EnabledOptions&) = default;
};

[[nodiscard]] EnabledOptions enabledOptions(const OptionChoices& choices);

/// What the user has just changed.
enum class ChangedOption { Order, SelfTest, Loop, Other };

/// What has to be said about the loop, which does not go together with random order.
enum class LoopNote { None, Ended, Refused };

struct SettledOptions {
    OptionChoices choices;
    LoopNote note = LoopNote::None;
};

/// The choices as they stand after a change, once those that it rules out are taken back. Ending the
/// self-test takes all that depends on it along; ending the typed answers takes nothing.
[[nodiscard]] SettledOptions settled(OptionChoices choices, ChangedOption changed);

} // namespace lingomat
