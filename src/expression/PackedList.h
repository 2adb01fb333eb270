#pragma once

#include <QString>
#include <QStringList>

namespace lingomat {

// Several values in one text: each item is followed by a separator, ";" in cells and between forms, "@" in
// files of the old format. What stands behind the last separator is no item and is dropped.

/// "a@b@" to "a;b;".
[[nodiscard]] QString ArrayDBToListe(const QString& text);
/// "a;b;" to "a@b@".
[[nodiscard]] QString ArrayListeToDB(const QString& text);
/// Item number `index`, counted from 1, without blanks at its ends; empty where there is none.
[[nodiscard]] QString ArrayGetItes(const QString& text, int index, QChar separator);
/// All items of a text packed with ";", as they stand.
[[nodiscard]] QStringList splitPacked(const QString& text);

/// Whether an entry of the list equals the text exactly.
[[nodiscard]] bool ListContains(const QString& text, const QStringList& list);

} // namespace lingomat
