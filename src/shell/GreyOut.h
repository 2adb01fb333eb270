#pragma once

namespace lingomat {

/// What decides over the commands of the main window.
struct SessionState {
    bool databaseIsOpen = false;
    bool databaseIsEmpty = false;
    bool selectionValid = false;
};

/// Which commands of the main window can be used.
struct EnabledCommands {
    bool view = false; ///< the menu that holds the three below
    bool selection = false;
    bool list = false;
    bool trainer = false;
    bool print = false;

    friend bool operator==(const EnabledCommands&, const EnabledCommands&) = default;
};

/// An empty database offers only the list, in which the first entries are typed; one with entries needs a
/// selection before there is something to show.
[[nodiscard]] EnabledCommands enabledCommands(const SessionState& session);

} // namespace lingomat
