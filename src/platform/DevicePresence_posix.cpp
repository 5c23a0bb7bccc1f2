#include "platform/DevicePresence.h"

#include <QSerialPort>
#include <termios.h>

namespace zelvor {

bool HasDevice(const QSerialPort& port) {
    termios settings{};
    return tcgetattr(port.handle(), &settings) == 0;
}

} // namespace zelvor
