#include "platform/DevicePresence.h"

#include <QSerialPort>
#include <QSocketNotifier>
#include <termios.h>
#include <utility>

namespace zelvor {

bool HasDevice(const QSerialPort& port) {
    termios settings{};
    return tcgetattr(port.handle(), &settings) == 0;
}

std::unique_ptr<QObject> WatchDevice(const QSerialPort& port, std::function<void()> onHangUp) {
    auto notifier = std::make_unique<QSocketNotifier>(port.handle(), QSocketNotifier::Exception);
    QObject::connect(notifier.get(), &QSocketNotifier::activated, notifier.get(),
                     [watch = notifier.get(), onHangUp = std::move(onHangUp)] {
                         watch->setEnabled(false); // or it reports it for ever
                         onHangUp();
                     });
    return notifier;
}

} // namespace zelvor
