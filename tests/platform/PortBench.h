#pragma once

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
    static constexpr int Number = 3;
    static constexpr int MissingNumber = 7;

    virtual ~PortBench() = default;
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
/// A pseudo-terminal behind a link of the user's.
std::unique_ptr<PortBench> MakeRealPortBench();

} // namespace zelvor
