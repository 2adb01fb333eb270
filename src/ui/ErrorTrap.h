#pragma once

#include "EngineError.h"
#include "Prompts.h"

#include <utility>

namespace lingomat {

/// The one error box: critical icon, "The following error occured: ", a line break, LastErrorText (or the
/// internal-error text where that is empty). The argument is not what appears; callers store it first.
void FehlerAusgabe(Prompts& prompts, const QString& message);

/// Stores the description in LastErrorText and shows it with FehlerAusgabe.
void reportError(Prompts& prompts, const QString& description);

/// Reports what the current exception tells, passing over error 19001. For use inside `catch (...)`.
void reportCurrentException(Prompts& prompts);

/// Description of the current exception. For use inside `catch (...)`.
[[nodiscard]] QString currentExceptionDescription();

/// Runs one step under the common error trap. False when it failed (the failure has been reported then).
template <typename Step>
bool trapped(Prompts& prompts, Step&& step) {
    try {
        std::forward<Step>(step)();
        return true;
    } catch (...) {
        reportCurrentException(prompts);
        return false;
    }
}

} // namespace lingomat
