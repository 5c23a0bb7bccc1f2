#pragma once

#include <vector>

#include "SpoiltRadio.h"

namespace zelvor::fuzz {

/// Milliseconds in which a closing exchange has to be done, unless the user wants retries: the longest wait of a user's
/// action is below, and then every page may be brought back by two commands.
inline constexpr int LongestClosing = 10'000;

/// Whether the last PTT command that went out keys the transmitter.
[[nodiscard]] inline bool IsLeftKeyed(const std::vector<std::vector<std::uint8_t>>& commands) {
    bool isKeyed = false;
    for (const std::vector<std::uint8_t>& command : commands) {
        if (command.size() == 2 && command[0] == 0x08) {
            isKeyed = command[1] == 0x0D;
        }
    }
    return isKeyed;
}

} // namespace zelvor::fuzz
