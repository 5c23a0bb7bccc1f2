#pragma once

#include <optional>

#include "data/Session.h"
#include "platform/MessageBoxes.h"

namespace zelvor {

/// The error box to show instead of a write, where an editor left an incorrect setting behind; nothing where the write
/// may go ahead. Clears TxCodeError where no channel uses the code.
[[nodiscard]] std::optional<Message> CheckBeforeWrite(Session& session);

} // namespace zelvor
