#pragma once

#include <string>

#include "cli/Console.h"
#include "cli/ExitStatus.h"
#include "cli/RadioMachine.h"

namespace zelvor::cli {

struct ReadRequest {
    RadioRequest radio;
    std::string output;
};

/// Reads a radio into a file, and keeps a backup, also where the file cannot be written.
[[nodiscard]] ExitStatus ReadRadio(const ReadRequest& request, RadioMachine& machine, const Console& console);

} // namespace zelvor::cli
