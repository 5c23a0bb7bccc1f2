#pragma once

#include <string_view>

#include "text/Language.h"
#include "text/Text.h"

namespace zelvor {

/// The text of that name, UTF-8, blanks and odd endings included; empty for a number that the table lacks.
[[nodiscard]] std::string_view TableText(Language language, Text name);

} // namespace zelvor
