#pragma once

#include <memory>

namespace zelvor {

/// Whether somebody watches what is written to standard error, line over line, and its lines can be erased.
[[nodiscard]] bool IsStandardErrorTerminal();

/// As long as it lives, what the program writes to std::cout and std::cerr arrives as it is written: on a terminal as
/// text in UTF-8, elsewhere byte by byte, line ends too. Made before anything is written.
class StandardOutput {
public:
    StandardOutput();
    ~StandardOutput();
    StandardOutput(const StandardOutput&) = delete;
    StandardOutput& operator=(const StandardOutput&) = delete;

private:
    struct Console;
    std::unique_ptr<Console> console_; // null where a system takes bytes as they are
};

} // namespace zelvor
