#include "FittingFont.h"

#include <gtest/gtest.h>

#include <QFontMetrics>

using namespace Qt::StringLiterals;
using namespace lingomat;

namespace {

QFont large() {
    QFont font(u"Arial"_s);
    font.setPointSizeF(20);
    return font;
}

} // namespace

TEST(FittingFont, ATextThatHasRoomKeepsTheLargestFont) {
    EXPECT_EQ(fittingFont(large(), 10, u"Hund"_s, {400, 200}), large());
    EXPECT_EQ(fittingFont(large(), 10, {}, {400, 200}), large());
}

TEST(FittingFont, ALongTextIsWrappedBeforeItIsMadeSmaller) {
    const QString text = u"eins zwei drei vier fünf sechs"_s;
    const int width = QFontMetrics(large()).horizontalAdvance(text) / 2;
    EXPECT_EQ(fittingFont(large(), 10, text, {width, 1000}), large());
}

TEST(FittingFont, AHeapOfTextIsMadeSmallerUntilItFits) {
    const QString text = u"Wort "_s.repeated(40);
    const QSize room(300, 200);
    const QFont fitted = fittingFont(large(), 4, text, room);
    EXPECT_LT(fitted.pointSizeF(), 20);
    EXPECT_LE(QFontMetrics(fitted).boundingRect(0, 0, room.width(), 9999, Qt::TextWordWrap, text).height(),
              room.height());
}

TEST(FittingFont, NothingIsMadeSmallerThanTheSmallest) {
    EXPECT_EQ(fittingFont(large(), 12.5, u"Wort "_s.repeated(1000), {100, 50}).pointSizeF(), 12.5);
    EXPECT_EQ(fittingFont(large(), 12.5, u"x"_s.repeated(1000), {100, 500}).pointSizeF(), 12.5);
    EXPECT_EQ(fittingFont(large(), 30, u"Wort "_s.repeated(1000), {100, 50}), large());
}
