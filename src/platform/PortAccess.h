#pragma once

#include <string>

#include "platform/SerialPort.h"

namespace zelvor {

/// What the file system says against opening a device: missing or not permitted. PortFault::None where it says nothing.
[[nodiscard]] PortFailure AccessFailure(const std::string& devicePath);

} // namespace zelvor
