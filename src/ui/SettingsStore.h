#pragma once

#include <QList>
#include <QString>

#include <memory>
#include <optional>
#include <utility>

namespace lingomat {

/// The per-user settings: application, section, key, value, all of them text, one file an application.
///
/// Sections nest at a backslash. Every other character of a section, key or value is data and survives a
/// round trip. Reading never fails: what cannot be read is not there.
class SettingsStore {
public:
    /// The user's own store, below the system's configuration folder: `LMT/`.
    SettingsStore();
    /// A store in the given folder, which is made when something is written.
    explicit SettingsStore(const QString& folder);
    ~SettingsStore();
    Q_DISABLE_COPY_MOVE(SettingsStore)

    [[nodiscard]] QString GetSetting(const QString& application, const QString& section, const QString& key,
                                     const QString& defaultValue = {}) const;
    /// Writes at once. A failure throws std::runtime_error with a text for the user (UTF-8), and the store
    /// stays what it was. A file that is damaged is copied beside itself first, as `LMT.ini.damaged`.
    void SaveSetting(const QString& application, const QString& section, const QString& key,
                     const QString& value);
    /// Deletes one key, or the whole section with everything below it. What does not exist is no error.
    void DeleteSetting(const QString& application, const QString& section,
                       const std::optional<QString>& key = {});
    /// The keys of one section (not of those below it) with their values, in natural order: I2 before I10.
    [[nodiscard]] QList<std::pair<QString, QString>> GetAllSettings(const QString& application,
                                                                    const QString& section) const;

    /// Holds writing back until commit(), which does it in one go and throws as SaveSetting does. Without a
    /// commit, all that was changed is forgotten. Batches nest: the outermost one writes, and one
    /// without a commit takes the changes of those around it along.
    class Batch {
    public:
        explicit Batch(SettingsStore& store);
        ~Batch();
        Q_DISABLE_COPY_MOVE(Batch)

        void commit();

    private:
        SettingsStore& m_store;
        bool m_committed = false;
    };

private:
    class Private;
    std::unique_ptr<Private> m_d;
};

} // namespace lingomat
