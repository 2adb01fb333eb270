#pragma once

#include "Criterion.h"
#include "Lexer.h"

namespace criteria {

// Both throw SyntaxError.

/// condition { (AND|OR) condition }, NOT, brackets; conditions: = <> < <= > >=, [NOT] LIKE, IS [NOT] NULL.
[[nodiscard]] Node parseCriterion(const LexedText& text);

/// SELECT [DISTINCT] * | column {, column} FROM table {, table} [WHERE criterion]
[[nodiscard]] SelectStatement parseSelect(const LexedText& text);

} // namespace criteria
