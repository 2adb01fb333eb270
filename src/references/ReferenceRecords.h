#pragma once

#include "LanguageFields.h"
#include "Recordset.h"

#include <QString>

namespace lingomat {

// Finding records of table Referenzen. A reference stands there once, in the direction of its creation, and
// counts for both of its entries.

/// A pattern of LIKE, quotes included, that stands for this text alone: wildcards and quotes in it are data.
[[nodiscard]] QString literalPattern(const QString& text);

/// The criterion for all references of an entry.
[[nodiscard]] QString referencesOf(const QString& id);

/// Makes the reference of that type between the two entries, in either direction, the current record. Types
/// that differ in case alone count as the same.
[[nodiscard]] bool findReference(dao::Recordset& references, const QString& id1, const QString& id2,
                                 const QString& type);

/// As findReference(), but of two whose types differ in case alone it is the one with exactly this text.
[[nodiscard]] bool findThisReference(dao::Recordset& references, const QString& id1, const QString& id2,
                                     const QString& type);

/// The composed expression of the current record of table Vokabular: language 1, any other number is 2.
[[nodiscard]] QString expressionOf(const dao::Recordset& entries, const LanguageFields& fields, int language);

} // namespace lingomat
