#include "clsCursor.h"

#include <QCursor>
#include <QGuiApplication>

#include <gtest/gtest.h>

namespace lingomat {

namespace {

bool isBusy() {
    const QCursor* cursor = QGuiApplication::overrideCursor();
    return cursor && cursor->shape() == Qt::WaitCursor;
}

} // namespace

TEST(WaitCursor, RestoreBringsTheOldOneBack) {
    clsCursor cursor;
    cursor.SetCursorToBusy();
    EXPECT_TRUE(isBusy());
    cursor.RestoreCursor();
    EXPECT_FALSE(isBusy());
}

TEST(WaitCursor, ASecondCallOfAKindDoesNothing) {
    clsCursor cursor;
    cursor.RestoreCursor();
    EXPECT_FALSE(isBusy());
    cursor.SetCursorToBusy();
    cursor.SetCursorToBusy();
    cursor.RestoreCursor();
    EXPECT_FALSE(isBusy());
    cursor.RestoreCursor();
    EXPECT_FALSE(isBusy());
}

TEST(WaitCursor, ObjectsNest) {
    clsCursor outer;
    clsCursor inner;
    outer.SetCursorToBusy();
    inner.SetCursorToBusy();
    inner.RestoreCursor();
    EXPECT_TRUE(isBusy());
    outer.RestoreCursor();
    EXPECT_FALSE(isBusy());
}

} // namespace lingomat
