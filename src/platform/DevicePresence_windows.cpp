#include "platform/DevicePresence.h"

#include <QSerialPortInfo>

namespace zelvor {

bool HasDevice(const QSerialPort& port) {
    return !QSerialPortInfo(port).isNull();
}

std::unique_ptr<QObject> WatchDevice(const QSerialPort&, std::function<void()>) {
    return nullptr;
}

} // namespace zelvor
