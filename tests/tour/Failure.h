#pragma once

#include <stdexcept>

namespace zelvor::tour {

/// Something is not as it must be. Thrown on the script's thread only, never through the window thread's events.
class Failure : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

} // namespace zelvor::tour
