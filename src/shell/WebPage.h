#pragma once

#include <QString>

class QWidget;

namespace lingomat {

struct Desktop;
class Prompts;
class SettingsStore;

/// Address of the program's page for the interface language, without a scheme: the setting "WebPage" of the
/// section "Parameters" where there is one, that of the build (LINGOMAT_WEB_EN, LINGOMAT_WEB_DE) otherwise.
[[nodiscard]] QString webPage(const SettingsStore& settings);

/// Shows an address in the user's browser, by https where it names no scheme. Where there is no browser, the
/// user is told the address.
void LaunchWebBrowser(const Desktop& desktop, Prompts& prompts, QWidget* parent, const QString& address);

} // namespace lingomat
