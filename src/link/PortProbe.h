#pragma once

namespace zelvor {

class Clock;
class SerialPort;

/// Port numbers that can be chosen: 1 to 20.
inline constexpr int PortCount = 20;

/// Whether port `number` can be opened. Opens it at 19200 baud, sends "ATI1" and carriage return, blocks for 200 ms and
/// closes it again; nothing that comes back has any influence.
[[nodiscard]] bool ProbePort(SerialPort& port, Clock& clock, int number);

} // namespace zelvor
