#include "link/PortProbe.h"

#include <array>
#include <cstdint>

#include "platform/Clock.h"
#include "platform/SerialPort.h"

namespace zelvor {

namespace {

constexpr std::array<std::uint8_t, 5> ProbeCommand{'A', 'T', 'I', '1', '\r'};
constexpr int ProbeWait = 200; // milliseconds

} // namespace

bool ProbePort(SerialPort& port, Clock& clock, int number) {
    port.SetNumber(number);
    port.SetSettings(ProbePortSettings);
    port.SetReadLength(0);
    if (!port.Open()) {
        return false;
    }
    port.Send(ProbeCommand);
    clock.Sleep(ProbeWait);
    port.Close();
    return true;
}

} // namespace zelvor
