#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <span>

#include "simulator/program/LineSettings.h"

namespace zelvor {

/// A pseudo-terminal: a serial port for other programs, whose far end is here. Closed with the object; a program that
/// has the port open then sees it vanish.
class PseudoTerminal {
public:
    /// A new port in raw mode; nothing where the system has none to give.
    [[nodiscard]] static std::optional<PseudoTerminal> Open();

    PseudoTerminal(PseudoTerminal&& other) noexcept;
    PseudoTerminal& operator=(PseudoTerminal&& other) noexcept;
    PseudoTerminal(const PseudoTerminal&) = delete;
    PseudoTerminal& operator=(const PseudoTerminal&) = delete;
    ~PseudoTerminal();

    /// For waiting: readable when the other side has sent something.
    [[nodiscard]] int Descriptor() const { return master_; }
    [[nodiscard]] const std::filesystem::path& PortPath() const { return portPath_; }

    /// What has arrived, at most the buffer's size, possibly nothing. Never waits.
    [[nodiscard]] std::size_t Read(std::span<std::uint8_t> buffer);

    /// Sends a byte. Lost, as on a real line, where the other side lets its buffer run over.
    void Write(std::uint8_t byte);

    /// Takes back what was sent and is not read yet.
    void DropSent();

    /// How the other side has set the port.
    [[nodiscard]] LineSettings Settings() const;

private:
    PseudoTerminal() = default;

    int master_ = -1;
    int port_ = -1; // kept open, so that the far end does not see a hang-up between two programs
    std::filesystem::path portPath_;
};

} // namespace zelvor
