#pragma once

#include "platform/MessageBoxes.h"

namespace zelvor {

/// What may happen to a reply of a radio.
enum class Fault { None, Drop, Cut, Corrupt, Late, Vanish };

/// The box of a radio that does not answer, in English.
[[nodiscard]] inline Message ConnectionPrompt() {
    return {"Error", "please check all connections and communication port settings.", MessageIcon::Critical,
            MessageButtons::RetryCancel, MessageAnswer::Retry};
}

} // namespace zelvor
