#include <unistd.h>

#include "platform/Terminal.h"

namespace zelvor {

bool IsStandardErrorTerminal() {
    return ::isatty(STDERR_FILENO) != 0;
}

struct StandardOutput::Console {};

StandardOutput::StandardOutput() = default;
StandardOutput::~StandardOutput() = default;

} // namespace zelvor
