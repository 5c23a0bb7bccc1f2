#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace zelvor {

/// Settings texts; no others are used.
inline constexpr std::string_view RadioPortSettings = "9600,N,8,2";
inline constexpr std::string_view ProbePortSettings = "19200,N,8,1";

inline constexpr int RadioInputBufferSize = 1024;
inline constexpr int RadioOutputBufferSize = 512;

/// Reason of a receive event. Every reason but DataReceived is ignored by all who listen.
enum class ReceiveReason { DataReceived = 2, Error = 100 };

/// Why a port cannot be opened.
enum class PortFault {
    None,
    Missing,      // nothing stands behind its number
    InUse,        // another program holds it
    NotPermitted, // the user may not open it
    Unusable,     // anything else, such as a device that is no serial port
};

struct PortFailure {
    PortFault fault = PortFault::None;
    std::string devicePath = {}; // empty where no device has the number
    std::string group = {};      // NotPermitted: whose members may open it; empty where that is not the remedy
};

/// A serial port as the radio link asks for it. Nothing here waits, and nothing throws.
class SerialPort {
public:
    virtual ~SerialPort() = default;

    /// Selects the device, 1 to 20; only before opening.
    virtual void SetNumber(int number) = 0;
    /// RadioPortSettings or ProbePortSettings; only before opening.
    virtual void SetSettings(std::string_view settings) = 0;
    virtual void SetBufferSizes(int inputBytes, int outputBytes) = 0;
    virtual void SetBinaryInput() = 0;

    /// False where the port cannot be opened. Opening an open port is true and does nothing.
    [[nodiscard]] virtual bool Open() = 0;
    /// Why the last Open() was false; PortFault::None after one that was true.
    [[nodiscard]] virtual PortFailure Failure() const = 0;
    virtual void Close() = 0;
    /// False also after the device vanished.
    [[nodiscard]] virtual bool IsOpen() const = 0;
    /// Whether the open port's number stands for no device by now, or for another: cables come and go.
    [[nodiscard]] virtual bool IsStale() const = 0;

    virtual void ClearInput() = 0;
    virtual void ClearOutput() = 0;

    /// The receive event is raised when bytes have arrived and at least this many are waiting; 0 turns it off.
    virtual void SetReceiveThreshold(int count) = 0;
    /// The next reads return at most this many bytes; 0 means all that are waiting.
    virtual void SetReadLength(int count) = 0;
    /// What is waiting, up to the read length, at once and possibly nothing.
    [[nodiscard]] virtual std::vector<std::uint8_t> Read() = 0;
    /// How many bytes are waiting.
    [[nodiscard]] virtual int WaitingBytes() const = 0;
    /// Hands the bytes over and returns at once; does nothing on a closed port.
    virtual void Send(std::span<const std::uint8_t> bytes) = 0;

    /// Raised on the event loop.
    std::function<void(ReceiveReason)> OnReceive;
};

/// What lies behind a port number.
struct PortDescription {
    std::string devicePath;  // "/dev/ttyUSB0"
    std::string description; // "FT232R USB UART", may be empty
};

/// Makes port objects: every dialog that talks to the radio has its own. The ports are numbered when the program
/// starts, and a number keeps its device until they are numbered anew.
class SerialPorts {
public:
    virtual ~SerialPorts() = default;
    /// objectName is the control's name, such as "MSComm1".
    [[nodiscard]] virtual std::unique_ptr<SerialPort> Make(std::string_view objectName) = 0;
    /// The device behind a port number 1 to 20; an empty path where there is none, or where it is gone.
    [[nodiscard]] virtual PortDescription Describe(int number) = 0;
    /// Numbers what the machine has now; for the dialog that shows the numbers.
    virtual void NumberAnew() = 0;
};

} // namespace zelvor
