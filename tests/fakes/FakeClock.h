#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Clock.h"

namespace zelvor {

class FakeTimer;

/// Virtual time: nothing here waits, and time moves only when a test or a wait moves it.
class FakeClock : public Clock {
public:
    FakeClock() = default;
    FakeClock(const FakeClock&) = delete;
    FakeClock& operator=(const FakeClock&) = delete;
    ~FakeClock() override;

    /// What SetNow told, however much virtual time goes by.
    [[nodiscard]] LocalTime Now() const override { return now_; }
    [[nodiscard]] std::int64_t TickCount() const override { return time_; }
    /// Moves the time, and nothing comes due meanwhile: what did, comes with the next Advance or wait.
    void Sleep(int milliseconds) override;
    /// As Advance, also out of a tick or an event.
    void WaitProcessingEvents(int milliseconds) override;
    [[nodiscard]] std::unique_ptr<Timer> MakeTimer(std::string_view objectName) override;

    /// Runs the event loop for a stretch of virtual time: events and ticks in time order, at the same moment events
    /// first, timers in the order they were made. An overdue timer ticks once, not once for every interval missed.
    void Advance(int milliseconds);
    /// Happens on the event loop so many milliseconds from now.
    void At(int millisecondsFromNow, std::function<void()> event);
    void SetNow(const LocalTime& now) { now_ = now; }

    /// The latest living timer of that name; null where there is none.
    [[nodiscard]] Timer* FindTimer(std::string_view objectName) const;
    /// -1 where there is no such timer.
    [[nodiscard]] int IntervalOf(std::string_view objectName) const;
    /// All plain sleeps so far, in milliseconds.
    [[nodiscard]] const std::vector<int>& Sleeps() const { return sleeps_; }
    /// All waits that kept the event loop running.
    [[nodiscard]] const std::vector<int>& Waits() const { return waits_; }

private:
    friend class FakeTimer;

    struct Event {
        std::int64_t due;
        std::function<void()> run;
    };

    void RunUntil(std::int64_t end);
    [[nodiscard]] FakeTimer* FirstDue() const;
    [[nodiscard]] FakeTimer* Find(std::string_view objectName) const;
    [[nodiscard]] FakeTimer* Find(int id) const;
    void RunEvent(std::vector<Event>::iterator event);
    void Tick(FakeTimer& timer);

    LocalTime now_;
    std::int64_t time_ = 0;
    int lastTimerId_ = 0;
    std::vector<FakeTimer*> timers_;
    std::vector<Event> events_;
    std::vector<int> sleeps_;
    std::vector<int> waits_;
};

} // namespace zelvor
