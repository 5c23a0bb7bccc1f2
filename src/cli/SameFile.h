#pragma once

#include <string>

#include "cli/Console.h"

namespace zelvor::cli {

/// Whether two paths lead to the same file: spelled alike, by another way or through a link.
[[nodiscard]] bool IsSameFile(const std::string& a, const std::string& b);

/// Whether an output would overwrite what the command reads; that is told.
[[nodiscard]] bool OverwritesInput(const std::string& output, const std::string& input, const Console& console);

} // namespace zelvor::cli
