#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include <memory>
#include <optional>
#include <utility>

class QSettings;

namespace lingomat {

/// The per-user settings: application, section, key, value, all of them text.
///
/// Sections nest at a backslash. Every other character of a section, key or value is data and survives a
/// round trip. Reading never fails: what cannot be read is not there.
class SettingsStore {
public:
    /// The user's own store, below the system's configuration folder: `LMT/`.
    SettingsStore();
    /// A store in the given folder.
    explicit SettingsStore(const QString& folder);
    ~SettingsStore();

    [[nodiscard]] QString GetSetting(const QString& application, const QString& section, const QString& key,
                                     const QString& defaultValue = {}) const;
    /// Writes at once. A failure throws std::runtime_error with a text for the user (UTF-8).
    void SaveSetting(const QString& application, const QString& section, const QString& key, const QString& value);
    /// Deletes one key, or the whole section with everything below it.
    void DeleteSetting(const QString& application, const QString& section, const std::optional<QString>& key = {});
    /// The keys of one section (not of those below it) with their values, in natural order: I2 before I10.
    [[nodiscard]] QList<std::pair<QString, QString>> GetAllSettings(const QString& application,
                                                                    const QString& section) const;

private:
    QString m_folder;
};

} // namespace lingomat
