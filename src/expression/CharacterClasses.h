#pragma once

#include <QChar>

namespace lingomat {

// Character classes by code, those of code page 1252; in the ranges named it agrees with Unicode. They do
// not depend on the locale, and know no script but Latin.

/// 0 to 9.
[[nodiscard]] constexpr bool IsDigitCharacter(QChar character) {
    return character >= u'0' && character <= u'9';
}

/// A to Z, a to z.
[[nodiscard]] constexpr bool IsAsciiLetter(QChar character) {
    return (character >= u'A' && character <= u'Z') || (character >= u'a' && character <= u'z');
}

/// The letters 192 to 255, and the inverted exclamation mark (161) and question mark (191), which open a
/// word in Spanish. The signs for multiplication (215) and division (247) are none.
[[nodiscard]] constexpr bool IsNationalLetter(QChar character) {
    const char16_t code = character.unicode();
    return code == 161 || (code >= 191 && code <= 255 && code != 215 && code != 247);
}

/// Any of the three.
[[nodiscard]] constexpr bool IsWordCharacter(QChar character) {
    return IsDigitCharacter(character) || IsAsciiLetter(character) || IsNationalLetter(character);
}

} // namespace lingomat
