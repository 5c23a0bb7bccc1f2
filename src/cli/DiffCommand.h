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
///
/// Of two folders it compares the data files of the same name, "*.dat", not those in folders of theirs; every line has
/// the name before it. A file that is in one of them only is a difference. A pair of which one cannot be read does
/// not hold up the others. A folder with a file is refused.
[[nodiscard]] ExitStatus Diff(const DiffRequest& request, FileStore& store, const Console& console);

} // namespace zelvor::cli
