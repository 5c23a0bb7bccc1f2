#pragma once

#include <chrono>
#include <filesystem>
#include <optional>
#include <vector>

#include "simulator/FaultPlan.h"

namespace zelvor {

/// What the command line of zelvor-radio asks for.
struct Options {
    int port = 1; // 1 to 20
    std::filesystem::path linkDirectory;
    std::optional<std::filesystem::path> load;
    std::optional<std::filesystem::path> save;
    std::optional<int> serveMany; // so many sessions, each with the memory as it was loaded, and then the end
    bool trace = false;
    std::vector<Fault> faults;
    std::chrono::milliseconds unplugged{1000}; // how long the port stays away after an unplug fault
};

inline constexpr int ExitUsage = 2;

struct OptionsResult {
    std::optional<Options> options; // empty where the program is to end at once
    int exitCode = 0;               // with this code
};

/// Reads the command line. Help and version go to standard output; a complaint of one line, and where to read more, to
/// standard error.
[[nodiscard]] OptionsResult ReadOptions(int argc, char** argv);

} // namespace zelvor
