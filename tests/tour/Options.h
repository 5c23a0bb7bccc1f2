#pragma once

#include <optional>
#include <string>

namespace zelvor::tour {

/// What the command line of zelvor-tour asks for.
struct Options {
    std::string screenshots; // directory; empty for none
    int timeout = 300;       // seconds for all of the tour
};

struct OptionsResult {
    std::optional<Options> options; // empty where the program is to end at once
    int exitCode = 0;               // with this code
};

/// Reads the command line. Help and version go to standard output; a complaint with the usage to standard error.
[[nodiscard]] OptionsResult ReadOptions(int argc, char** argv);

} // namespace zelvor::tour
