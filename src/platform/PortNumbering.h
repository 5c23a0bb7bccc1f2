#pragma once

#include <map>
#include <span>
#include <string>
#include <vector>

#include "platform/SerialPort.h"

namespace zelvor {

inline constexpr int FirstPortNumber = 1;
inline constexpr int LastPortNumber = 20;

/// A port that the machine has.
struct MachinePort {
    std::string name; // "ttyUSB0", "cu.usbserial-1", "COM3"
    PortDescription description;
    bool isUsb = false;
};

/// A link of the user's that gives a device a number.
struct PortLink {
    int number = 0;
    std::string devicePath; // where it points to, also when nothing is there
};

using PortNumbers = std::map<int, PortDescription>;

/// On systems without numbered ports. A link has its number, whether its device is there or not. The numbers left go to
/// the machine's other ports: USB adapters first, then built-in ones, each in name order with digits read as numbers.
[[nodiscard]] PortNumbers NumbersByLinksAndOrder(std::span<const PortLink> links, std::span<const MachinePort> ports);

/// On systems whose ports are named COM1, COM2 and so on: the number is the name's.
[[nodiscard]] PortNumbers NumbersByName(std::span<const MachinePort> ports);

/// The number of the name "COM<n>" with n from 1 to 20; 0 for any other name.
[[nodiscard]] int NumberOfPortName(std::string_view name);

} // namespace zelvor
