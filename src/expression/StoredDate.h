#pragma once

#include <QDate>
#include <QString>

namespace lingomat {

// A date is stored as "yyyymmdd" and shown as "dd.mm.yy". The conversions look at nothing but the length: a
// text that is not eight characters long comes back as it is.

/// "31.12.99" to "19991231". Years below 91 belong to this century, the others to the last.
[[nodiscard]] QString DateToStored(const QString& text);
/// "19991231" to "31.12.99".
[[nodiscard]] QString DateToDisplay(const QString& text);
/// The same, by the name under which the list calls it.
[[nodiscard]] QString FormatDatum(const QString& text);

/// The stored form of a date; empty for an invalid one.
[[nodiscard]] QString storedDate(QDate date);

} // namespace lingomat
