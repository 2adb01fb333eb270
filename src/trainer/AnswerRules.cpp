#include "AnswerRules.h"

namespace lingomat {

namespace {

QString composed(const ExpressionParts& parts) {
    return generiereAusdruck(parts.prefix, parts.main, parts.suffix, {});
}

/// Each part for itself loses the blanks at its ends before the parts are put together.
ExpressionParts trimmed(const ExpressionParts& parts) {
    return {extract(parts.prefix), extract(parts.main), extract(parts.suffix), {}};
}

} // namespace

QString cleanedAnswer(const QString& typed, const EqualCharacters& equal) {
    return extract(equal.WorkInException(typed));
}

bool isExactAnswer(const QString& answer, const ExpressionParts& stored, const AnswerRules& rules) {
    // An answer has been mapped once by now. The main part is, too, so that pairs which lead on from one to
    // the next (a to b, b to c) take both sides equally far.
    const QString expected =
        rules.mainOnly ? rules.equal.WorkInException(extract(stored.main)) : composed(trimmed(stored));
    return rules.equal.WorkInException(extract(answer)) == rules.equal.WorkInException(expected);
}

bool isNearAnswer(const QString& answer, const ExpressionParts& candidate, const AnswerRules& rules) {
    const QString text = rules.mainOnly ? candidate.main : extract(composed(candidate));
    return rules.equal.WorkInException(text).toUpper() == answer.toUpper();
}

int matchValue(const QString& searched, const ExpressionParts& expression, const EqualCharacters& equal) {
    const QString whole = equal.WorkInException(extract(composed(expression)));
    const QString main = equal.WorkInException(extract(expression.main));
    if (whole == searched)
        return 100;
    const QString upperSearched = searched.toUpper();
    const QString upperWhole = whole.toUpper();
    if (upperWhole == upperSearched)
        return 95;
    if (main == searched)
        return 90;
    const QString upperMain = main.toUpper();
    if (upperMain == upperSearched)
        return 85;
    if (upperWhole.contains(upperSearched))
        return 80;
    return upperMain.contains(upperSearched) ? 75 : 0;
}

} // namespace lingomat
