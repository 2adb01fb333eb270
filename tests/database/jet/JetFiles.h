#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QMap>
#include <QString>
#include <QStringList>

namespace lingomat {

/// What a sound file holds, told in a file of its own beside it.
struct JetTable {
    QJsonArray columns; ///< each ["name", "type"] or ["name", "Text", characters]
    QList<QJsonArray> rows;
};
struct JetContents {
    int version = 0;        ///< 3 or 4
    QJsonObject properties; ///< of table `Vokabular`
    QMap<QString, JetTable> tables;
};

/// Path of a file by its name. Those that something is wrong with are "damaged/...".
[[nodiscard]] QString jetFile(const QString& name);
[[nodiscard]] QStringList soundJetFiles();
[[nodiscard]] QStringList damagedJetFiles(); ///< with "damaged/"

[[nodiscard]] JetContents jetContents(const QString& name);

/// A row as a line of text, in which Null and the empty text differ.
[[nodiscard]] QString rowText(const QJsonArray& row);
/// The lines of all rows, sorted: rows have no order.
[[nodiscard]] QStringList rowTexts(const QList<QJsonArray>& rows);

[[nodiscard]] QByteArray jetBytes(const QString& name);

} // namespace lingomat
