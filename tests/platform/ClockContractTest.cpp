#include <QCoreApplication>
#include <QDateTime>
#include <QTest>
#include <QTimer>
#include <algorithm>
#include <gtest/gtest.h>

#include "fakes/FakeClock.h"
#include "platform/QtClock.h"

namespace zelvor {
namespace {

struct FakeTime {
    FakeClock clock;
    void Run(int milliseconds) { clock.Advance(milliseconds); }
};

struct RealTime {
    QtClock clock;
    void Run(int milliseconds) { QTest::qWait(milliseconds); }
};

template<class Time>
class ClockContract : public testing::Test {
protected:
    std::unique_ptr<Timer> Make(int interval, std::function<void()> onTick) {
        auto timer = time_.clock.MakeTimer("ctrTimer");
        timer->SetInterval(interval);
        timer->OnTick = std::move(onTick);
        return timer;
    }
    /// Runs until the condition holds, for two seconds at most.
    void RunUntil(const std::function<bool()>& condition) {
        for (int step = 0; step < 2000 && !condition(); ++step) {
            time_.Run(1);
        }
        EXPECT_TRUE(condition());
    }

    Time time_;
    int ticks_ = 0;
};

using Times = testing::Types<FakeTime, RealTime>;
TYPED_TEST_SUITE(ClockContract, Times);

TYPED_TEST(ClockContract, TicksAgainAndAgainFirstAfterOneInterval) {
    const auto timer = this->Make(20, [this] { ++this->ticks_; });
    const auto start = this->time_.clock.TickCount();
    timer->SetEnabled(true);
    EXPECT_TRUE(timer->IsEnabled());
    EXPECT_EQ(this->ticks_, 0);
    this->RunUntil([this] { return this->ticks_ == 1; });
    EXPECT_GE(this->time_.clock.TickCount() - start, 19);
    this->RunUntil([this] { return this->ticks_ == 4; });
    EXPECT_GE(this->time_.clock.TickCount() - start, 79);
}

TYPED_TEST(ClockContract, DoesNotTickWhileDisabled) {
    const auto timer = this->Make(5, [this] { ++this->ticks_; });
    EXPECT_FALSE(timer->IsEnabled());
    this->time_.Run(20);
    EXPECT_EQ(this->ticks_, 0);
    timer->SetEnabled(true);
    timer->SetEnabled(false);
    this->time_.Run(20);
    EXPECT_EQ(this->ticks_, 0);
}

TYPED_TEST(ClockContract, DoesNotTickWithIntervalZero) {
    const auto timer = this->Make(0, [this] { ++this->ticks_; });
    timer->SetEnabled(true);
    this->time_.Run(10);
    EXPECT_EQ(this->ticks_, 0);
    timer->SetInterval(5);
    this->RunUntil([this] { return this->ticks_ == 1; });
}

TYPED_TEST(ClockContract, IsNotRestartedByEnablingAgain) {
    const auto timer = this->Make(200, [this] { ++this->ticks_; });
    timer->SetEnabled(true);
    const auto start = this->time_.clock.TickCount();
    while (this->ticks_ == 0 && this->time_.clock.TickCount() - start < 2000) {
        this->time_.Run(20);
        timer->SetEnabled(true);
    }
    EXPECT_EQ(this->ticks_, 1);
}

TYPED_TEST(ClockContract, StartsTheNewIntervalAtOnce) {
    const auto timer = this->Make(60000, [this] { ++this->ticks_; });
    timer->SetEnabled(true);
    this->time_.Run(10);
    const auto start = this->time_.clock.TickCount();
    timer->SetInterval(30);
    this->RunUntil([this] { return this->ticks_ == 1; });
    EXPECT_GE(this->time_.clock.TickCount() - start, 29);
}

TYPED_TEST(ClockContract, SleepsWithoutTicksAndTicksAnOverdueTimerOnceAfterwards) {
    const auto timer = this->Make(30, [this] { ++this->ticks_; });
    timer->SetEnabled(true);
    const auto start = this->time_.clock.TickCount();
    this->time_.clock.Sleep(100);
    EXPECT_GE(this->time_.clock.TickCount() - start, 100);
    EXPECT_EQ(this->ticks_, 0);
    this->time_.Run(0);
    this->RunUntil([this] { return this->ticks_ > 0; });
    EXPECT_EQ(this->ticks_, 1);
}

TYPED_TEST(ClockContract, WaitsWithTimersGoingOn) {
    const auto timer = this->Make(10, [this] { ++this->ticks_; });
    timer->SetEnabled(true);
    const auto start = this->time_.clock.TickCount();
    this->time_.clock.WaitProcessingEvents(100);
    EXPECT_GE(this->time_.clock.TickCount() - start, 99);
    EXPECT_GE(this->ticks_, 2);
}

TYPED_TEST(ClockContract, WaitsToTheEndWithNothingGoingOn) {
    const auto start = this->time_.clock.TickCount();
    this->time_.clock.WaitProcessingEvents(0);
    this->time_.clock.WaitProcessingEvents(30);
    EXPECT_GE(this->time_.clock.TickCount() - start, 29);
    EXPECT_LT(this->time_.clock.TickCount() - start, 2000);
}

TYPED_TEST(ClockContract, DoesNotTickWithinItsOwnTickWhileOthersDo) {
    int depth = 0;
    int deepest = 0;
    const auto other = this->Make(5, [this] { ++this->ticks_; });
    const auto timer = this->Make(10, [&] {
        deepest = std::max(deepest, ++depth);
        this->time_.clock.WaitProcessingEvents(50);
        --depth;
    });
    other->SetEnabled(true);
    timer->SetEnabled(true);
    this->RunUntil([&] { return deepest > 0; });
    timer->SetEnabled(false);
    EXPECT_EQ(deepest, 1);
    EXPECT_GE(this->ticks_, 3);
}

TYPED_TEST(ClockContract, TicksAgainWithinItsOwnTickOnceStartedAnew) {
    const auto timer = this->Make(10, [this] { ++this->ticks_; });
    timer->OnTick = [&] {
        if (++this->ticks_ == 1) {
            timer->SetInterval(5);
            this->time_.clock.WaitProcessingEvents(60);
            EXPECT_GE(this->ticks_, 2);
            timer->SetEnabled(false);
        }
    };
    timer->SetEnabled(true);
    this->RunUntil([&] { return !timer->IsEnabled(); });
}

TYPED_TEST(ClockContract, SurvivesATickThatDestroysItsTimer) {
    std::unique_ptr<Timer> timer = this->Make(5, [] {});
    timer->OnTick = [&] { timer.reset(); };
    timer->SetEnabled(true);
    this->RunUntil([&] { return timer == nullptr; });
    this->time_.Run(20);
}

TYPED_TEST(ClockContract, LetsATickChangeWhatTheTickDoes) {
    const auto timer = this->Make(5, [] {});
    timer->OnTick = [&, marker = std::string("a text that is alive until the tick ends")] {
        timer->OnTick = [this] { ++this->ticks_; };
        EXPECT_EQ(marker, "a text that is alive until the tick ends");
    };
    timer->SetEnabled(true);
    this->RunUntil([this] { return this->ticks_ == 1; });
}

TEST(QtClock, TellsTheLocalDateAndTime) {
    const QDateTime before = QDateTime::currentDateTime();
    const LocalTime now = QtClock().Now();
    const QDateTime told(QDate(now.year, now.month, now.day), QTime(now.hour, now.minute, now.second));
    EXPECT_LE(before.secsTo(told), 1);
    EXPECT_GE(before.secsTo(told), -1);
}

TEST(QtClock, HasTimersThatAreFoundByNameBelowTheirParent) {
    QObject parent;
    QtClock clock(&parent);
    auto timer = clock.MakeTimer("tmrStatusBar");
    timer->SetInterval(1000);
    const auto* found = parent.findChild<QTimer*>("tmrStatusBar");
    ASSERT_NE(found, nullptr);
    EXPECT_EQ(found->interval(), 1000);
    EXPECT_EQ(found->timerType(), Qt::PreciseTimer);
    timer.reset();
    EXPECT_EQ(parent.findChild<QTimer*>("tmrStatusBar"), nullptr);
}

TEST(QtClock, HasTimersThatSurviveTheirParent) {
    auto parent = std::make_unique<QObject>();
    QtClock clock(parent.get());
    const auto timer = clock.MakeTimer("tmrStatusBar");
    parent.reset();
    timer->SetInterval(10);
    timer->SetEnabled(true);
    EXPECT_TRUE(timer->IsEnabled());
}

} // namespace
} // namespace zelvor
