#pragma once

#include <optional>
#include <string>
#include <vector>

#include "cli/Console.h"
#include "cli/ExitStatus.h"

namespace zelvor {
class FileStore;
}

namespace zelvor::cli {

/// A line for every field of all sections, of columns with tabs between them: key, section, address, legal values,
/// English and Chinese label.
[[nodiscard]] ExitStatus ListKeys(const Console& console);

struct GetRequest {
    std::string file;
    std::vector<std::string> keys;
};
/// "key=value", a line each. An unknown key is wrong usage, and nothing is printed then.
[[nodiscard]] ExitStatus Get(const GetRequest& request, FileStore& store, const Console& console);

struct Assignment {
    std::string key;
    std::string value;
};
struct SetRequest {
    std::vector<std::string> files;
    std::vector<Assignment> assignments;
    std::optional<std::string> output; // for one file only; otherwise in place
};
/// Files and assignments as they stand on the command line. What has an equals sign, and no slash before it, is an
/// assignment.
[[nodiscard]] SetRequest ReadSetArguments(const std::vector<std::string>& arguments,
                                          const std::optional<std::string>& output);
/// Stores the values in every file, in the order given; a key that is given twice is wrong usage. A value that any of
/// the files cannot take is refused, and so is one that does not go with the others as the file has them in the end;
/// then no file is written. A file that cannot be read or written does not hold up the others.
[[nodiscard]] ExitStatus Set(const SetRequest& request, FileStore& store, const Console& console);

} // namespace zelvor::cli
