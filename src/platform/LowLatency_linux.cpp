#include "platform/LowLatency.h"

#include <QSerialPort>
#include <linux/serial.h>
#include <linux/tty_flags.h>
#include <sys/ioctl.h>
#include <sys/prctl.h>

namespace zelvor {

void AskForLowLatency(QSerialPort& port) {
    prctl(PR_SET_TIMERSLACK, 1UL); // nanosecond; the system else adds 50 microseconds to each wait between two packets
    serial_struct settings{};
    if (ioctl(port.handle(), TIOCGSERIAL, &settings) == 0) {
        settings.flags |= ASYNC_LOW_LATENCY;
        static_cast<void>(ioctl(port.handle(), TIOCSSERIAL, &settings));
    }
}

} // namespace zelvor
