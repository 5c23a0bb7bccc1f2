#pragma once

namespace zelvor {

/// From now on the first wish that the program ends (Ctrl+C; SIGTERM, or the closing of the console's window) is only
/// noted. The next one ends the program as usual.
void CatchStopRequests();

[[nodiscard]] bool IsStopRequested();

} // namespace zelvor
