#pragma once

#include <QString>
#include <QStringList>

namespace lingomat {

struct SharedState;

/// Adds the name of a reference type, without blanks at its ends, unless the list has it. Names that differ
/// in case are two.
void addReferenceType(QStringList& types, const QString& name);

/// The names of all reference types: the seven fixed ones, of which four name a language of the open
/// database, then those that its references have besides. An error ends the search for these quietly.
[[nodiscard]] QStringList referenceTypes(SharedState& state);

} // namespace lingomat
