#include "WindowPlacement.h"

#include <QWidget>
#include <QWindow>

#include <gtest/gtest.h>

using namespace lingomat;

namespace {

constexpr QRect Screen(100, 50, 1000, 800);

} // namespace

TEST(KeptInside, MovesAWindowNoFurtherThanItHasTo) {
    struct Case {
        QRect window;
        QPoint place;
    };
    const Case cases[] = {
        {{300, 300, 200, 100}, {300, 300}}, {{1000, 300, 200, 100}, {900, 300}},
        {{300, 800, 200, 100}, {300, 750}}, {{0, 0, 200, 100}, {100, 50}},
        {{900, 750, 200, 100}, {900, 750}}, {{300, 300, 2000, 2000}, {100, 50}},
    };
    for (const Case& c : cases)
        EXPECT_EQ(keptInside(c.window, Screen), c.place) << c.window.x() << ',' << c.window.y();
}

TEST(PlaceBeside, TakesTheSideWithRoom) {
    const QSize size(200, 100);
    EXPECT_EQ(placeBeside({300, 200, 400, 300}, size, Screen), QPoint(700, 200));
    EXPECT_EQ(placeBeside({600, 200, 400, 300}, size, Screen), QPoint(400, 200));
    EXPECT_EQ(placeBeside({100, 200, 990, 300}, size, Screen), QPoint(900, 200)) << "no room on either";
}

TEST(PlaceAtCell, GoesBelowTheCellOrAboveIt) {
    const QSize size(300, 200);
    EXPECT_EQ(placeAtCell({200, 100, 80, 20}, size, Screen), QPoint(200, 120));
    EXPECT_EQ(placeAtCell({200, 700, 80, 20}, size, Screen), QPoint(200, 500));
    EXPECT_EQ(placeAtCell({1050, 100, 80, 20}, size, Screen), QPoint(800, 120));
}

TEST(KeepInFrontOf, TiesTheSystemWindows) {
    QWidget owner;
    QWidget window;
    keepInFrontOf(window, owner);
    EXPECT_EQ(window.windowHandle()->transientParent(), owner.windowHandle());
    keepInFrontOf(window, window);
    EXPECT_EQ(window.windowHandle()->transientParent(), owner.windowHandle());
}
