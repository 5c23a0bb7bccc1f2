#include "platform/DevicePresence.h"

#include <QSerialPortInfo>

namespace zelvor {

bool HasDevice(const QSerialPort& port) {
    return !QSerialPortInfo(port).isNull();
}

} // namespace zelvor
