#pragma once

namespace zelvor::random {

/// So many acts bring most windows and their fonts into the memory; what comes behind them may not grow.
inline constexpr int ActsBeforeMemory = 1000;

/// Prints how much memory of this process is resident: "memory " and KiB.
void TellResidentMemory();

} // namespace zelvor::random
