#pragma once

#include <QElapsedTimer>
#include <QPointer>

#include "platform/Clock.h"

namespace zelvor {

/// The machine's time. Timers are precise QTimers with the name given as objectName.
class QtClock : public Clock {
public:
    /// The timers become children of timerParent, where they are found by their names.
    explicit QtClock(QObject* timerParent = nullptr);

    [[nodiscard]] LocalTime Now() const override;
    [[nodiscard]] std::int64_t TickCount() const override { return elapsed_.elapsed(); }
    void Sleep(int milliseconds) override;
    void WaitProcessingEvents(int milliseconds) override;
    [[nodiscard]] std::unique_ptr<Timer> MakeTimer(std::string_view objectName) override;

private:
    QPointer<QObject> timerParent_;
    QElapsedTimer elapsed_;
};

} // namespace zelvor
