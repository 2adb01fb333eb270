#include "SystemInformation.h"

#include "Desktop.h"
#include "Globals.h"
#include "SettingsStore.h"

using namespace Qt::StringLiterals;

namespace lingomat {

namespace {

/// What desktops bring along, the most telling first.
constexpr QLatin1StringView usualPrograms[] = {"kinfocenter"_L1,
                                               "hardinfo2"_L1,
                                               "hardinfo"_L1,
                                               "mate-system-monitor"_L1,
                                               "gnome-system-monitor"_L1,
                                               "plasma-systemmonitor"_L1,
                                               "xfce4-taskmanager"_L1,
                                               "lxtask"_L1};

} // namespace

bool GetKeyValue(const SettingsStore& settings, const QString& section, const QString& key, QString& value) {
    // Two defaults that no one value can be tell a missing key from any text.
    const QString found = settings.GetSetting(AppName(), section, key, u"-"_s);
    if (found == u"-"_s && settings.GetSetting(AppName(), section, key, u"+"_s) == u"+"_s)
        return false;
    value = found;
    return true;
}

QString findSystemInformation(const SettingsStore& settings, const Desktop& desktop) {
    QString named;
    if (GetKeyValue(settings, u"SystemInformation"_s, u"Path"_s, named)) {
        if (const QString program = desktop.findProgram(named); !program.isEmpty())
            return program;
    }
    for (const QLatin1StringView name : usualPrograms) {
        if (const QString program = desktop.findProgram(name); !program.isEmpty())
            return program;
    }
    return {};
}

} // namespace lingomat
