#include "Collation.h"

#include "Globals.h"

#include <algorithm>

namespace lingomat {

namespace {

bool isDigit(QChar character) {
    return character >= u'0' && character <= u'9';
}

QStringView leadingDigits(QStringView text) {
    const auto* end = std::find_if_not(text.begin(), text.end(), isDigit);
    return text.first(end - text.begin());
}

/// -1, 0 or 1 for two runs of digits of any length.
int compareNumbers(QStringView left, QStringView right) {
    const auto withoutZeros = [](QStringView digits) {
        while (digits.startsWith(u'0'))
            digits = digits.sliced(1);
        return digits;
    };
    left = withoutZeros(left);
    right = withoutZeros(right);
    if (left.size() != right.size())
        return left.size() < right.size() ? -1 : 1;
    return left.compare(right);
}

} // namespace

QCollator interfaceCollator() {
    QCollator collator(QLocale(interfaceIsEnglish() ? QLocale::English : QLocale::German));
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    return collator;
}

bool naturallyBefore(QStringView left, QStringView right) {
    const QStringView wholeLeft = left;
    const QStringView wholeRight = right;
    while (!left.isEmpty() && !right.isEmpty()) {
        const QStringView leftNumber = leadingDigits(left);
        const QStringView rightNumber = leadingDigits(right);
        if (!leftNumber.isEmpty() && !rightNumber.isEmpty()) {
            const int order = compareNumbers(leftNumber, rightNumber);
            if (order != 0)
                return order < 0;
            left = left.sliced(leftNumber.size());
            right = right.sliced(rightNumber.size());
            continue;
        }
        if (left.front() != right.front())
            return left.front() < right.front();
        left = left.sliced(1);
        right = right.sliced(1);
    }
    if (left.isEmpty() != right.isEmpty())
        return left.isEmpty();
    return wholeLeft < wholeRight; // I1 and I01
}

} // namespace lingomat
