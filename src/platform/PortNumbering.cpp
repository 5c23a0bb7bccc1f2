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

PortDescription DescriptionOf(const PortLink& link, std::span<const MachinePort> ports) {
    const auto found =
        std::ranges::find(ports, link.devicePath, [](const MachinePort& port) { return port.description.devicePath; });
    return found != ports.end() ? found->description : PortDescription{link.devicePath, {}};
}

bool IsLinked(const MachinePort& port, std::span<const PortLink> links) {
    return std::ranges::any_of(links,
                               [&](const PortLink& link) { return link.devicePath == port.description.devicePath; });
}

} // namespace

PortNumbers NumbersByLinksAndOrder(std::span<const PortLink> links, std::span<const MachinePort> ports) {
    PortNumbers numbers;
    for (const PortLink& link : links) {
        numbers.emplace(link.number, DescriptionOf(link, ports));
    }
    std::vector<MachinePort> ordered(ports.begin(), ports.end());
    std::ranges::sort(ordered, ComesBeforeInOrder);
    int number = FirstPortNumber;
    for (const MachinePort& port : ordered) {
        if (IsLinked(port, links)) {
            continue;
        }
        while (numbers.contains(number)) {
            ++number;
        }
        if (number > LastPortNumber) {
            break;
        }
        numbers.emplace(number, port.description);
    }
    return numbers;
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
