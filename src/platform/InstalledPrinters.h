#pragma once

#include <string>
#include <vector>

namespace zelvor {

/// A printer of the system, as it is set up there.
struct InstalledPrinter {
    std::string name; // by which the toolkit knows it, UTF-8
    bool isDefault = false;
    bool isLandscape = false; // told where the toolkit does not tell it itself
};

/// All printers of the system. Waits as long as the printing system takes to answer, which may be minutes: not for the
/// window's thread. Touches nothing of the program, which may end meanwhile.
[[nodiscard]] std::vector<InstalledPrinter> AskForPrinters();

} // namespace zelvor
