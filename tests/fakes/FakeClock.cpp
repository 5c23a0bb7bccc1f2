#include "fakes/FakeClock.h"

#include <algorithm>
#include <utility>

namespace zelvor {

class FakeTimer : public Timer {
public:
    FakeTimer(FakeClock& clock, int id, std::string_view objectName) : clock_(&clock), id_(id), name_(objectName) {}
    FakeTimer(const FakeTimer&) = delete;
    FakeTimer& operator=(const FakeTimer&) = delete;
    ~FakeTimer() override {
        if (clock_) {
            std::erase(clock_->timers_, this);
        }
    }

    void SetInterval(int milliseconds) override {
        interval_ = milliseconds;
        Restart();
    }
    void SetEnabled(bool enabled) override {
        if (enabled != enabled_) {
            enabled_ = enabled;
            Restart();
        }
    }
    [[nodiscard]] bool IsEnabled() const override { return enabled_; }

private:
    friend class FakeClock;

    void Restart() {
        ticking_ = false; // a timer started anew within its tick is a new timer to the event loop
        due_ = clock_ ? clock_->time_ + interval_ : 0;
    }
    [[nodiscard]] bool IsRunning() const { return enabled_ && interval_ > 0; }

    FakeClock* clock_;
    int id_;
    std::string name_;
    int interval_ = 0;
    bool enabled_ = false;
    bool ticking_ = false;
    std::int64_t due_ = 0;
};

FakeClock::~FakeClock() {
    for (FakeTimer* timer : timers_) {
        timer->clock_ = nullptr;
    }
}

void FakeClock::Sleep(int milliseconds) {
    sleeps_.push_back(milliseconds);
    time_ += milliseconds;
}

void FakeClock::WaitProcessingEvents(int milliseconds) {
    waits_.push_back(milliseconds);
    Advance(milliseconds);
}

std::unique_ptr<Timer> FakeClock::MakeTimer(std::string_view objectName) {
    auto timer = std::make_unique<FakeTimer>(*this, ++lastTimerId_, objectName);
    timers_.push_back(timer.get());
    return timer;
}

void FakeClock::Advance(int milliseconds) {
    RunUntil(time_ + milliseconds);
}

void FakeClock::At(int millisecondsFromNow, std::function<void()> event) {
    events_.push_back({time_ + millisecondsFromNow, std::move(event)});
}

Timer* FakeClock::FindTimer(std::string_view objectName) const {
    return Find(objectName);
}

int FakeClock::IntervalOf(std::string_view objectName) const {
    const FakeTimer* timer = Find(objectName);
    return timer ? timer->interval_ : -1;
}

void FakeClock::RunUntil(std::int64_t end) {
    for (;;) {
        const auto event = std::ranges::min_element(events_, {}, &Event::due);
        FakeTimer* timer = FirstDue();
        const bool eventIsDue = event != events_.end() && event->due <= end;
        const bool timerIsDue = timer != nullptr && timer->due_ <= end;
        if (eventIsDue && (!timerIsDue || event->due <= timer->due_)) {
            RunEvent(event);
        } else if (timerIsDue) {
            Tick(*timer);
        } else {
            time_ = std::max(time_, end);
            return;
        }
    }
}

FakeTimer* FakeClock::FirstDue() const {
    FakeTimer* first = nullptr;
    for (FakeTimer* timer : timers_) {
        if (timer->IsRunning() && (!first || timer->due_ < first->due_)) {
            first = timer;
        }
    }
    return first;
}

FakeTimer* FakeClock::Find(std::string_view objectName) const {
    const auto latest = std::find_if(timers_.rbegin(), timers_.rend(),
                                     [&](const FakeTimer* timer) { return timer->name_ == objectName; });
    return latest == timers_.rend() ? nullptr : *latest;
}

FakeTimer* FakeClock::Find(int id) const {
    const auto found = std::ranges::find(timers_, id, &FakeTimer::id_);
    return found == timers_.end() ? nullptr : *found;
}

void FakeClock::RunEvent(std::vector<Event>::iterator event) {
    const Event current = std::move(*event);
    events_.erase(event);
    time_ = std::max(time_, current.due);
    current.run();
}

void FakeClock::Tick(FakeTimer& timer) {
    time_ = std::max(time_, timer.due_);
    timer.due_ += timer.interval_;
    if (timer.due_ <= time_) {
        timer.due_ = time_ + timer.interval_;
    }
    if (timer.ticking_ || !timer.OnTick) {
        return;
    }
    timer.ticking_ = true;
    const int id = timer.id_;
    const auto onTick = timer.OnTick; // the tick may destroy the timer
    onTick();
    if (FakeTimer* living = Find(id)) {
        living->ticking_ = false;
    }
}

} // namespace zelvor
