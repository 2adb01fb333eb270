#include "TextRules.h"

#include <QString>

#include <algorithm>

namespace criteria {

namespace {

// Below U+0300 no character composes with another, so such a text is in composed form as it stands.
constexpr char16_t FirstCombining = 0x0300;

bool isComposed(QStringView text) {
    return std::all_of(text.begin(), text.end(), [](QChar c) { return c.unicode() < FirstCombining; });
}

void appendFolded(ComparisonForm& result, QStringView text) {
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar unit = text[i];
        char32_t codePoint = unit.unicode();
        if (unit.isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate())
            codePoint = QChar::surrogateToUcs4(unit, text[++i]);
        result.append(QChar::toCaseFolded(codePoint));
    }
}

} // namespace

ComparisonForm comparisonForm(QStringView text) {
    ComparisonForm result;
    result.reserve(text.size());
    if (isComposed(text))
        appendFolded(result, text);
    else
        appendFolded(result, text.toString().normalized(QString::NormalizationForm_C));
    return result;
}

int compareText(QStringView a, QStringView b) {
    const ComparisonForm left = comparisonForm(a);
    const ComparisonForm right = comparisonForm(b);
    const auto order =
        std::lexicographical_compare_three_way(left.begin(), left.end(), right.begin(), right.end());
    return order < 0 ? -1 : order > 0 ? 1 : 0;
}

} // namespace criteria
