#pragma once

#include "EqualCharacters.h"
#include "ExpressionText.h"

#include <QString>

namespace lingomat {

// How a typed answer is compared with a stored expression. The comment of an expression never counts.

/// What every comparison takes into account.
struct AnswerRules {
    const EqualCharacters& equal; ///< pairs of characters that count as the same
    bool mainOnly = false;        ///< the main part is all that is asked for
};

/// The answer as it was meant: equal characters mapped, without blanks at its ends.
[[nodiscard]] QString cleanedAnswer(const QString& typed, const EqualCharacters& equal);

/// Whether the answer is the stored expression, character by character; upper and lower case differ. The
/// answer is one that cleanedAnswer() gave.
[[nodiscard]] bool isExactAnswer(const QString& answer, const ExpressionParts& stored,
                                 const AnswerRules& rules);

/// Whether the answer is this expression when case does not count: the test for synonyms and for entries
/// that a reference leads to.
[[nodiscard]] bool isNearAnswer(const QString& answer, const ExpressionParts& candidate,
                                const AnswerRules& rules);

/// How well an expression fits a text that was searched for: 100 (the whole of it) down to 75 (its main part
/// contains the text); 0: not at all. The text is one that cleanedAnswer() gave.
[[nodiscard]] int matchValue(const QString& searched, const ExpressionParts& expression,
                             const EqualCharacters& equal);

} // namespace lingomat
