#pragma once

#include <QString>

namespace lingomat {

// The few names that are global to the program. setInterfaceLanguage fills those that depend on it.

extern QString UILanguage;    ///< "En"; anything else means German
extern QString LastErrorText; ///< description of the last error; FehlerAusgabe shows it
extern QString KeinEintrag;   ///< stands for a missing value: "<no entry>"

// The standard reference types; the last two are followed by the name of a language.
extern QString RefAbgeleitet;         ///< "Derived from"
extern QString RefGegenteil;          ///< "Opposite of"
extern QString RefSieheAuch;          ///< "See also"
extern QString RefAndereBedeutung;    ///< "Different meaning for expression in "
extern QString RefAehnlicheBedeutung; ///< "Similar meaning for expression in "

[[nodiscard]] QString ProductName(); ///< "Lingomat"
[[nodiscard]] QString VersionText(); ///< "3.1A"
[[nodiscard]] QString AppName();     ///< "LMT", the application of every setting

/// Sets UILanguage and the texts above that follow from it. Called once, at the start.
void setInterfaceLanguage(const QString& language);

[[nodiscard]] inline bool interfaceIsEnglish() {
    return UILanguage == QLatin1String("En");
}

/// The one place where a text is chosen by the interface language.
[[nodiscard]] inline QString uiText(const QString& german, const QString& english) {
    return interfaceIsEnglish() ? english : german;
}

} // namespace lingomat
