#include "ExpressionText.h"

#include <gtest/gtest.h>

#include <limits>

using namespace Qt::StringLiterals;
using namespace lingomat;

namespace {

const QString Blank = u" "_s;
const QString Face = u"😀"_s; // one character, two UTF-16 units

int lengthAsWidth(const QString& text) {
    return static_cast<int>(text.size());
}

} // namespace

TEST(Expression, PartsAreJoinedByOneBlank) {
    struct {
        ExpressionParts parts;
        QString line;
    } const table[] = {
        {{}, {}},
        {{u"der"_s, u"Hund"_s, u"e"_s, u"Tier"_s}, u"der Hund e (Tier)"_s},
        {{{}, u"Hund"_s, {}, {}}, u"Hund"_s},
        {{{}, {}, {}, u"x"_s}, u"(x)"_s},
        {{u"der"_s, {}, {}, {}}, u"der"_s},
        {{u"der"_s, {}, {}, u"x"_s}, u"der (x)"_s},
        {{u"der"_s, {}, u"e"_s, {}}, u"der e"_s},
        {{{}, {}, u"e"_s, {}}, u"e"_s},
        {{{}, {}, u"e"_s, u"x"_s}, u"e (x)"_s},
        {{{}, u"Hund"_s, u"e"_s, {}}, u"Hund e"_s},
        // Where a blank stands already, no second one comes.
        {{u"der "_s, u"Hund"_s, {}, {}}, u"der Hund"_s},
        {{{}, u"Hund "_s, u"e"_s, {}}, u"Hund e"_s},
        {{{}, {}, u"e "_s, u"x"_s}, u"e (x)"_s},
        {{u"l' "_s, {}, {}, u"x"_s}, u"l' (x)"_s},
        {{Blank, Blank, Blank, {}}, u"   "_s},
        // Only the blank counts as one.
        {{u"der\t"_s, u"Hund"_s, {}, {}}, u"der\t Hund"_s},
        // Blanks of the parts themselves are left alone.
        {{u"  der  "_s, u"  Hund  "_s, u"  e"_s, {}}, u"  der    Hund    e"_s},
        {{u"η"_s, u"γάτα"_s, u"-ες"_s, u"ζώο"_s}, u"η γάτα -ες (ζώο)"_s},
        {{{}, u"собака"_s, u"-и"_s, u"животное"_s}, u"собака -и (животное)"_s},
        {{{}, u"猫"_s, {}, u"ねこ"_s}, u"猫 (ねこ)"_s},
        {{Face, Face, Face, Face}, u"😀 😀 😀 (😀)"_s},
    };
    for (const auto& [parts, line] : table) {
        EXPECT_EQ(generiereAusdruck(parts), line) << line.toStdString();
        EXPECT_EQ(generiereAusdruck(parts.prefix, parts.main, parts.suffix, parts.comment), line);
    }
}

TEST(Extract, TakesBlanksFromBothEndsAndNothingElse) {
    const QString table[][2] = {
        {{}, {}},
        {u" "_s, {}},
        {u"     "_s, {}},
        {u"a"_s, u"a"_s},
        {u"  a"_s, u"a"_s},
        {u"a  "_s, u"a"_s},
        {u"  a  b  "_s, u"a  b"_s},
        {u"\ta\t"_s, u"\ta\t"_s},
        {u" \ta\n "_s, u"\ta\n"_s},
        {u"\u00a0a\u3000"_s, u"\u00a0a\u3000"_s},
        {u" 猫 "_s, u"猫"_s},
        {u" 😀 "_s, u"😀"_s},
    };
    for (const auto& [text, result] : table)
        EXPECT_EQ(extract(text), result) << '[' << text.toStdString() << ']';
}

TEST(TruncateText, KeepsAtMostTheLength) {
    struct {
        QString text;
        int length;
        QString result;
    } const table[] = {
        {{}, 5, {}},
        {u"Hund"_s, 5, u"Hund"_s},
        {u"Hund"_s, 4, u"Hund"_s},
        {u"Hund"_s, 3, u"Hun"_s},
        {u"Hund"_s, 0, {}},
        {u"Hund"_s, -1, {}},
        {u"σκύλος"_s, 2, u"σκ"_s},
        {u"собака"_s, 3, u"соб"_s},
        {u"日本語"_s, 2, u"日本"_s},
    };
    for (const auto& [text, length, result] : table)
        EXPECT_EQ(TruncateText(text, length), result) << text.toStdString() << length;
    EXPECT_EQ(TruncateText(QString(101, u'x'), ExpressionPartSize).size(), 100);
}

