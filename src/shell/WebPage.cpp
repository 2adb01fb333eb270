#include "WebPage.h"

#include "Desktop.h"
#include "Globals.h"
#include "Prompts.h"
#include "SettingsStore.h"

using namespace Qt::StringLiterals;

namespace lingomat {

namespace {

QUrl urlOf(const QString& address) {
    const bool hasScheme = address.contains("://"_L1);
    return QUrl(hasScheme ? address : "https://"_L1 + address);
}

} // namespace

QString webPage(const SettingsStore& settings) {
    const QString built = uiText(QStringLiteral(LINGOMAT_WEB_DE), QStringLiteral(LINGOMAT_WEB_EN));
    return settings.GetSetting(AppName(), u"Parameters"_s, u"WebPage"_s, built);
}

void LaunchWebBrowser(const Desktop& desktop, Prompts& prompts, QWidget* parent, const QString& address) {
    if (desktop.openUrl(urlOf(address)))
        return;
    prompts.exclamation(parent,
                        uiText(u"Es konnte kein Webbrowser gestartet werden. Die Adresse lautet:\n%1"_s,
                               u"No web browser could be started. The address is:\n%1"_s)
                            .arg(address));
}

} // namespace lingomat
