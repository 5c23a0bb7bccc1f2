#pragma once

#include <string>
#include <string_view>

#include "platform/PageDevice.h"
#include "text/Language.h"

namespace zelvor {

class MessageBoxes;

/// A line that says where a report goes: "Output: printer Office", "Output: PDF file radio.pdf".
[[nodiscard]] std::string OutputText(const PageTarget& target, Language language);

/// The same line while that is being found out.
[[nodiscard]] std::string AskingText(Language language);

/// The last step before a report goes to its target: asks before a file is replaced, unless it is the one that the user
/// has agreed to already, and tells of a printing system that does not answer. False where nothing is to be printed,
/// also where there is no printer.
[[nodiscard]] bool MayPrintTo(const PageTarget& target, MessageBoxes& messages, Language language,
                              std::string_view agreedFile = {});

/// Tells that no printer can be chosen for want of an answer; whether the user wants a PDF file instead.
[[nodiscard]] bool WantsFileForWantOfAnswer(MessageBoxes& messages, Language language);

} // namespace zelvor
