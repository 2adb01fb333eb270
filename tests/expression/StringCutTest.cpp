#include "StringCut.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace lingomat {

TEST(StringCut, LeavesWhatFits) {
    const auto tenEach = [](const QString& text) { return 10.0 * static_cast<double>(text.size()); };
    EXPECT_EQ(StringCut(u"Hund"_s, 40, tenEach), u"Hund"_s);
    EXPECT_EQ(StringCut(u""_s, 0, tenEach), u""_s);
    EXPECT_EQ(StringCut(u"Hund"_s, 1000, tenEach), u"Hund"_s);
}

TEST(StringCut, DropsWhatIsTooWideAndOneMoreForTheDots) {
    const auto tenEach = [](const QString& text) { return 10.0 * static_cast<double>(text.size()); };
    EXPECT_EQ(StringCut(u"Hundehütte"_s, 99, tenEach), u"Hundehüt..."_s) << "one too many";
    EXPECT_EQ(StringCut(u"Hundehütte"_s, 50, tenEach), u"Hund..."_s);
    EXPECT_EQ(StringCut(u"Hundehütte"_s, 59.9, tenEach), u"Hund..."_s);
    EXPECT_EQ(StringCut(u"Hundehütte"_s, 10, tenEach), u"..."_s);
    EXPECT_EQ(StringCut(u"Hundehütte"_s, 0, tenEach), u"..."_s);
    EXPECT_EQ(StringCut(u"Hundehütte"_s, -100, tenEach), u"..."_s);
    EXPECT_EQ(StringCut(u"a"_s, 5, tenEach), u"..."_s);
}

TEST(StringCut, IsWhatDroppingOneCharacterAfterTheOtherGives) {
    // Letters of different widths.
    const auto measure = [](const QString& text) {
        double width = 0;
        for (const QChar character : text)
            width += character == u'i' ? 3.5 : character == u'm' ? 17.25 : 9;
        return width;
    };
    const QString text = u"mimimiammaimminimumimaginärmm"_s;
    for (int width = 0; width < 300; ++width) {
        QString expected = text;
        while (measure(expected) > width)
            expected.chop(1);
        if (expected != text) {
            expected.chop(1);
            expected += u"..."_s;
        }
        EXPECT_EQ(StringCut(text, width, measure), expected) << width;
    }
}

TEST(StringCut, NeverPartsTheHalvesOfACharacter) {
    const auto tenEach = [](const QString& text) { return 10.0 * static_cast<double>(text.size()); };
    for (int width = 0; width < 80; ++width) {
        const QString cut = StringCut(u"\U0001F600\U0001F601\U0001F602\U0001F603"_s, width, tenEach);
        EXPECT_TRUE(cut.isValidUtf16()) << width;
    }
}

TEST(StringCut, MeasuresALongTextAFewTimes) {
    int measured = 0;
    const auto count = [&measured](const QString& text) {
        ++measured;
        return static_cast<double>(text.size());
    };
    (void)StringCut(QString(30000, u'x'), 60, count);
    EXPECT_LT(measured, 20);
}

} // namespace lingomat
