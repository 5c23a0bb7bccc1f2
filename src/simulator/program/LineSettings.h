#pragma once

#include <string>

namespace zelvor {

/// How a serial port is set.
struct LineSettings {
    int baud = 0; // 0 where the rate is none of the usual ones
    char parity = 'N';
    int dataBits = 8;
    int stopBits = 1;
    bool operator==(const LineSettings&) const = default;
};

/// The settings that the radio needs.
inline constexpr LineSettings RadioLineSettings{9600, 'N', 8, 2};

/// "9600,N,8,2".
[[nodiscard]] std::string LineSettingsText(const LineSettings& settings);

} // namespace zelvor
