// Without the toolkit's own waiting functions. Its versions before 6.4.3 count the events of a port twice where both an
// event loop and these functions take them, and crash when they look for one that is not there (QTBUG-108450).

#include "platform/PortEvents.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QSerialPort>
#include <QThread>
#include <windows.h>

namespace zelvor {

namespace {

constexpr int LongestReading = 20; // milliseconds, of bytes that the driver has

/// What the driver has reported waits as calls of objects that the port owns.
void DeliverReports(QSerialPort& port) {
    const QObjectList children = port.children();
    for (QObject* child : children) {
        if (port.children().contains(child)) { // a report may close the port
            QCoreApplication::sendPostedEvents(child, QEvent::MetaCall);
        }
    }
}

bool DriverHasBytes(const QSerialPort& port) {
    COMSTAT state{};
    return ClearCommError(port.handle(), nullptr, &state) != 0 && state.cbInQue > 0;
}

} // namespace

void TakeInArrivals(QSerialPort& port) {
    bool hasRead = false;
    const QMetaObject::Connection reading =
        QObject::connect(&port, &QSerialPort::readyRead, &port, [&hasRead] { hasRead = true; });
    const bool mustRead = DriverHasBytes(port);
    QElapsedTimer waited;
    waited.start();
    DeliverReports(port); // that bytes have come; then the port reads them, which is reported as well
    while (port.isOpen() && mustRead && (!hasRead || DriverHasBytes(port)) && !waited.hasExpired(LongestReading)) {
        QThread::msleep(1);
        DeliverReports(port);
    }
    QObject::disconnect(reading);
}

void NoteWhatIsSent(QSerialPort& port) {
    DeliverReports(port);
}

// A driver that is told to drop what it is sending reports that as an error, and the port sends no more.
void DropUnsent(QSerialPort& port) {
    DeliverReports(port);
    if (port.isOpen() && port.bytesToWrite() == 0) {
        port.clear(QSerialPort::Output);
    }
}

} // namespace zelvor
