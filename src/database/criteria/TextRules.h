#pragma once

#include <QStringView>
#include <QVarLengthArray>

namespace criteria {

/// A text as comparisons see it: composed (NFC), case folded, one code point an element.
/// Folding is the simple one, so that every character stays one character ("ß" is not "ss").
using ComparisonForm = QVarLengthArray<char32_t, 256>;

[[nodiscard]] ComparisonForm comparisonForm(QStringView text);

/// Negative, zero or positive. Case does not count, accents do.
[[nodiscard]] int compareText(QStringView a, QStringView b);

} // namespace criteria
