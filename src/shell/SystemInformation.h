#pragma once

#include <QString>

namespace lingomat {

struct Desktop;
class SettingsStore;

/// Reads the value of a key of the settings store. False, with `value` as it was, where it does not exist.
[[nodiscard]] bool GetKeyValue(const SettingsStore& settings, const QString& section, const QString& key,
                               QString& value);

/// The program that shows what the machine is made of: the one that the setting "Path" of the section
/// "SystemInformation" names, by full path or by name; else the first usual one that is installed. Empty:
/// there is none.
[[nodiscard]] QString findSystemInformation(const SettingsStore& settings, const Desktop& desktop);

} // namespace lingomat
