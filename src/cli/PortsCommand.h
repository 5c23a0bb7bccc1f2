#pragma once

#include "cli/Console.h"
#include "cli/ExitStatus.h"

namespace zelvor {
class SerialPorts;
}

namespace zelvor::cli {

/// A line for each port number, 1 to 20: the number, the device and its description, with tabs between them.
[[nodiscard]] ExitStatus ListPorts(SerialPorts& ports, const Console& console);

} // namespace zelvor::cli
