#include "DateRules.h"

#include <array>

using namespace Qt::StringLiterals;

namespace lingomat {

namespace {

constexpr std::array partsByWeight{&DateParts::year, &DateParts::month, &DateParts::day};

/// Brings every part that counts on the right side of its limit, the heaviest first.
template <typename Beyond>
int bringWithin(DateParts& date, const DateParts& limit, Beyond beyond) {
    int corrections = 0;
    for (const auto part : partsByWeight) {
        if (beyond(date.*part, limit.*part)) {
            date.*part = limit.*part;
            ++corrections;
        }
        if (date.*part != limit.*part)
            break;
    }
    return corrections;
}

} // namespace

DateParts splitDate(const QString& stored) {
    return {.day = stored.mid(6, 2), .month = stored.mid(4, 2), .year = stored.mid(0, 4)};
}

int lowerToHighest(DateParts& date, const DateParts& highest) {
    return bringWithin(date, highest, std::greater<>());
}

int raiseToLowest(DateParts& date, const DateParts& lowest) {
    return bringWithin(date, lowest, std::less<>());
}

QString withLeadingZero(const QString& text) {
    return text.size() < 2 ? u'0' + text : text;
}

int highestDay(const QString& month) {
    switch (month.toInt()) {
    case 2: return 29;
    case 1:
    case 3:
    case 5:
    case 7:
    case 8:
    case 10:
    case 12: return 31;
    default: return 30;
    }
}

std::optional<SpinLimits> spinLimits(const QString& kind) {
    if (kind == "day"_L1)
        return SpinLimits{1, 31};
    if (kind == "month"_L1)
        return SpinLimits{1, 12};
    if (kind == "year"_L1)
        return SpinLimits{1990, 2050};
    return {};
}

} // namespace lingomat
