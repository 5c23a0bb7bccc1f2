#pragma once

namespace zelvor::random {

/// Prints how much memory of this process is resident: "memory " and KiB.
void TellResidentMemory();

} // namespace zelvor::random
