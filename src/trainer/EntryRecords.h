#pragma once

#include "ExpressionText.h"
#include "LanguageFields.h"
#include "Recordset.h"

#include <QString>

namespace lingomat {

// Finding and reading entries, their synonyms and their references. A row of the list that is not in the
// database yet has the key NewEntry; as a pattern it would stand for every entry there is, so nothing here
// finds anything for it.

inline constexpr QLatin1StringView NewEntry("*");

/// Whether the last search has found a row.
[[nodiscard]] bool isFound(const dao::Recordset& recordset);

/// Goes to the entry with that key. False: there is none; the current row stays.
[[nodiscard]] bool findEntry(dao::Recordset& entries, const QString& key);

/// The criterion for the synonyms of an entry in language 1 or 2.
[[nodiscard]] QString synonymCriterion(const QString& key, int language);

/// The expression of the current entry in language 1 or 2. A part that is missing counts as empty.
[[nodiscard]] ExpressionParts entryParts(const dao::Recordset& entries, const LanguageFields& names,
                                         int language);
/// The expression of the current synonym.
[[nodiscard]] ExpressionParts synonymParts(const dao::Recordset& synonyms);

/// The entry at the other end of the current reference.
[[nodiscard]] QString otherEnd(const dao::Recordset& references, const QString& key);

} // namespace lingomat
