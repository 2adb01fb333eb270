// Pairs and columns: what the dialog shares with the settings.

#include "frmOptions.h"

#include "ColumnOptions.h"
#include "ErrorTrap.h"
#include "ExceptionSettings.h"
#include "FormContext.h"
#include "PairEditor.h"
#include "SharedState.h"

#include <QCheckBox>

namespace lingomat {

void frmOptions::SetListColVisibility() {
    for (size_t column = 0; column < m_columns.size(); ++column)
        m_columns[column]->setChecked(m_context.columns.isShown(static_cast<ListColumn>(column)));
}

void frmOptions::SaveColsSettings() {
    attempt([this] { m_context.columns.save(m_context.settings); });
}

void frmOptions::PrepareExceptionsOptions() {
    EqualCharacters& exceptions = m_context.state.Exceptions;
    // A start without a database has not read them, and what is not shown here would be lost by "OK".
    if (exceptions.ExceptionCount() == 0)
        readExceptions(exceptions, m_context.settings);
    m_pairs->clear();
    for (int pair = 1; pair <= exceptions.ExceptionCount(); ++pair)
        m_pairs->enter(ReturnIteExceptionL(exceptions, pair, m_context.prompts),
                       ReturnIteExceptionR(exceptions, pair, m_context.prompts));
    if (exceptions.ExceptionCount() > 0)
        return;
    // Ten that are stored are not in force, but they are the user's.
    for (const EqualCharacters& pair : storedPairs(m_context.settings))
        m_pairs->enter(ReturnIteExceptionL(pair, 1, m_context.prompts),
                       ReturnIteExceptionR(pair, 1, m_context.prompts));
}

void frmOptions::SetExceptions() {
    try {
        saveExceptions(m_pairs->pairs(), m_context.settings);
    } catch (...) {
        // The columns go into the same file right after, and their failure is told.
    }
}

} // namespace lingomat
