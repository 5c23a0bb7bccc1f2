#include "platform/AfterFirstPaint.h"

#include <QTest>
#include <QWidget>
#include <gtest/gtest.h>

namespace zelvor {
namespace {

TEST(AfterFirstPaint, ComesOnceWhenTheWindowIsPainted) {
    QWidget window;
    int times = 0;
    AfterFirstPaint(window, [&times] { ++times; });
    QCoreApplication::processEvents();
    EXPECT_EQ(times, 0);
    window.show();
    ASSERT_TRUE(QTest::qWaitFor([&times] { return times > 0; }));
    window.update();
    QTest::qWait(50);
    EXPECT_EQ(times, 1);
}

TEST(AfterFirstPaint, DoesNotComeOnceTheWindowIsGone) {
    int times = 0;
    {
        QWidget window;
        AfterFirstPaint(window, [&times] { ++times; });
        window.grab(); // painted, but the event loop has not been back
    }
    QCoreApplication::processEvents();
    EXPECT_EQ(times, 0);
}

} // namespace
} // namespace zelvor
