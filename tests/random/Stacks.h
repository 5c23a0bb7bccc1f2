#pragma once

#include <string>

namespace zelvor::random {

/// Has the debugger write the stacks of all threads of this process into the file, where gdb is installed, and returns
/// when it has.
void KeepStacks(const std::string& file);

/// From now on a crash keeps the stacks before it ends the process. Not under the address sanitizer, which tells more.
void KeepStacksOfCrashes(const std::string& file);

} // namespace zelvor::random
