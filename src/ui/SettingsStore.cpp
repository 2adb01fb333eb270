#include "SettingsStore.h"

#include "Collation.h"
#include "Globals.h"
#include "SettingsFile.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QSaveFile>
#include <QStandardPaths>
#include <QUrl>

#include <algorithm>
#include <map>
#include <stdexcept>

using namespace Qt::StringLiterals;

namespace lingomat {

namespace {

[[noreturn]] void failToSave(const QString& path, const QString& reason) {
    const QString text = uiText(u"Die Einstellungen konnten nicht gespeichert werden: "_s,
                                u"The settings could not be saved: "_s) +
                         QDir::toNativeSeparators(path) + u": "_s + reason;
    throw std::runtime_error(text.toStdString());
}

/// Tells whether a file is still the one that was read.
struct Stamp {
    bool exists = false;
    qint64 size = 0;
    QDateTime modified;

    friend bool operator==(const Stamp&, const Stamp&) = default;
};

Stamp stampOf(const QString& path) {
    const QFileInfo info(path);
    if (!info.exists())
        return {};
    return {true, info.size(), info.lastModified()};
}

/// The settings of one application, as they stand in its file.
class ApplicationFile {
public:
    explicit ApplicationFile(QString path) : m_path(std::move(path)) {}

    /// What the file holds now; another program may have written it.
    const SettingsFile& current() {
        const Stamp stamp = stampOf(m_path);
        if (!m_read || stamp != m_stamp)
            read(stamp);
        return m_settings;
    }

    void write(SettingsFile settings) {
        keepDamaged();
        QDir().mkpath(QFileInfo(m_path).path());
        QSaveFile file(m_path);
        const QByteArray text = settings.toText();
        if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size() || !file.commit())
            failToSave(m_path, file.errorString());
        m_settings = std::move(settings);
        m_stamp = stampOf(m_path);
        m_damaged = false;
        m_read = true;
    }

private:
    void read(const Stamp& stamp) {
        m_read = true;
        m_stamp = stamp;
        m_settings = {};
        m_damaged = false;
        if (!stamp.exists)
            return;
        QFile file(m_path);
        if (file.open(QIODevice::ReadOnly))
            m_settings = SettingsFile::parse(file.readAll(), &m_damaged);
        else
            m_damaged = true;
    }

    /// What could not be read must not be lost by writing over it.
    void keepDamaged() {
        static_cast<void>(current());
        if (!m_damaged)
            return;
        const QString copy = m_path + u".damaged"_s;
        QString name = copy;
        for (int n = 2; QFile::exists(name); ++n)
            name = copy + QString::number(n);
        QFile file(m_path);
        if (!file.copy(name))
            failToSave(m_path, file.errorString());
    }

    QString m_path;
    SettingsFile m_settings;
    Stamp m_stamp;
    bool m_read = false;
    bool m_damaged = false;
};

} // namespace

class SettingsStore::Private {
public:
    explicit Private(QString folder) : m_folder(std::move(folder)) {}

    const SettingsFile& settings(const QString& application) {
        const auto pending = m_pending.find(application);
        return pending != m_pending.end() ? pending->second : file(application).current();
    }

    /// `apply` tells whether it changed anything.
    template <typename Change>
    void change(const QString& application, Change&& apply) {
        SettingsFile settings = this->settings(application);
        m_pending.erase(application); // or the copy would not be the only one, and changing it slow
        const bool changed = apply(settings);
        if (m_batches > 0)
            m_pending.insert_or_assign(application, std::move(settings));
        else if (changed)
            file(application).write(std::move(settings));
    }

    void beginBatch() { ++m_batches; }

    void commitBatch() {
        if (m_batches > 1)
            return;
        for (auto& [application, settings] : m_pending)
            file(application).write(settings);
        m_pending.clear();
    }

    void endBatch(bool committed) {
        --m_batches;
        if (!committed || m_batches == 0)
            m_pending.clear();
    }

private:
    ApplicationFile& file(const QString& application) {
        const QString name = QString::fromLatin1(QUrl::toPercentEncoding(application)) + u".ini"_s;
        return m_files.try_emplace(application, QDir(m_folder).filePath(name)).first->second;
    }

    QString m_folder;
    std::map<QString, ApplicationFile> m_files;
    std::map<QString, SettingsFile> m_pending; ///< changed in a batch, not written yet
    int m_batches = 0;
};

SettingsStore::SettingsStore()
    : SettingsStore(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + u"/LMT"_s) {}

SettingsStore::SettingsStore(const QString& folder) : m_d(std::make_unique<Private>(folder)) {}

SettingsStore::~SettingsStore() = default;

QString SettingsStore::GetSetting(const QString& application, const QString& section, const QString& key,
                                  const QString& defaultValue) const {
    return m_d->settings(application).sections.value(section).value(key, defaultValue);
}

void SettingsStore::SaveSetting(const QString& application, const QString& section, const QString& key,
                                const QString& value) {
    m_d->change(application, [&](SettingsFile& settings) {
        SettingsFile::Section& values = settings.sections[section];
        if (values.contains(key) && values.value(key) == value)
            return false;
        values.insert(key, value);
        return true;
    });
}

void SettingsStore::DeleteSetting(const QString& application, const QString& section,
                                  const std::optional<QString>& key) {
    m_d->change(application, [&](SettingsFile& settings) {
        return key ? settings.removeKey(section, *key) : settings.removeSection(section);
    });
}

QList<std::pair<QString, QString>> SettingsStore::GetAllSettings(const QString& application,
                                                                 const QString& section) const {
    const SettingsFile::Section values = m_d->settings(application).sections.value(section);
    QList<std::pair<QString, QString>> all;
    all.reserve(values.size());
    for (auto entry = values.cbegin(); entry != values.cend(); ++entry)
        all.emplaceBack(entry.key(), entry.value());
    std::sort(all.begin(), all.end(),
              [](const auto& left, const auto& right) { return naturallyBefore(left.first, right.first); });
    return all;
}

SettingsStore::Batch::Batch(SettingsStore& store) : m_store(store) {
    m_store.m_d->beginBatch();
}

SettingsStore::Batch::~Batch() {
    m_store.m_d->endBatch(m_committed);
}

void SettingsStore::Batch::commit() {
    m_store.m_d->commitBatch();
    m_committed = true;
}

} // namespace lingomat
