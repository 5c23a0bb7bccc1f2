#pragma once

#include <cstdint>
#include <filesystem>
#include <vector>

#include <termios.h>

namespace zelvor::test {

/// A programming device on a serial port, without any of Zelvor's own port code.
class TerminalHost {
public:
    using Bytes = std::vector<std::uint8_t>;

    /// Opens the port and sets it to 8 data bits, no parity, and 2 stop bits where `twoStopBits`.
    explicit TerminalHost(const std::filesystem::path& port, speed_t speed = B9600, bool twoStopBits = true);
    TerminalHost(const TerminalHost&) = delete;
    TerminalHost& operator=(const TerminalHost&) = delete;
    ~TerminalHost();

    [[nodiscard]] bool IsOpen() const { return port_ >= 0; }

    void Send(const Bytes& bytes) const;

    /// Waits for `count` bytes; fewer where they do not come within `patience` or the port vanishes.
    [[nodiscard]] Bytes Receive(std::size_t count, int patienceMs = 5000) const;

    [[nodiscard]] Bytes Ask(const Bytes& bytes, std::size_t count) const {
        Send(bytes);
        return Receive(count);
    }

    /// Whether the port has gone within some seconds.
    [[nodiscard]] bool SeesHangUp() const;

private:
    int port_ = -1;
};

} // namespace zelvor::test
