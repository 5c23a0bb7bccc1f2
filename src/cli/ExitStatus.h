#pragma once

#include <algorithm>

namespace zelvor::cli {

/// How zelvor-cli ends; a worse result is a higher one.
enum class ExitStatus {
    Done = 0,
    No = 1,      // differences, findings, a verification that failed
    Usage = 2,   // a wrong command line
    File = 3,    // a file cannot be read, is no data file, cannot be written, or its contents are refused
    NoRadio = 4, // no connection
    Unsafe = 5,  // refused for safety
};

[[nodiscard]] constexpr ExitStatus Worse(ExitStatus a, ExitStatus b) {
    return std::max(a, b);
}

} // namespace zelvor::cli
