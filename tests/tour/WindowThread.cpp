#include "tour/WindowThread.h"

#include <QCoreApplication>
#include <thread>

#include "tour/Failure.h"

namespace zelvor::tour {

namespace {

constexpr std::chrono::milliseconds PollInterval(10);

} // namespace

void WindowThread::Post(std::function<void()> work) {
    QMetaObject::invokeMethod(QCoreApplication::instance(), std::move(work), Qt::QueuedConnection);
}

void WindowThread::WaitUntil(const std::string& what, const std::function<bool()>& condition,
                             std::chrono::milliseconds patience) {
    const Clock::time_point patienceEnd = Clock::now() + patience;
    while (!Ask(condition)) {
        FailIfLate(what, patienceEnd);
        Pause(PollInterval);
    }
}

void WindowThread::Pause(std::chrono::milliseconds duration) const {
    std::this_thread::sleep_for(duration);
}

void WindowThread::FailIfLate(const std::string& what, Clock::time_point patienceEnd) const {
    const Clock::time_point now = Clock::now();
    if (now > end_) {
        throw Failure("the time is up while waiting for " + what);
    }
    if (now > patienceEnd) {
        throw Failure("waited in vain for " + what);
    }
}

} // namespace zelvor::tour
