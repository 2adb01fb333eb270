#include "StoredDate.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lingomat {

namespace {

constexpr qsizetype DateLength = 8;
constexpr int FirstYearOfLastCentury = 91;

/// A surrogate would be cut in half by the places below; no date has one.
bool hasLengthOfDate(const QString& text) {
    return text.size() == DateLength &&
           std::none_of(text.begin(), text.end(), [](QChar character) { return character.isSurrogate(); });
}

} // namespace

QString DateToStored(const QString& text) {
    if (!hasLengthOfDate(text)) {
        return text;
    }
    const QString year = text.right(2);
    const QString century = year.toInt() < FirstYearOfLastCentury ? u"20"_s : u"19"_s;
    return century + year + text.mid(3, 2) + text.left(2);
}

QString DateToDisplay(const QString& text) {
    if (!hasLengthOfDate(text)) {
        return text;
    }
    return text.mid(6, 2) + u'.' + text.mid(4, 2) + u'.' + text.mid(2, 2);
}

QString FormatDatum(const QString& text) {
    return DateToDisplay(text);
}

QString storedDate(QDate date) {
    return date.toString(u"yyyyMMdd"_s);
}

} // namespace lingomat
