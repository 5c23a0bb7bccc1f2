#pragma once

#include <csignal>

#include <sys/prctl.h>

namespace zelvor {

/// Called in a new process between fork and exec: it is asked to end when its parent ends, however that happens.
inline void EndWithParent() {
    ::prctl(PR_SET_PDEATHSIG, SIGTERM);
}

} // namespace zelvor
