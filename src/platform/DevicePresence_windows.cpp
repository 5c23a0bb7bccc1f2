#include "platform/DevicePresence.h"

#include <QSerialPort>
#include <windows.h>

namespace zelvor {

bool HasDevice(const QSerialPort& port) {
    DCB settings{};
    settings.DCBlength = sizeof settings;
    return GetCommState(port.handle(), &settings) != 0;
}

// The reading that always waits in the driver fails where the device goes, and the port reports that.
std::unique_ptr<QObject> WatchDevice(const QSerialPort&, std::function<void()>) {
    return nullptr;
}

} // namespace zelvor
