#pragma once

#include "ChildFinder.h"

#include <QApplication>
#include <QTimer>

#include <gtest/gtest.h>

#include <functional>

namespace lingomat {

/// Has `act` work on the modal window that comes up next, as the user would. For tests of a real exec():
///
///     onNextModal<QMessageBox>([](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Escape); });
template <typename Window>
void onNextModal(std::function<void(Window&)> act) {
    QTimer::singleShot(0, qApp, [act = std::move(act)] {
        auto* window = qobject_cast<Window*>(QApplication::activeModalWidget());
        ASSERT_NE(window, nullptr) << "no such window came up";
        act(*window);
    });
}

} // namespace lingomat
