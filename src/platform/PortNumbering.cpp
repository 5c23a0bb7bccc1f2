#include "platform/PortNumbering.h"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <string_view>

namespace zelvor {

namespace {

bool IsDigit(char character) {
    return std::isdigit(static_cast<unsigned char>(character)) != 0;
}

// Takes a run of digits off the text's front, without its leading zeros.
std::string_view TakeDigits(std::string_view& text) {
    const auto length = static_cast<std::size_t>(std::ranges::find_if_not(text, IsDigit) - text.begin());
    std::string_view digits = text.substr(0, length);
    text.remove_prefix(length);
    digits.remove_prefix(std::min(digits.find_first_not_of('0'), digits.size()));
    return digits;
}

// ttyS2 before ttyS10.
bool ComesBefore(std::string_view left, std::string_view right) {
    while (!left.empty() && !right.empty()) {
        if (IsDigit(left.front()) && IsDigit(right.front())) {
            const std::string_view a = TakeDigits(left);
            const std::string_view b = TakeDigits(right);
            if (a != b) {
                return a.size() != b.size() ? a.size() < b.size() : a < b;
            }
        } else if (left.front() != right.front()) {
            return left.front() < right.front();
        } else {
            left.remove_prefix(1);
            right.remove_prefix(1);
        }
    }
    return left.size() < right.size();
}

bool ComesBeforeInOrder(const MachinePort& left, const MachinePort& right) {
    return left.isUsb != right.isUsb ? left.isUsb : ComesBefore(left.name, right.name);
}

MachinePort PortOf(const PortLink& link, std::span<const MachinePort> ports) {
    const auto found =
        std::ranges::find(ports, link.devicePath, [](const MachinePort& port) { return port.description.devicePath; });
    return found != ports.end() ? *found : MachinePort{{}, {link.devicePath, {}}};
}

bool HasPathOf(const MachinePort& left, const MachinePort& right) {
    return left.description.devicePath == right.description.devicePath;
}

bool IsKnown(const UsbIdentity& identity) {
    return identity != UsbIdentity();
}

// An adapter that says of itself something else is another one, which has taken the path.
bool IsSameDevice(const MachinePort& known, const MachinePort& found) {
    return HasPathOf(known, found) && (known.identity == found.identity || !IsKnown(known.identity));
}

} // namespace

void PortNumbering::NumberAnew(std::span<const PortLink> links, std::span<const MachinePort> ports) {
    holders_.clear();
    Follow(links, ports);
}

void PortNumbering::Follow(std::span<const PortLink> links, std::span<const MachinePort> ports) {
    TakeLinks(links, ports);
    LookForHolders(ports);
    std::vector<MachinePort> ordered(ports.begin(), ports.end());
    std::ranges::sort(ordered, ComesBeforeInOrder);
    for (const MachinePort& port : ordered) {
        if (!HasNumber(port) && !MayBeOneOfOurs(port)) {
            GiveNumber(port, ports);
        }
    }
}

PortDescription PortNumbering::DeviceOf(int number) const {
    const auto found = holders_.find(number);
    return found != holders_.end() && found->second.isThere ? found->second.port.description : PortDescription();
}

void PortNumbering::TakeLinks(std::span<const PortLink> links, std::span<const MachinePort> ports) {
    for (auto& [number, holder] : holders_) {
        holder.isLinked = false;
    }
    for (const PortLink& link : links) {
        holders_[link.number] = {.port = PortOf(link, ports), .isLinked = true};
    }
}

void PortNumbering::LookForHolders(std::span<const MachinePort> ports) {
    for (auto& [number, holder] : holders_) {
        const auto found = std::ranges::find_if(
            ports, [&known = holder.port](const MachinePort& port) { return IsSameDevice(known, port); });
        holder.isThere = holder.isLinked || found != ports.end();
        if (found != ports.end()) {
            holder.port = *found;
        }
    }
}

void PortNumbering::GiveNumber(const MachinePort& port, std::span<const MachinePort> ports) {
    if (Holder* holder = GoneHolderBySerialNumber(port.identity, ports)) {
        holder->port = port;
        holder->isThere = true;
        return;
    }
    int number = FirstPortNumber;
    while (holders_.contains(number)) {
        ++number;
    }
    if (number <= LastPortNumber) {
        holders_[number] = {.port = port};
    }
}

bool PortNumbering::HasNumber(const MachinePort& port) const {
    return std::ranges::any_of(
        holders_, [&](const auto& entry) { return entry.second.isThere && HasPathOf(entry.second.port, port); });
}

/// An adapter just plugged in at the path of one that is gone, which the system does not know yet.
bool PortNumbering::MayBeOneOfOurs(const MachinePort& port) const {
    return !IsKnown(port.identity) &&
           std::ranges::any_of(holders_, [&](const auto& entry) { return HasPathOf(entry.second.port, port); });
}

/// Null also where more than one adapter has the serial number: then it tells nothing.
PortNumbering::Holder* PortNumbering::GoneHolderBySerialNumber(const UsbIdentity& identity,
                                                               std::span<const MachinePort> ports) {
    if (identity.serialNumber.empty() || std::ranges::count(ports, identity, &MachinePort::identity) > 1) {
        return nullptr;
    }
    Holder* only = nullptr;
    for (auto& [number, holder] : holders_) {
        if (holder.port.identity != identity) {
            continue;
        }
        if (only != nullptr || holder.isThere) {
            return nullptr;
        }
        only = &holder;
    }
    return only;
}

std::vector<MachinePort> WithoutDialIn(std::vector<MachinePort> ports) {
    constexpr std::string_view dialIn = "tty.";
    constexpr std::string_view callOut = "cu.";
    const std::vector<MachinePort> all = ports;
    std::erase_if(ports, [&](const MachinePort& port) {
        return port.name.starts_with(dialIn) &&
               std::ranges::find(all, std::string(callOut) + port.name.substr(dialIn.size()), &MachinePort::name) !=
                   all.end();
    });
    return ports;
}

PortNumbers NumbersByName(std::span<const MachinePort> ports) {
    PortNumbers numbers;
    for (const MachinePort& port : ports) {
        if (const int number = NumberOfPortName(port.name); number != 0) {
            numbers.emplace(number, port.description);
        }
    }
    return numbers;
}

int NumberOfPortName(std::string_view name) {
    constexpr std::string_view prefix = "COM";
    if (!name.starts_with(prefix)) {
        return 0;
    }
    const std::string_view digits = name.substr(prefix.size());
    int number = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    const bool isPlain = error == std::errc() && end == digits.data() + digits.size() && digits.front() != '0';
    return isPlain && number >= FirstPortNumber && number <= LastPortNumber ? number : 0;
}

} // namespace zelvor
