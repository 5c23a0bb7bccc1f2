#pragma once

#include <optional>

#include "CloneTrace.h"
#include "link/ConnectForm.h"

namespace zelvor::bench {

/// One read or write of a radio of its own, from the menu entry of the real main window on: dialog, progress, and the
/// grid decoded at the end are inside. Nothing where the session did not go through, or read a wrong memory.
[[nodiscard]] std::optional<SessionTimes> RunFromMainWindow(TransferDirection direction);

/// The same by the engine, the port and the timers alone, without a window.
[[nodiscard]] std::optional<SessionTimes> RunEngineAlone(TransferDirection direction);

} // namespace zelvor::bench
