#include "LessonRules.h"

#include <QHash>
#include <QSet>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lingomat {

namespace {

/// What follows the last separator of folders, a backslash in paths of another system; empty without one.
QString fileName(const QString& path) {
    const qsizetype separator = std::max(path.lastIndexOf(u'/'), path.lastIndexOf(u'\\'));
    return separator < 0 ? QString() : path.sliced(separator + 1);
}

} // namespace

QString lessonSection(const QString& databasePath, const QString& lesson) {
    const QString section = u"Queries\\"_s + fileName(databasePath);
    return lesson.isEmpty() ? section : section + u'\\' + lesson;
}

QString lessonKey(int number) {
    return u"I"_s + QString::number(number);
}

int lessonNumber(const QString& key) {
    const int number = key.mid(1).toInt();
    return number > 0 && key == lessonKey(number) ? number : 0;
}

int lowestFreeNumber(const QStringList& keys) {
    const QSet<QString> taken(keys.begin(), keys.end());
    int number = 1;
    while (taken.contains(lessonKey(number)))
        ++number;
    return number;
}

DividedValues chooseFrom(const QStringList& offered, const QStringList& wanted) {
    QHash<QString, QList<qsizetype>> places; // of a text among those offered, the last one first
    for (qsizetype i = offered.size() - 1; i >= 0; --i)
        places[offered[i]].append(i);

    DividedValues chosen;
    QSet<qsizetype> moved;
    for (const QString& text : wanted) {
        const auto place = places.find(text);
        if (place == places.end() || place->isEmpty())
            continue;
        moved.insert(place->takeLast());
        chosen.right.append(text);
    }
    for (qsizetype i = 0; i < offered.size(); ++i) {
        if (!moved.contains(i))
            chosen.left.append(offered[i]);
    }
    return chosen;
}

} // namespace lingomat
