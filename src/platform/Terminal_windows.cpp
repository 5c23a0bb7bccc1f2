#include "platform/Terminal.h"

namespace zelvor {

/// Where nothing is known of terminals, nothing is drawn.
bool IsStandardErrorTerminal() {
    return false;
}

} // namespace zelvor