TEST(TruncateText, NeverCutsACharacterInHalf) {
    EXPECT_EQ(TruncateText(u"a😀b"_s, 1), u"a");
    EXPECT_EQ(TruncateText(u"a😀b"_s, 2), u"a");
    EXPECT_EQ(TruncateText(u"a😀b"_s, 3), u"a😀");
    EXPECT_EQ(TruncateText(Face, 1), QString());
    EXPECT_EQ(TruncateText(Face, 2), Face);
    // Halves that belong to no character are cut like any other unit.
    const QString lowOnly(QChar(0xde00));
    EXPECT_EQ(TruncateText(u'a' + lowOnly + u'b', 2), u'a' + lowOnly);
}

TEST(FitTextToWidth, ShortensTextThatIsTooWide) {
    struct {
        QString text;
        int width;
        QString result;
    } const table[] = {
        {{}, 0, {}},
        {u"Hund"_s, 4, u"Hund"_s},
        {u"Hunde"_s, 4, u"H..."_s},
        {u"Hundehütte"_s, 9, u"Hundeh..."_s},
        {u"Hundehütte"_s, 10, u"Hundehütte"_s},
        // Four characters stay, even where these are too wide.
        {u"Hundehütte"_s, 3, u"H..."_s},
        {u"Hundehütte"_s, 0, u"H..."_s},
        {u"ab"_s, 1, u"a..."_s},
        {u"a"_s, 0, u"a..."_s},
        {u"собака"_s, 5, u"со..."_s},
    };
    for (const auto& [text, width, result] : table)
        EXPECT_EQ(FitTextToWidth(text, width, lengthAsWidth), result) << text.toStdString() << width;
}

TEST(FitTextToWidth, NeverCutsACharacterInHalf) {
    EXPECT_EQ(FitTextToWidth(u"ab😀😀"_s, 5, lengthAsWidth), u"ab...");
    EXPECT_EQ(FitTextToWidth(u"a😀cd"_s, 4, lengthAsWidth), u"a...");
    EXPECT_EQ(FitTextToWidth(Face, 0, lengthAsWidth), u"...");
}

TEST(InternalCharacters, PlaceOfTheFirstCountsFromOne) {
    struct {
        QString text;
        int place;
    } const table[] = {
        {{}, 0},         {u"Hund"_s, 0}, {u"@"_s, 1},   {u";"_s, 1},  {u"a;b@c"_s, 2},   {u"a@b;c"_s, 2},
        {u"Hund;"_s, 5}, {u"＠；"_s, 0}, {u"猫;"_s, 2}, {u";;"_s, 1}, {u"Ελλάδα@"_s, 7},
    };
    for (const auto& [text, place] : table)
        EXPECT_EQ(positionOfInternalCharacter(text), place) << text.toStdString();
}

TEST(IsBuchstabe, OneAsciiLetterOnly) {
    for (const QString& letter : {u"A"_s, u"Z"_s, u"a"_s, u"z"_s, u"m"_s})
        EXPECT_TRUE(IsBuchstabe(letter)) << letter.toStdString();
    for (const QString& other : {QString(), u"@"_s, u"["_s, u"`"_s, u"{"_s, u"ä"_s, u"ß"_s, u"1"_s, u" "_s,
                                 u"ab"_s, u"α"_s, u"я"_s, u"猫"_s, Face})
        EXPECT_FALSE(IsBuchstabe(other)) << other.toStdString();
}

TEST(MyStoI, OneDigitOnly) {
    for (int digit = 0; digit <= 9; ++digit)
        EXPECT_EQ(MyStoI(QString::number(digit)), digit);
    for (const QString& other :
         {QString(), u"12"_s, u"a"_s, u"-"_s, u" 1"_s, u"/"_s, u":"_s, u"٣"_s, u"３"_s, u"²"_s})
        EXPECT_EQ(MyStoI(other), 0) << other.toStdString();
}

TEST(MyItoS, DecimalText) {
    EXPECT_EQ(MyItoS(0), u"0");
    EXPECT_EQ(MyItoS(10), u"10");
    EXPECT_EQ(MyItoS(-7), u"-7");
    EXPECT_EQ(MyItoS(32767), u"32767");
}
