#include "Painting.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QWidget>

namespace zelvor::bench {

namespace {

constexpr int KeyRounds = 8;

void Press(Qt::Key key, const QString& text) {
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        if (QWidget* focus = QApplication::focusWidget()) {
            QKeyEvent event(type, key, Qt::NoModifier, text);
            QCoreApplication::sendEvent(focus, &event);
        }
    }
}

} // namespace

double UntilPainted(QWidget& window, const std::function<void()>& work) {
    QElapsedTimer time;
    time.start();
    work();
    QCoreApplication::sendPostedEvents();
    QEvent update(QEvent::UpdateRequest);
    QCoreApplication::sendEvent(&window, &update);
    return static_cast<double>(time.nsecsElapsed()) / NanosecondsPerMillisecond;
}

void MeasureKeys(QWidget& window, std::vector<double>& times) {
    for (int round = 0; round < KeyRounds; ++round) {
        times.push_back(UntilPainted(window, [] { Press(Qt::Key_Tab, "\t"); }));
        times.push_back(UntilPainted(window, [] { Press(Qt::Key_Down, {}); }));
        times.push_back(UntilPainted(window, [] { Press(Qt::Key_1, "1"); }));
    }
}

} // namespace zelvor::bench
