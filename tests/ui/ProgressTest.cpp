#include "Progress.h"
#include "ChildFinder.h"

#include <QLabel>
#include <QProgressBar>
#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace lingomat {

TEST(Progress, TheBarShowsTheValueAtOnce) {
    Progress progress;
    progress.setMinimum(0);
    progress.setMaximum(32767);
    progress.setValue(17);
    progress.setStatus(u"Reading ..."_s);
    EXPECT_EQ(child<QProgressBar>(progress, "ProgressBar1").value(), 17);
    EXPECT_EQ(child<QProgressBar>(progress, "ProgressBar1").maximum(), 32767);
    EXPECT_EQ(child<QLabel>(progress, "txtStatus").text(), u"Reading ..."_s);
}

TEST(Progress, ValuesStayWithinTheRange) {
    Progress progress;
    progress.setMinimum(1);
    progress.setMaximum(10);
    EXPECT_EQ(progress.value(), 1);
    progress.setValue(11);
    EXPECT_EQ(progress.value(), 10);
    progress.setMaximum(5);
    EXPECT_EQ(progress.value(), 5);
    progress.setMinimum(7);
    EXPECT_EQ(progress.value(), 7);
}

TEST(Progress, TheUserCannotCloseIt) {
    Progress progress;
    progress.showNow();
    ASSERT_TRUE(progress.isVisible());
    QTest::keyClick(&progress, Qt::Key_Escape);
    EXPECT_TRUE(progress.isVisible());
    EXPECT_FALSE(progress.close());
    EXPECT_TRUE(progress.isVisible());
    progress.hide();
    EXPECT_FALSE(progress.isVisible());
}

TEST(Progress, ItIsPaintedWhenItComesUp) {
    class PaintCounter : public QObject {
    public:
        int paints = 0;
        bool eventFilter(QObject*, QEvent* event) override {
            paints += event->type() == QEvent::Paint ? 1 : 0;
            return false;
        }
    };
    Progress progress;
    PaintCounter counter;
    child<QProgressBar>(progress, "ProgressBar1").installEventFilter(&counter);
    progress.showNow();
    EXPECT_GT(counter.paints, 0);
}

} // namespace lingomat
