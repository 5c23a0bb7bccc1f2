#pragma once

#include <map>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/SerialPort.h"

namespace zelvor {

inline constexpr int FirstPortNumber = 1;
inline constexpr int LastPortNumber = 20;

/// What a USB adapter says of itself; all empty for other ports, and for an adapter that the system does not know yet.
struct UsbIdentity {
    int vendor = 0;
    int product = 0;
    std::string serialNumber; // many adapters have none
    bool operator==(const UsbIdentity&) const = default;
};

/// A port that the machine has.
struct MachinePort {
    std::string name; // "ttyUSB0", "cu.usbserial-1", "COM3"
    PortDescription description;
    bool isUsb = false;
    UsbIdentity identity = {};
};

/// A link of the user's that gives a device a number.
struct PortLink {
    int number = 0;
    std::string devicePath; // where it points to, also when nothing is there
};

using PortNumbers = std::map<int, PortDescription>;

/// Which number stands for which device, on systems without numbered ports.
///
/// A link has its number, whether its device is there or not. The numbers left go to the machine's other ports: USB
/// adapters first, then built-in ones, each in name order with digits read as numbers.
///
/// From then on a number keeps its device. While the device (or the link) is gone, nothing stands behind the number, so
/// that what is meant for the radio never goes to another device. An adapter that is plugged in gets its own old
/// number, or the first one that no device has had. Only a link, which is the user's word, takes a number from a
/// device.
class PortNumbering {
public:
    /// Forgets which device has had which number.
    void NumberAnew(std::span<const PortLink> links, std::span<const MachinePort> ports);
    /// Takes in which links and ports there are by now.
    void Follow(std::span<const PortLink> links, std::span<const MachinePort> ports);

    /// An empty path where nothing stands behind the number.
    [[nodiscard]] PortDescription DeviceOf(int number) const;

private:
    /// The device that has, or had, a number.
    struct Holder {
        MachinePort port;
        bool isLinked = false;
        bool isThere = true;
    };

    void TakeLinks(std::span<const PortLink> links, std::span<const MachinePort> ports);
    void LookForHolders(std::span<const MachinePort> ports);
    void GiveNumber(const MachinePort& port, std::span<const MachinePort> ports);
    [[nodiscard]] bool HasNumber(const MachinePort& port) const;
    [[nodiscard]] bool MayBeOneOfOurs(const MachinePort& port) const;
    [[nodiscard]] Holder* GoneHolderBySerialNumber(const UsbIdentity& identity, std::span<const MachinePort> ports);

    std::map<int, Holder> holders_;
};

/// Without the ports "tty.X" beside which there is a "cu.X": a Mac tells each device twice, and the former waits for a
/// modem to answer.
[[nodiscard]] std::vector<MachinePort> WithoutDialIn(std::vector<MachinePort> ports);

/// On systems whose ports are named COM1, COM2 and so on: the number is the name's.
[[nodiscard]] PortNumbers NumbersByName(std::span<const MachinePort> ports);

/// The number of the name "COM<n>" with n from 1 to 20; 0 for any other name.
[[nodiscard]] int NumberOfPortName(std::string_view name);

} // namespace zelvor
