#pragma once

#include "CDBHandler.h"
#include "EqualCharacters.h"
#include "LanguageFields.h"

#include <QString>

namespace lingomat {

/// What all forms read and write: the public variables of the main form. Application owns the one object.
struct SharedState : LanguageFields {
    explicit SharedState(CDBHandler::ErrorReporter reportError);

    QString CurrentDBPath;       ///< full path of the open database; empty: none is open
    QString MarkePath;           ///< picture that marks the current row of a grid
    bool DBIsEmpty = false;      ///< the database has no entries
    bool DBChanged = false;      ///< another file was just opened or created; ConditionToUI clears it
    bool SelectionValid = false; ///< list and Trainer have something to show
    bool FormIsLoading = false;  ///< the main form's Form_Load is under way
    QString ActiveFieldName;     ///< input control of the selection form that last had the focus
    EqualCharacters Exceptions;  ///< pairs of characters that count as equal
    CDBHandler DBHandler;

    [[nodiscard]] bool databaseIsOpen() const { return !CurrentDBPath.isEmpty(); }
};

} // namespace lingomat
