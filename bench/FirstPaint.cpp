// Linked into a program, waits until its AwaitedWidget, or that widget's viewport, has been painted and the painting
// handed over to the window system. Then prints one line, "painted <steady clock in nanoseconds> resident <KiB>", and
// ends the process; at once where ZELVOR_ENDS_PAINTED is set, for who counts what the process has done until then.

#include "FirstPaint.h"

#include <QApplication>
#include <QEvent>
#include <QFile>
#include <QTimer>
#include <QWidget>
#include <cstdio>
#include <cstdlib>
#include <ctime>

namespace zelvor::bench {

namespace {

// What is still loaded after the first painting counts as well.
constexpr int SettlingTime = 150; // milliseconds

long ResidentKib() {
    QFile file("/proc/self/status");
    if (!file.open(QIODevice::ReadOnly)) {
        return -1;
    }
    for (const QByteArray& line : file.readAll().split('\n')) {
        if (line.startsWith("VmRSS:")) {
            return line.mid(6).trimmed().split(' ').first().toLong();
        }
    }
    return -1;
}

long long NanosecondsOf(clockid_t clock) {
    timespec time{};
    clock_gettime(clock, &time);
    return time.tv_sec * 1'000'000'000LL + time.tv_nsec;
}

class PaintWatch : public QObject {
public:
    using QObject::QObject;

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Paint && IsAwaited(watched)) {
            QCoreApplication::instance()->removeEventFilter(this);
            // Queued: the round of painting under way ends with handing the picture over.
            QMetaObject::invokeMethod(
                this, [this] { Painted(); }, Qt::QueuedConnection);
        }
        return false;
    }

private:
    static bool IsAwaited(const QObject* widget) {
        const auto* parent = widget->isWidgetType() ? widget->parent() : nullptr;
        return widget->objectName() == AwaitedWidget || (parent != nullptr && parent->objectName() == AwaitedWidget);
    }

    void Painted() {
        const long long painted = NanosecondsOf(CLOCK_MONOTONIC);
        const long long processor = NanosecondsOf(CLOCK_PROCESS_CPUTIME_ID);
        if (qEnvironmentVariableIsSet("ZELVOR_ENDS_PAINTED")) {
            std::_Exit(0);
        }
        QTimer::singleShot(SettlingTime, this, [painted, processor] {
            std::printf("painted %lld processor %lld resident %ld\n", painted, processor, ResidentKib());
            static_cast<void>(std::fflush(stdout));
            std::_Exit(0);
        });
    }
};

void Watch() {
    auto* application = QCoreApplication::instance();
    application->installEventFilter(new PaintWatch(application));
}

// The application object calls it when it is made; nothing in the program itself knows of it.
Q_COREAPP_STARTUP_FUNCTION(Watch)

} // namespace

} // namespace zelvor::bench
