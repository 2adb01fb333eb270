#include "GreyOut.h"

namespace lingomat {

EnabledCommands enabledCommands(const SessionState& session) {
    if (!session.databaseIsOpen)
        return {};
    if (session.databaseIsEmpty)
        return {.view = true, .selection = false, .list = true, .trainer = false, .print = false};
    return {.view = true,
            .selection = true,
            .list = session.selectionValid,
            .trainer = session.selectionValid,
            .print = session.selectionValid};
}

} // namespace lingomat
