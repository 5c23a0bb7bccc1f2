#pragma once

#include <cstdint>
#include <string>
#include <termios.h>
#include <vector>

namespace zelvor {

/// A pair of descriptors with the device between them. Ours of the device's side stays open, or the far end would fail
/// to read whenever no program has the device open.
class PseudoTerminal {
public:
    PseudoTerminal();
    PseudoTerminal(const PseudoTerminal&) = delete;
    PseudoTerminal& operator=(const PseudoTerminal&) = delete;
    ~PseudoTerminal();

    [[nodiscard]] const std::string& DevicePath() const { return devicePath_; }
    void Write(const std::vector<std::uint8_t>& bytes) const;
    /// What has arrived, possibly nothing.
    [[nodiscard]] std::vector<std::uint8_t> Read() const;
    /// The settings of the device as it was opened.
    [[nodiscard]] termios Settings() const;
    /// As an adapter is pulled out.
    void Unplug();

private:
    int farEnd_ = -1;
    int device_ = -1;
    std::string devicePath_;
};

} // namespace zelvor
