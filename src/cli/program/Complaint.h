#pragma once

#include <string>

#include "text/Language.h"

namespace CLI {
class App;
class ParseError;
} // namespace CLI

namespace zelvor::cli {

/// What is wrong with a command line that the reader has not taken, in a line of the language.
[[nodiscard]] std::string ComplaintOf(const CLI::App& app, const CLI::ParseError& error, Language language);

} // namespace zelvor::cli
