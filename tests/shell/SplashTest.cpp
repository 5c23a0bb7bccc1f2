#include <QPointer>
#include <QTest>
#include <gtest/gtest.h>

#include "fakes/FakeClock.h"
#include "shell/frmStart.h"

namespace zelvor {
namespace {

struct SplashTest : testing::Test {
    static void HandleDeletions() { QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); }

    FakeClock clock;
    QPointer<frmStart> splash = new frmStart(clock);
};

TEST_F(SplashTest, GoesAwayAfterFiveSeconds) {
    splash->show();
    clock.Advance(4999);
    HandleDeletions();
    EXPECT_TRUE(splash && splash->isVisible());
    clock.Advance(1);
    HandleDeletions();
    EXPECT_TRUE(splash.isNull());
}

TEST_F(SplashTest, GoesAwayAtAClick) {
    splash->show();
    QTest::mouseClick(splash, Qt::LeftButton);
    HandleDeletions();
    EXPECT_TRUE(splash.isNull());
    clock.Advance(10000);
}

} // namespace
} // namespace zelvor
