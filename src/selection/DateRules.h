#pragma once

#include <QString>

#include <optional>

namespace lingomat {

// Rules for dates as three texts. Every comparison is one of texts, character by character: a text that is
// no date is compared like any other.

struct DateParts {
    QString day;
    QString month;
    QString year;

    /// yyyymmdd, or whatever the three texts give in a row.
    [[nodiscard]] QString stored() const { return year + month + day; }
    friend bool operator==(const DateParts&, const DateParts&) = default;
};

/// Takes "yyyymmdd" apart. Parts that a shorter text does not have are empty.
[[nodiscard]] DateParts splitDate(const QString& stored);

/// Lowers the date to the highest one allowed, part by part; the month counts where the years are equal, the
/// day where the months are too. Returns the number of parts that were changed.
int lowerToHighest(DateParts& date, const DateParts& highest);
/// The mirror image of it.
int raiseToLowest(DateParts& date, const DateParts& lowest);

/// Two characters at least, with one "0" in front; so the empty text becomes "0".
[[nodiscard]] QString withLeadingZero(const QString& text);

/// Highest day of a month from 1 to 12, given as text. February has 29 days in every year; whatever is no
/// month has 30.
[[nodiscard]] int highestDay(const QString& month);

struct SpinLimits {
    int lowest;
    int highest;
    friend bool operator==(const SpinLimits&, const SpinLimits&) = default;
};

/// Limits of the spin buttons of a "day", "month" or "year"; none for any other kind.
[[nodiscard]] std::optional<SpinLimits> spinLimits(const QString& kind);

} // namespace lingomat
