#pragma once

#include "cli/Console.h"
#include "cli/ExitStatus.h"
#include "cli/RadioMachine.h"

namespace zelvor::cli {

/// Prints what the radio says of itself, as the window of the radio information has it: model, frequency range, serial
/// number and version. Model and range are those that the radio tells.
[[nodiscard]] ExitStatus InfoOfRadio(const RadioRequest& request, RadioMachine& machine, const Console& console);

} // namespace zelvor::cli
