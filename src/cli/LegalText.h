#pragma once

#include <string>

#include "data/Field.h"

namespace zelvor::cli {

/// What a field takes, in a line: "Off; 1 to 10 by 1; empty".
[[nodiscard]] std::string LegalText(const LegalValues& legal, Language language);

} // namespace zelvor::cli
