#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>

namespace lingomat {

/// The text of a settings file: sections in brackets, below each its keys with their values.
///
///     [Parameters]
///     RecentDB=/home/me/Example.lmt
///     [Queries\Example.lmt\Lesson 1\Score]
///     Min=1
///
/// A section's line holds its whole path. UTF-8; a line ends with a line feed. What would be mistaken for
/// something else is written as a percent sign and the character's number: `%3D`, or `%uD83D` for half a
/// character. The toolkit's own settings class keeps values that it failed to write, merges sections that
/// differ in case only and cannot tell that a file is damaged, so it is not used here.
class SettingsFile {
public:
    using Section = QMap<QString, QString>;

    QMap<QString, Section> sections; ///< none of them empty

    /// Takes what can be read. `damaged`, if given, tells whether that was less than everything.
    [[nodiscard]] static SettingsFile parse(const QByteArray& text, bool* damaged = nullptr);
    [[nodiscard]] QByteArray toText() const;

    /// Deletes a section and all that nest in it. False: there was nothing to delete.
    bool removeSection(const QString& path);
    bool removeKey(const QString& path, const QString& key);
};

} // namespace lingomat
