#pragma once

#include <QString>

namespace lingomat {

/// "yyyymmdd" as "dd.mm.yy"; a text that is not eight characters long comes back as it is.
[[nodiscard]] QString FormatDatum(const QString& stored);

/// "a@b@" as "a;b;". What stands behind the last "@" is no item and is dropped.
[[nodiscard]] QString ArrayDBToListe(const QString& text);

/// Item number `index`, counted from 1, of a text whose items each end with the separator; without the
/// blanks at its ends. Empty where there is no such item; an unterminated tail is none.
[[nodiscard]] QString ArrayGetItes(const QString& text, int index, QChar separator);

} // namespace lingomat
