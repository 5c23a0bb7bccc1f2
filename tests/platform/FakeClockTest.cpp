#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "fakes/FakeClock.h"

namespace zelvor {
namespace {

using Log = std::vector<std::string>;

struct ClockLog {
    FakeClock clock;
    Log log;

    void Note(const std::string& what) { log.push_back(what + "@" + std::to_string(clock.TickCount())); }
    std::unique_ptr<Timer> Run(const std::string& name, int interval) {
        auto timer = clock.MakeTimer(name);
        timer->SetInterval(interval);
        timer->OnTick = [this, name] { Note(name); };
        timer->SetEnabled(true);
        return timer;
    }
};

TEST(FakeClock, TicksTimersAndRunsEventsInTheOrderOfTime) {
    ClockLog test;
    const auto slow = test.Run("slow", 30);
    const auto fast = test.Run("fast", 20);
    test.clock.At(25, [&] { test.Note("event"); });
    test.clock.Advance(60);
    EXPECT_EQ(test.log, (Log{"fast@20", "event@25", "slow@30", "fast@40", "slow@60", "fast@60"}));
    EXPECT_EQ(test.clock.TickCount(), 60);
}

TEST(FakeClock, RunsAnEventBeforeTheTimersOfTheSameMoment) {
    ClockLog test;
    const auto timer = test.Run("timer", 10);
    test.clock.At(10, [&] { test.Note("first"); });
    test.clock.At(10, [&] { test.Note("second"); });
    test.clock.Advance(10);
    EXPECT_EQ(test.log, (Log{"first@10", "second@10", "timer@10"}));
}

TEST(FakeClock, SleepsWithoutTicksAndLetsThemOverdueTickOnce) {
    ClockLog test;
    const auto timer = test.Run("timer", 10);
    test.clock.At(5, [&] { test.Note("event"); });
    test.clock.Sleep(35);
    EXPECT_EQ(test.log, Log{});
    EXPECT_EQ(test.clock.TickCount(), 35);
    test.clock.Advance(0);
    EXPECT_EQ(test.log, (Log{"event@35", "timer@35"}));
    EXPECT_EQ(test.clock.Sleeps(), std::vector<int>{35});
}

TEST(FakeClock, WaitsInATickWithTheOtherTimersGoingOn) {
    ClockLog test;
    const auto other = test.Run("other", 10);
    const auto waiting = test.Run("waiting", 15);
    waiting->OnTick = [&] {
        test.Note("begin");
        test.clock.WaitProcessingEvents(30);
        test.Note("end");
        waiting->SetEnabled(false);
    };
    test.clock.Advance(50);
    EXPECT_EQ(test.log, (Log{"other@10", "begin@15", "other@20", "other@30", "other@40", "end@45", "other@50"}));
    EXPECT_EQ(test.clock.Waits(), std::vector<int>{30});
}

TEST(FakeClock, SurvivesATickThatDestroysItsTimerOrAnother) {
    ClockLog test;
    auto doomed = test.Run("doomed", 10);
    auto killer = test.Run("killer", 10);
    auto own = test.Run("own", 20);
    killer->OnTick = [&] { doomed.reset(); };
    own->OnTick = [&] {
        test.Note("own");
        own.reset();
    };
    test.clock.Advance(100);
    EXPECT_EQ(test.log, (Log{"doomed@10", "own@20"}));
    EXPECT_EQ(test.clock.FindTimer("own"), nullptr);
}

TEST(FakeClock, FindsTheLatestLivingTimerOfAName) {
    FakeClock clock;
    const auto first = clock.MakeTimer("ctrTimer");
    first->SetInterval(100);
    {
        const auto second = clock.MakeTimer("ctrTimer");
        second->SetInterval(200);
        EXPECT_EQ(clock.FindTimer("ctrTimer"), second.get());
        EXPECT_EQ(clock.IntervalOf("ctrTimer"), 200);
    }
    EXPECT_EQ(clock.FindTimer("ctrTimer"), first.get());
    EXPECT_EQ(clock.IntervalOf("ctrTimer"), 100);
    EXPECT_EQ(clock.IntervalOf("no timer"), -1);
}

TEST(FakeClock, TellsTheDateThatWasSet) {
    FakeClock clock;
    clock.SetNow({2024, 2, 29, 23, 59, 58});
    const LocalTime now = clock.Now();
    EXPECT_EQ(now.year, 2024);
    EXPECT_EQ(now.month, 2);
    EXPECT_EQ(now.day, 29);
    EXPECT_EQ(now.hour, 23);
    EXPECT_EQ(now.minute, 59);
    EXPECT_EQ(now.second, 58);
}

TEST(FakeClock, MayGoBeforeItsTimers) {
    auto clock = std::make_unique<FakeClock>();
    const auto timer = clock->MakeTimer("tmrStatusBar");
    clock.reset();
    timer->SetInterval(10);
    timer->SetEnabled(true);
    EXPECT_TRUE(timer->IsEnabled());
}

} // namespace
} // namespace zelvor
