#pragma once

#include <ostream>
#include <string>
#include <string_view>

#include "text/Language.h"

namespace zelvor::cli {

/// Where a command says what. Data go to `out`, messages to Complain.
struct Console {
    std::ostream& out;
    std::ostream& err;
    Language language = Language::English;

    [[nodiscard]] std::string_view Say(const TextPair& text) const { return text.In(language); }
    /// Each of its lines behind the name of the program.
    void Complain(std::string_view text) const;
    /// The same, behind the name of what it is about.
    void Complain(std::string_view about, const TextPair& text) const;
};

/// A text that keeps to its line and does nothing to a terminal: control characters become the pictures of them, and
/// what is no UTF-8 the replacement character.
[[nodiscard]] std::string Printable(std::string_view text);

} // namespace zelvor::cli
