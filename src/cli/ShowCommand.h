#pragma once

#include <string>
#include <vector>

#include "cli/Console.h"
#include "cli/ExitStatus.h"

namespace zelvor {
class FileStore;
}

namespace zelvor::cli {

struct ShowRequest {
    std::vector<std::string> files;
    std::vector<std::string> sections; // none: all
    bool json = false;
};

/// Prints what the images hold: the fields as the report says them, and the programmed channels as a table. As JSON it
/// is one document for all files that could be read, with the values as `get` has them in English.
[[nodiscard]] ExitStatus Show(const ShowRequest& request, FileStore& store, const Console& console);

} // namespace zelvor::cli
