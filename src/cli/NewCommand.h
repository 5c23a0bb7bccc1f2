#pragma once

#include <string>

#include "cli/Console.h"
#include "cli/ExitStatus.h"

namespace zelvor {
class FileStore;
}

namespace zelvor::cli {

struct NewRequest {
    std::string model;  // "4618"
    std::string market; // "M"
    std::string output;
};

/// Writes the blank image of a variant. One that the catalogue does not have is wrong usage, and told with those it
/// has.
[[nodiscard]] ExitStatus MakeNew(const NewRequest& request, FileStore& store, const Console& console);

} // namespace zelvor::cli
