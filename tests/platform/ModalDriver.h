#pragma once

#include <QApplication>
#include <QTimer>
#include <functional>
#include <gtest/gtest.h>
#include <memory>

namespace zelvor {

/// Does something to the next modal dialog of that kind as soon as it is up, while the test waits in the call that
/// shows it.
template<class Dialog>
void WithNextDialog(std::function<void(Dialog&)> act) {
    constexpr int Attempts = 12000; // a minute: a dialog that came after the last one would stay for ever
    auto* poll = new QTimer(qApp);
    poll->setInterval(5);
    QObject::connect(poll, &QTimer::timeout, poll, [poll, act = std::move(act), left = Attempts]() mutable {
        auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
        const bool isUp = dialog && dialog->isVisible();
        if (!isUp && --left > 0) {
            return;
        }
        EXPECT_TRUE(isUp) << "No dialog came up";
        poll->stop();
        poll->deleteLater();
        if (isUp) {
            act(*dialog);
        }
    });
    poll->start();
}

} // namespace zelvor
