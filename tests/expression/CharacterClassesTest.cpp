#include "CharacterClasses.h"

#include <gtest/gtest.h>

#include <QString>

using namespace Qt::StringLiterals;
using namespace lingomat;

namespace {

/// How many of all 65,536 codes a class holds: the ranges are told one by one below, this closes the rest.
int countMembers(bool (*isMember)(QChar)) {
    int count = 0;
    for (int code = 0; code <= 0xffff; ++code)
        count += isMember(QChar(static_cast<char16_t>(code))) ? 1 : 0;
    return count;
}

} // namespace

TEST(CharacterClasses, Digits) {
    for (const QChar digit : u"0123456789"_s)
        EXPECT_TRUE(IsDigitCharacter(digit));
    EXPECT_EQ(countMembers(&IsDigitCharacter), 10);
}

TEST(CharacterClasses, AsciiLetters) {
    for (const QChar letter : u"AMZamz"_s)
        EXPECT_TRUE(IsAsciiLetter(letter));
    for (const QChar other : u"@[`{ä"_s)
        EXPECT_FALSE(IsAsciiLetter(other));
    EXPECT_EQ(countMembers(&IsAsciiLetter), 52);
}

TEST(CharacterClasses, NationalLettersIncludeTheInvertedMarks) {
    for (const QChar letter : u"¡¿ÀÖØßäöøÿñ"_s)
        EXPECT_TRUE(IsNationalLetter(letter)) << int{letter.unicode()};
    for (const QChar other : u"×÷ ¢¾azŠœŸЖα猫Ā"_s)
        EXPECT_FALSE(IsNationalLetter(other)) << int{other.unicode()};
    EXPECT_EQ(countMembers(&IsNationalLetter), 1 + (255 - 191 + 1) - 2);
}

TEST(CharacterClasses, WordCharactersAreAllThree) {
    for (const QChar member : u"ä1aZ¡¿"_s)
        EXPECT_TRUE(IsWordCharacter(member)) << int{member.unicode()};
    for (const QChar other : u" _-';@×÷α"_s)
        EXPECT_FALSE(IsWordCharacter(other)) << int{other.unicode()};
    EXPECT_EQ(countMembers(&IsWordCharacter), 10 + 52 + 64);
}
