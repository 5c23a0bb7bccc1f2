#include "platform/StopRequest.h"

#include <csignal>

namespace zelvor {

namespace {

volatile std::sig_atomic_t isStopRequested = 0;

void RequestStop(int signal) {
    isStopRequested = 1;
    static_cast<void>(std::signal(signal, SIG_DFL)); // fails for no signal that there is
}

} // namespace

void CatchStopRequests() {
    static_cast<void>(std::signal(SIGINT, RequestStop));
    static_cast<void>(std::signal(SIGTERM, RequestStop));
}

bool IsStopRequested() {
    return isStopRequested != 0;
}

} // namespace zelvor
