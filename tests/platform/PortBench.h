#pragma once

#include <QtGlobal>
#include <chrono>
#include <cstdint>
#include <functional>
#include <initializer_list>
#include <memory>
#include <vector>

#include "platform/SerialPort.h"

namespace zelvor {

using Bytes = std::vector<std::uint8_t>;

/// A machine with a port whose far end the test holds, and a number without a port.
class PortBench {
public:
    virtual ~PortBench() = default;
    [[nodiscard]] virtual int Number() const { return 3; }
    [[nodiscard]] virtual int MissingNumber() const { return 7; }
    /// How long a few bytes may be on their way.
    [[nodiscard]] virtual std::chrono::milliseconds Transit() const { return std::chrono::milliseconds(5); }
    virtual SerialPorts& Ports() = 0;

    /// Runs the event loop until the condition holds; false where it never does.
    virtual bool WaitFor(const std::function<bool()>& condition) = 0;
    /// Runs the event loop long enough for an event that is on its way to arrive.
    virtual void Settle() = 0;

    virtual void FarEndSends(const Bytes& bytes) = 0;
    /// All bytes that the far end has received so far.
    virtual Bytes FarEndReceived() = 0;
    virtual void Unplug() = 0;
    /// After Unplug: another device has the number now.
    virtual void PlugInAnother() = 0;
    /// Another program opens the port, or lets go of it.
    virtual void HoldElsewhere() = 0;
    virtual void ReleaseElsewhere() = 0;

    /// A port with the number of the bench, open.
    std::unique_ptr<SerialPort> OpenPort();
};

std::unique_ptr<PortBench> MakeFakePortBench();
#ifdef Q_OS_UNIX
/// A pseudo-terminal behind a link of the user's.
std::unique_ptr<PortBench> MakeTerminalPortBench();
#endif
/// Two ports of this machine with a null-modem cable between them, which the variable ZELVOR_NULL_MODEM names as the
/// system does: COM3,COM4 or /dev/ttyUSB0,/dev/ttyUSB1. None where it names none.
std::unique_ptr<PortBench> MakeNullModemBench();
[[nodiscard]] bool HasNullModem();

} // namespace zelvor
