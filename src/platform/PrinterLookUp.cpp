#include "platform/PrinterLookUp.h"

#include <thread>
#include <utility>

namespace zelvor {

namespace {

constexpr std::chrono::milliseconds PollInterval{10};

} // namespace

PrinterLookUp::PrinterLookUp(Ask ask, std::chrono::milliseconds patience) : ask_(std::move(ask)), patience_(patience) {
    poll_.setInterval(PollInterval);
    QObject::connect(&poll_, &QTimer::timeout, &poll_, [this] { Poll(); });
}

void PrinterLookUp::Start(Told told) {
    waiting_.push_back(std::move(told));
    if (waiting_.size() > 1) {
        return;
    }
    if (!answer_.valid()) {
        Launch();
    }
    waited_.start();
    poll_.start();
}

// The thread has everything of its own, so that it may outlive whoever asks, and may hang for ever.
void PrinterLookUp::Launch() {
    isLate_ = false;
    std::promise<Printers> promise;
    answer_ = promise.get_future();
    std::thread([ask = ask_, promise = std::move(promise)]() mutable { promise.set_value(ask()); }).detach();
}

void PrinterLookUp::Poll() {
    if (answer_.wait_for(std::chrono::seconds(0)) == std::future_status::ready) {
        const Printers printers = answer_.get();
        if (!isLate_) {
            Tell(printers);
            return;
        }
        Launch(); // what was asked long ago may not be true any more
    }
    if (waited_.hasExpired(patience_.count())) {
        isLate_ = true;
        Tell(std::nullopt);
    }
}

// What is told may start the next question.
void PrinterLookUp::Tell(const std::optional<Printers>& printers) {
    poll_.stop();
    for (const Told& told : std::exchange(waiting_, {})) {
        told(printers);
    }
}

} // namespace zelvor
