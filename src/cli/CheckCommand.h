#pragma once

#include <string>
#include <vector>

#include "cli/Console.h"
#include "cli/ExitStatus.h"

namespace zelvor {
class FileStore;
}

namespace zelvor::cli {

/// Prints a line for each finding: "file: key: text". Hints are marked as such, and no reason to answer no.
[[nodiscard]] ExitStatus Check(const std::vector<std::string>& files, FileStore& store, const Console& console);

} // namespace zelvor::cli
