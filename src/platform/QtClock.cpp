#include "platform/QtClock.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QThread>
#include <QTimer>
#include <algorithm>

#include "platform/Toolkit.h"

namespace zelvor {

namespace {

class QtTimer : public Timer {
public:
    QtTimer(std::string_view objectName, QObject* parent) : timer_(new QTimer(parent)) {
        timer_->setObjectName(ToQString(objectName));
        timer_->setTimerType(Qt::PreciseTimer);
        QObject::connect(timer_, &QTimer::timeout, timer_, [this] { Tick(); });
    }
    QtTimer(const QtTimer&) = delete;
    QtTimer& operator=(const QtTimer&) = delete;
    ~QtTimer() override { delete timer_; }

    void SetInterval(int milliseconds) override {
        interval_ = milliseconds;
        Restart();
    }
    void SetEnabled(bool enabled) override {
        if (enabled != isEnabled_) {
            isEnabled_ = enabled;
            Restart();
        }
    }
    [[nodiscard]] bool IsEnabled() const override { return isEnabled_; }

private:
    void Restart() {
        if (!timer_) {
            return;
        }
        timer_->stop();
        timer_->setInterval(interval_);
        if (isEnabled_ && interval_ > 0) {
            timer_->start();
        }
    }
    void Tick() {
        if (const auto onTick = OnTick) { // a copy: the tick may destroy the timer
            onTick();
        }
    }

    QPointer<QTimer> timer_; // may go with its parent
    int interval_ = 0;
    bool isEnabled_ = false;
};

} // namespace

QtClock::QtClock(QObject* timerParent) : timerParent_(timerParent) {
    elapsed_.start();
}

LocalTime QtClock::Now() const {
    const QDateTime now = QDateTime::currentDateTime();
    const QDate date = now.date();
    const QTime time = now.time();
    return {date.year(), date.month(), date.day(), time.hour(), time.minute(), time.second()};
}

void QtClock::Sleep(int milliseconds) {
    QThread::msleep(static_cast<unsigned long>(std::max(milliseconds, 0)));
}

void QtClock::WaitProcessingEvents(int milliseconds) {
    QElapsedTimer waited;
    waited.start();
    QTimer wake; // or a quiet event loop would sleep past the end
    wake.setTimerType(Qt::PreciseTimer);
    for (auto left = static_cast<qint64>(milliseconds); left > 0; left = milliseconds - waited.elapsed()) {
        wake.start(static_cast<int>(left));
        QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
    }
}

std::unique_ptr<Timer> QtClock::MakeTimer(std::string_view objectName) {
    return std::make_unique<QtTimer>(objectName, timerParent_);
}

} // namespace zelvor
