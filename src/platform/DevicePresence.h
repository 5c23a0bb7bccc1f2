#pragma once

class QSerialPort;

namespace zelvor {

/// Whether the device of an open port is still there. Asks the open port and not the device's name, which another
/// device may have taken meanwhile, or which may outlive its device for a moment.
[[nodiscard]] bool HasDevice(const QSerialPort& port);

} // namespace zelvor
