#include "SharedState.h"

#include "Globals.h"

using namespace Qt::StringLiterals;

namespace lingomat {

SharedState::SharedState(CDBHandler::ErrorReporter reportError)
    : DBHandler(std::move(reportError), [] {
          return uiText(u"Synonym nicht in Datenbank gefunden!"_s, u"Synonym not found in database!"_s);
      }) {}

} // namespace lingomat
