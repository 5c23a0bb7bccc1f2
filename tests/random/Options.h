#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace zelvor::random {

/// What the command line of zelvor-random asks for.
struct Options {
    int seconds = 180;      // after which no further session begins
    std::uint32_t seed = 1; // of the first session; the next ones count on
    int sessions = 0;       // at most; 0: as many as the seconds allow
    int acts = 300;         // of a session
    std::string keep;       // directory for what was found; empty: a new one among the temporary files
    bool verbose = false;
};

struct OptionsResult {
    std::optional<Options> options; // empty where the program is to end at once
    int exitCode = 0;               // with this code
};

/// Reads the command line. Help goes to standard output; a complaint with the usage to standard error.
[[nodiscard]] OptionsResult ReadOptions(int argc, char** argv);

} // namespace zelvor::random
