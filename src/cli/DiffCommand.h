#pragma once

#include <string>

#include "cli/Console.h"
#include "cli/ExitStatus.h"

namespace zelvor {
class FileStore;
}

namespace zelvor::cli {

struct DiffRequest {
    std::string a;
    std::string b;
    bool json = false;
};

/// Prints the fields of all sections that show different values, and every byte that differs in more than these values
/// tell. As JSON the values are as `get` has them in English.
[[nodiscard]] ExitStatus Diff(const DiffRequest& request, FileStore& store, const Console& console);

} // namespace zelvor::cli
