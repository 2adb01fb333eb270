#pragma once

#include <QString>

#include <functional>

namespace lingomat {

/// Longest texts of an entry, in UTF-16 units.
enum FieldSizes : int {
    ExpressionPartSize = 100, ///< prefix, main part, suffix, comment, each
    WortartSize = 50,
    QuelleSize = 50,
    BereichSize = 50,
    AttributSize = 200, ///< a grammatical or functional attribute
    BeispielsatzSize = 200,
    ZusatzinfoSize = 200,
    ReferenceTypeSize = 200,
    DateSize = 12,
};

/// The four parts in which an expression is stored: an article before a noun, the word, an ending, a remark.
struct ExpressionParts {
    QString prefix;
    QString main;
    QString suffix;
    QString comment;

    friend bool operator==(const ExpressionParts&, const ExpressionParts&) = default;
};

/// One line of text for an expression: "der Hund e (Tier)". One blank parts what is not parted by one yet;
/// empty parts leave no trace. The parts are not trimmed, and nothing takes the line apart again.
[[nodiscard]] QString generiereAusdruck(const QString& prefix, const QString& main, const QString& suffix,
                                        const QString& comment);
[[nodiscard]] QString generiereAusdruck(const ExpressionParts& parts);

/// The text without blanks at its ends. Only the blank goes: tabs and line breaks stay.
[[nodiscard]] QString extract(const QString& text);

/// At most `length` UTF-16 units from the front. A character outside the basic plane is kept or dropped
/// whole, so the result can be one unit shorter than allowed.
[[nodiscard]] QString TruncateText(const QString& text, qsizetype length);

/// Shortens a text that is wider than `width`, an ellipsis of three dots at its end. `textWidth` measures in
/// the units of `width`. Stops at four characters even where these are too wide.
[[nodiscard]] QString FitTextToWidth(const QString& text, int width,
                                     const std::function<int(const QString&)>& textWidth);

/// Place (from 1) of the first character that the program reserves for packing, '@' or ';'; 0: there is none.
[[nodiscard]] qsizetype positionOfInternalCharacter(const QString& text);

/// Whether the text is exactly one letter from A to Z or a to z.
[[nodiscard]] bool IsBuchstabe(const QString& text);

/// The value of a text that is exactly one digit 0 to 9; 0 for any other.
[[nodiscard]] int MyStoI(const QString& text);
/// The decimal text of a number.
[[nodiscard]] QString MyItoS(int number);

} // namespace lingomat
