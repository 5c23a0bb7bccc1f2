#include "platform/StopRequest.h"

#include <csignal>

namespace zelvor {

namespace {

volatile std::sig_atomic_t isStopRequested = 0;

void RequestStop(int signal) {
    isStopRequested = 1;
    std::signal(signal, SIG_DFL);
}

} // namespace

void CatchStopRequests() {
    std::signal(SIGINT, RequestStop);
    std::signal(SIGTERM, RequestStop);
}

bool IsStopRequested() {
    return isStopRequested != 0;
}

} // namespace zelvor
