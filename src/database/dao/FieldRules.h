#pragma once

// Private to the engine: what a field takes.

#include "EngineError.h"
#include "Schema.h"

#include <limits>

namespace dao {

/// Error 6 where the number does not fit.
template <typename Number>
void requireRange(qint64 number) {
    if (number < std::numeric_limits<Number>::min() || number > std::numeric_limits<Number>::max())
        throw Error(ErrorNumber::Overflow, QStringLiteral("Overflow"));
}

enum class EmptyTexts { AsTheFieldSays, Allowed };

/// The value as a field of that table holds it; errors 6, 3163, 3315, 3421.
[[nodiscard]] Value fitted(const QString& table, const Field& field, const Value& value,
                           EmptyTexts rule = EmptyTexts::AsTheFieldSays);

/// What a new row holds in the field; Null where it has no default.
[[nodiscard]] Value defaultValue(const QString& table, const Field& field);

} // namespace dao
