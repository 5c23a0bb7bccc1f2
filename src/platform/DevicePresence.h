#pragma once

#include <QObject>
#include <functional>
#include <memory>

class QSerialPort;

namespace zelvor {

/// Whether the device of an open port is still there. Asks the open port and not the device's name, which another
/// device may have taken meanwhile, or which may outlive its device for a moment.
[[nodiscard]] bool HasDevice(const QSerialPort& port);

/// Calls onHangUp once when the system reports that the device of the open port hung up, as long as the watch lives.
/// The toolkit's port reports that as an error or, in some versions, takes it for silence and asks again and again.
/// Null where the system has no such report.
[[nodiscard]] std::unique_ptr<QObject> WatchDevice(const QSerialPort& port, std::function<void()> onHangUp);

} // namespace zelvor
