#include "Value.h"
#include "ErrorOf.h"

#include <limits>

using namespace Qt::StringLiterals;
using dao::errorOf;
using dao::Value;

TEST(Value, TellsItsKind) {
    EXPECT_TRUE(Value().isNull());
    EXPECT_TRUE(Value(1).isInteger());
    EXPECT_TRUE(Value(1.5).isReal());
    EXPECT_TRUE(Value(QString()).isText());
    EXPECT_NE(Value(QString()), Value());
    EXPECT_NE(Value(1), Value(u"1"_s));
    EXPECT_EQ(Value(1), Value(qint64{1}));
}

TEST(Value, AsText) {
    EXPECT_EQ(Value(u"Haus"_s).toText(), u"Haus");
    EXPECT_EQ(Value(-17).toText(), u"-17");
    EXPECT_EQ(Value(1.5).toText(), u"1.5");
    EXPECT_EQ(Value().toText(u"leer"_s), u"leer");
    EXPECT_EQ(Value(3).toText(u"leer"_s), u"3");
    EXPECT_EQ(errorOf([] { (void)Value().toText(); }), 94);
}

TEST(Value, AsNumber) {
    EXPECT_EQ(Value(u" 17 "_s).toInteger(), 17);
    EXPECT_EQ(Value(u"-3"_s).toInteger(), -3);
    EXPECT_EQ(Value(2.6).toInteger(), 3);
    EXPECT_EQ(errorOf([] { (void)Value().toInteger(); }), 94);
    for (const QString& text : {QString(), u"x"_s, u"1x"_s, u"1 2"_s, u"١"_s, u"猫"_s})
        EXPECT_EQ(errorOf([&] { (void)Value(text).toInteger(); }), 13) << text.toStdString();
}

TEST(Value, AFloatingNumberBeyondAllWholeOnesOverflows) {
    const double infinity = std::numeric_limits<double>::infinity();
    for (const double number : {1e300, -1e300, 9.3e18, infinity, -infinity, infinity - infinity})
        EXPECT_EQ(errorOf([number] { (void)Value(number).toInteger(); }), 6) << number;
}

TEST(Integer16, OverflowsOutsideItsRange) {
    EXPECT_EQ(dao::toInteger16(32767), 32767);
    EXPECT_EQ(dao::toInteger16(-32768), -32768);
    for (const qint64 number : {qint64{32768}, qint64{-32769}, qint64{65536}, qint64{1} << 40})
        EXPECT_EQ(errorOf([number] { (void)dao::toInteger16(number); }), 6) << number;
}

TEST(EngineError, CarriesNumberAndDescription) {
    const dao::Error error(dao::ErrorNumber::TextTooLong, u"zu lang: Ä"_s);
    EXPECT_EQ(static_cast<int>(error.Number()), 3163);
    EXPECT_EQ(error.Description(), u"zu lang: Ä");
    EXPECT_STREQ(error.what(), "zu lang: Ä");
    EXPECT_EQ(static_cast<int>(dao::alreadyReported().Number()), 19001);
    EXPECT_FALSE(dao::alreadyReported().Description().isEmpty());
}
