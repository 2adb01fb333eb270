#include "TextDecoder.h"

#include "JetError.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace jet {
namespace {

QString jet4(QByteArrayView bytes) {
    return TextDecoder(4, 1252).decode(ByteView(bytes));
}

QString jet3(int codePage, QByteArrayView bytes) {
    return TextDecoder(3, codePage).decode(ByteView(bytes));
}

TEST(TextDecoder, Utf16WithZerosAndPairs) {
    EXPECT_EQ(jet4({}), QString());
    EXPECT_EQ(jet4({"a\0\xDF\0", 4}), u"aß"_s);
    EXPECT_EQ(jet4({"a\0\0\0b\0", 6}), QString(u"a"_s + QChar(u'\0') + u'b'));
    EXPECT_EQ(jet4({"\x3D\xD8\x00\xDE", 4}), u"\U0001F600"_s);
}

TEST(TextDecoder, CompressedTextsAreSingleBytes) {
    EXPECT_EQ(jet4({"\xFF\xFE", 2}), QString());
    EXPECT_EQ(jet4({"\xFF\xFEK\xFC"
                    "che",
                    7}),
              u"Küche"_s);
}

TEST(TextDecoder, ZeroInACompressedTextChangesToWholeCharactersAndBack) {
    EXPECT_EQ(jet4({"\xFF\xFE"
                    "a\0\x41\x01\x44\x01\0b",
                    10}),
              u"aŁńb"_s);
    EXPECT_EQ(jet4({"\xFF\xFE\0\x41\x01", 5}), u"Ł"_s);
    EXPECT_EQ(jet4({"\xFF\xFE"
                    "a\0",
                    4}),
              u"a"_s);
}

TEST(TextDecoder, HalfACharacterIsDamage) {
    EXPECT_THROW((void)jet4({"a\0b", 3}), Error);
    EXPECT_THROW((void)jet4({"\xFF\xFE\0\x41", 4}), Error);
}

TEST(TextDecoder, CodePagesOfTheOldFormat) {
    EXPECT_EQ(jet3(1252, "\x80 Stra\xDF"
                         "e"),
              u"€ Straße"_s);
    EXPECT_EQ(jet3(1250, "\xAF\xF3\xB3ta \xB3\xF3"
                         "d\x9F"),
              u"Żółta łódź"_s);
    EXPECT_EQ(jet3(1251, "\xD0\xF3\xF1"), u"Рус"_s);
    EXPECT_EQ(jet3(1253, "\xC5\xEB\xEB"), u"Ελλ"_s);
    EXPECT_EQ(jet3(1254, "\xF0\xFE"), u"ğş"_s);
    EXPECT_EQ(jet3(1257, "\xE0"), u"ą"_s);
    EXPECT_EQ(jet3(0, "\xE4"), u"ä"_s) << "none told";
}

TEST(TextDecoder, OldFormatKnowsNoCompression) {
    EXPECT_EQ(jet3(1252, {"\xFF\xFE"
                          "a\0",
                          4}),
              QString(u"ÿþa"_s + QChar(u'\0')));
}

TEST(TextDecoder, UnknownCodePageIsRefusedByTheOldFormatOnly) {
    EXPECT_THROW(TextDecoder(3, 932), Error);
    EXPECT_THROW(TextDecoder(3, 65535), Error);
    EXPECT_NO_THROW(TextDecoder(4, 932));
}

} // namespace
} // namespace jet
