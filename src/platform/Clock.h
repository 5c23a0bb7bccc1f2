#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string_view>

namespace zelvor {

struct LocalTime {
    int year = 2000;
    int month = 1; // 1 to 12
    int day = 1;
    int hour = 0; // 0 to 23
    int minute = 0;
    int second = 0;
};

/// A repeating timer: ticks every interval on the event loop while enabled, the first time one interval after enabling.
/// A tick that keeps the event loop running is not interrupted by the next tick of its own timer.
class Timer {
public:
    virtual ~Timer() = default;
    /// In milliseconds; a running timer starts the new interval at once. With 0, as at first, nothing ticks.
    virtual void SetInterval(int milliseconds) = 0;
    /// Enabling an enabled timer changes nothing.
    virtual void SetEnabled(bool enabled) = 0;
    [[nodiscard]] virtual bool IsEnabled() const = 0;

    std::function<void()> OnTick;
};

/// Time and waits.
class Clock {
public:
    virtual ~Clock() = default;
    [[nodiscard]] virtual LocalTime Now() const = 0;
    /// Milliseconds from an arbitrary start, never falling.
    [[nodiscard]] virtual std::int64_t TickCount() const = 0;
    /// Blocks; no event is handled meanwhile.
    virtual void Sleep(int milliseconds) = 0;
    /// Waits by the tick counter and keeps the event loop running.
    virtual void WaitProcessingEvents(int milliseconds) = 0;
    /// objectName is the timer's name, such as "ctrTimer".
    [[nodiscard]] virtual std::unique_ptr<Timer> MakeTimer(std::string_view objectName) = 0;
};

} // namespace zelvor
