#include "ErrorTrap.h"

#include "Globals.h"

#include <new>

using namespace Qt::StringLiterals;

namespace lingomat {

namespace {

bool hasBeenReported(const dao::Error& error) {
    return error.Number() == dao::ErrorNumber::AlreadyReported;
}

} // namespace

void FehlerAusgabe(Prompts& prompts, const QString& /*message*/) {
    const QString heading = uiText(u"Es trat folgender Fehler auf: "_s, u"The following error occured: "_s);
    // This one text exists in German only.
    const QString description =
        LastErrorText.isEmpty() ? u"Es trat ein interner Fehler auf!"_s : LastErrorText;
    prompts.critical(nullptr, heading + u'\r' + description);
}

void reportError(Prompts& prompts, const QString& description) {
    LastErrorText = description;
    FehlerAusgabe(prompts, description);
}

QString currentExceptionDescription() {
    try {
        throw;
    } catch (const dao::Error& error) {
        return error.Description();
    } catch (const std::bad_alloc&) {
        return uiText(u"Zu wenig Speicher"_s, u"Out of memory"_s);
    } catch (const std::exception& exception) {
        return QString::fromUtf8(exception.what());
    } catch (...) {
        return {};
    }
}

void reportCurrentException(Prompts& prompts) {
    try {
        throw;
    } catch (const dao::Error& error) {
        if (!hasBeenReported(error))
            reportError(prompts, error.Description());
    } catch (...) {
        reportError(prompts, currentExceptionDescription());
    }
}

} // namespace lingomat
