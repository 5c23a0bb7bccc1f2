#pragma once

namespace zelvor {

/// Whether somebody watches what is written to standard error, line over line.
[[nodiscard]] bool IsStandardErrorTerminal();

} // namespace zelvor
