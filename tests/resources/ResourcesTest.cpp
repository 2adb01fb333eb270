#include "Resources.h"

#include <QGuiApplication>
#include <QImage>
#include <QPalette>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

using lingomat::applicationIcon;
using lingomat::icon;

/// Sets the colours of text for one test.
class TextColors {
public:
    TextColors(const QColor& enabled, const QColor& disabled) : m_before(QGuiApplication::palette()) {
        QPalette palette = m_before;
        palette.setColor(QPalette::Active, QPalette::ButtonText, enabled);
        palette.setColor(QPalette::Disabled, QPalette::ButtonText, disabled);
        QGuiApplication::setPalette(palette);
    }
    ~TextColors() { QGuiApplication::setPalette(m_before); }
    Q_DISABLE_COPY_MOVE(TextColors)

private:
    QPalette m_before;
};

/// The colours of all points that are fully opaque.
QSet<QRgb> opaqueColors(const QImage& image) {
    QSet<QRgb> colors;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (const QRgb point = image.pixel(x, y); qAlpha(point) == 255)
                colors.insert(point);
    return colors;
}

QImage picture(const QIcon& icon, int edge, QIcon::Mode mode = QIcon::Normal) {
    return icon.pixmap(QSize(edge, edge), 1.0, mode).toImage();
}

class ActionIcon : public testing::TestWithParam<const char*> {
protected:
    static QIcon tested() { return icon(QLatin1StringView(GetParam())); }
};

TEST_P(ActionIcon, IsDrawnInTheTextColourOfThePalette) {
    const TextColors light(Qt::black, Qt::gray);
    EXPECT_EQ(opaqueColors(picture(tested(), 32)), QSet<QRgb>{QColor(Qt::black).rgba()});
    const TextColors dark(Qt::white, Qt::gray);
    EXPECT_EQ(opaqueColors(picture(tested(), 32)), QSet<QRgb>{QColor(Qt::white).rgba()});
}

TEST_P(ActionIcon, IsDrawnAtTheSizeAndScaleAskedFor) {
    EXPECT_EQ(picture(tested(), 16).size(), QSize(16, 16));
    EXPECT_FALSE(opaqueColors(picture(tested(), 16)).isEmpty());
    EXPECT_EQ(tested().pixmap(QSize(16, 16), 2.0).toImage().size(), QSize(32, 32));
}

INSTANTIATE_TEST_SUITE_P(All, ActionIcon,
                         testing::Values("new", "open", "print", "selection", "list", "trainer", "quit",
                                         "help", "step", "first", "previous", "next", "last", "restart",
                                         "sequential", "shuffle", "random", "language1-first",
                                         "language2-first", "self-test", "loop", "write", "confirm-error",
                                         "main-only"));

TEST(Icon, FollowsAChangeOfPalette) {
    const QIcon made = icon("step"_L1);
    const TextColors later(Qt::red, Qt::gray);
    EXPECT_EQ(opaqueColors(picture(made, 32)), QSet<QRgb>{QColor(Qt::red).rgba()});
}

TEST(Icon, IsDrawnInTheColourOfDisabledTextWhenDisabled) {
    const TextColors colors(Qt::black, Qt::blue);
    EXPECT_EQ(opaqueColors(picture(icon("step"_L1), 32, QIcon::Disabled)),
              QSet<QRgb>{QColor(Qt::blue).rgba()});
}

TEST(ApplicationIcon, KeepsItsColours) {
    EXPECT_GT(opaqueColors(picture(applicationIcon(), 64)).size(), 2);
}

TEST(Mark, LiesBesideTheProgramAsASmallPictureWithoutGround) {
    const QImage mark(QStringLiteral(LINGOMAT_PROGRAM_FOLDER) + u"/marke.gif"_s);
    ASSERT_FALSE(mark.isNull());
    EXPECT_EQ(mark.size(), QSize(12, 12));
    EXPECT_EQ(qAlpha(mark.pixel(0, 0)), 0);
    EXPECT_EQ(opaqueColors(mark).size(), 1);
}

} // namespace
