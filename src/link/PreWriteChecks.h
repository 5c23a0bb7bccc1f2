#pragma once

#include <optional>

#include "platform/MessageBoxes.h"
#include "text/Language.h"

namespace zelvor {

class Document;

/// The error box to show instead of a write, where an editor left an incorrect setting behind; nothing where the write
/// may go ahead. Clears TxCodeError where no channel uses the code.
[[nodiscard]] std::optional<Message> CheckBeforeWrite(Document& document, Language language);

} // namespace zelvor
