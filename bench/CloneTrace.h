#pragma once

#include <optional>
#include <string>
#include <vector>

namespace zelvor::bench {

/// A clone session as the radio saw it, from the start bit of Entry's first byte to the last stop bit of End.
struct SessionTimes {
    int bytes = 0; // in both directions
    double duration = 0;
    std::vector<double> turnarounds; // seconds from each reply's end to the start of the command after it
};

/// Seconds that the bytes take on the line when none waits for another.
[[nodiscard]] double WireTime(int bytes);

/// Reads the trace that zelvor-radio prints; nothing where it holds no single whole session, or anything but commands
/// and replies.
[[nodiscard]] std::optional<SessionTimes> ReadTrace(const std::string& trace);

} // namespace zelvor::bench
