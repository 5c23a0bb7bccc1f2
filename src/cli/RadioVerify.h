#pragma once

#include <string>

#include "cli/Console.h"
#include "cli/ExitStatus.h"
#include "cli/RadioMachine.h"

namespace zelvor::cli {

struct VerifyRequest {
    RadioRequest radio;
    std::string file;
};

/// Reads a radio, keeps a backup, and prints the bytes in which it differs from the file, of those that a write takes
/// from it: the file's and the radio's.
[[nodiscard]] ExitStatus VerifyRadio(const VerifyRequest& request, RadioMachine& machine, const Console& console);

} // namespace zelvor::cli
