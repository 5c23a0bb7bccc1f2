#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

#include "platform/SerialPort.h"
#include "text/Language.h"

namespace zelvor::cli {

struct Filling {
    std::string_view place; // "{port}"
    std::string text;
};
/// The text with each place filled in; a place that it does not have is passed over.
[[nodiscard]] std::string Filled(std::string_view text, std::initializer_list<Filling> fillings);

/// "COM3".
[[nodiscard]] std::string PortName(int number);

/// Why there is no connection: the port's fault, or, where it could be opened, the radio's silence.
[[nodiscard]] std::string NoConnectionText(const PortFailure& failure, int port, Language language);

/// A word of a command as it is typed into a shell.
[[nodiscard]] std::string ShellWord(std::string_view word);

} // namespace zelvor::cli
