#include "platform/PortEvents.h"

#include <QSerialPort>

namespace zelvor {

void TakeInArrivals(QSerialPort& port) {
    port.waitForReadyRead(0);
}

void NoteWhatIsSent(QSerialPort& /*port*/) {} // each writing ends before it returns

void DropUnsent(QSerialPort& port) {
    port.clear(QSerialPort::Output);
}

} // namespace zelvor
