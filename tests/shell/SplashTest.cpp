#include "ChildFinder.h"
#include "Globals.h"
#include "frmSplash.h"

#include <QLabel>
#include <QProgressBar>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace lingomat {
namespace {

class Splash : public testing::Test {
protected:
    ~Splash() override { setInterfaceLanguage(u"En"_s); }
};

TEST_F(Splash, LoadSetsTheGlobalsAndSaysWhatItIs) {
    setInterfaceLanguage(u"De"_s);
    frmSplash splash(u"En"_s);
    EXPECT_EQ(UILanguage, u"En"_s);
    EXPECT_EQ(KeinEintrag, u"<no entry>"_s);
    EXPECT_EQ(child<QLabel>(splash, "Label2").text(), u"Lingomat V3.1A"_s);
    EXPECT_EQ(child<QLabel>(splash, "labStatus").text(), u"Loading program ..."_s);
    const auto& bar = child<QProgressBar>(splash, "ProgressBar1");
    EXPECT_EQ(bar.minimum(), 0);
    EXPECT_EQ(bar.maximum(), 100);
    EXPECT_EQ(bar.value(), 1);
}

TEST_F(Splash, GermanProgramLoadsInGerman) {
    frmSplash splash(u"De"_s);
    EXPECT_EQ(UILanguage, u"De"_s);
    EXPECT_EQ(KeinEintrag, u"<kein Eintrag>"_s);
    EXPECT_EQ(child<QLabel>(splash, "labStatus").text(), u"Programm wird geladen ..."_s);
}

TEST_F(Splash, TimerFiresOnceWhileTheWindowIsVisible) {
    frmSplash splash(u"En"_s);
    QSignalSpy requests(&splash, &frmSplash::mainWindowRequested);
    int barAtRequest = 0;
    bool visibleAtRequest = false;
    QObject::connect(&splash, &frmSplash::mainWindowRequested, &splash, [&] {
        barAtRequest = child<QProgressBar>(splash, "ProgressBar1").value();
        visibleAtRequest = splash.isVisible();
    });

    splash.show();
    ASSERT_TRUE(QTest::qWaitFor([&requests] { return requests.count() > 0; }));
    EXPECT_EQ(barAtRequest, 3);
    EXPECT_TRUE(visibleAtRequest);
    EXPECT_FALSE(splash.isVisible()) << "unloaded once the main window is there";
    EXPECT_FALSE(child<QTimer>(splash, "Timer1").isActive());
    EXPECT_EQ(requests.count(), 1);
}

TEST_F(Splash, CannotBeClosedWhileLoading) {
    frmSplash splash(u"En"_s);
    splash.show();
    EXPECT_FALSE(splash.close());
    EXPECT_TRUE(splash.isVisible());
}

} // namespace
} // namespace lingomat
