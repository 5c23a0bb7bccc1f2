#pragma once

#include <atomic>

namespace zelvor::tour {
class WindowThread;
} // namespace zelvor::tour

namespace zelvor::random {

/// Ends the process: its windows are in a state that nobody gets out of.
inline constexpr int StuckExit = 96;

/// Leaves the program as a patient user would, without saving: answers its boxes, closes its windows, until isOver.
void LeaveProgram(const tour::WindowThread& windows, const std::atomic<bool>& isOver);

} // namespace zelvor::random
