#include "platform/StopRequest.h"

#include <atomic>
#include <windows.h>

namespace zelvor {

namespace {

std::atomic<bool> isStopRequested = false;

/// Runs in a thread of its own.
BOOL WINAPI OnConsoleEvent(DWORD event) {
    const bool isFirst = !isStopRequested.exchange(true);
    if (event == CTRL_C_EVENT || event == CTRL_BREAK_EVENT) {
        return isFirst ? TRUE : FALSE;
    }
    // The console is closed, or the user leaves: the system ends the process when this returns, or after five seconds.
    Sleep(INFINITE);
    return TRUE;
}

} // namespace

void CatchStopRequests() {
    SetConsoleCtrlHandler(OnConsoleEvent, TRUE);
}

bool IsStopRequested() {
    return isStopRequested;
}

} // namespace zelvor
