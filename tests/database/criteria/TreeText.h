#pragma once

#include "Criterion.h"
#include "Lexer.h"

#include <QString>

namespace criteria {

/// A tree in one line, every condition in brackets: `(a = #1) AND (NOT (b like 'x*'))` comes out as
/// "and(a = 1, not(b like 'x*'))".
[[nodiscard]] QString describe(const Node& tree, const LexedText& text);

/// The tree of a criterion, described; "syntax error" where it has none.
[[nodiscard]] QString parsed(const QString& criterion);

/// A statement, described; "syntax error" where the text is none.
[[nodiscard]] QString parsedSelect(const QString& statement);

} // namespace criteria
