#pragma once

#include <QString>
#include <QStringList>

#include <utility>

namespace lingomat {

// What a lesson is called in the settings, and what it makes of the lists.

inline constexpr int LessonNameSize = 100; ///< longest name, in UTF-16 units

/// The section of a lesson: `Queries\` and the file name of the database, then the lesson's name, which may
/// nest further at its backslashes. Without a name it is the section that the lessons of the file share.
[[nodiscard]] QString lessonSection(const QString& databasePath, const QString& lesson);

/// The key under which the lesson of that number stands: "I" and the number.
[[nodiscard]] QString lessonKey(int number);
/// The number in such a key; 0 for any other text.
[[nodiscard]] int lessonNumber(const QString& key);
/// The lowest number from 1 whose key is not among these.
[[nodiscard]] int lowestFreeNumber(const QStringList& keys);

struct DividedValues {
    QStringList left;  ///< still to be had, in the order in which they were offered
    QStringList right; ///< chosen, in the order of choosing

    friend bool operator==(const DividedValues&, const DividedValues&) = default;
};

/// Moves values over one after the other, each time the first that is left of that text. One that is not
/// offered, or not any more, is dropped.
[[nodiscard]] DividedValues chooseFrom(const QStringList& offered, const QStringList& wanted);

} // namespace lingomat
