#pragma once

#include <string>

#include "text/Language.h"

namespace zelvor {

/// The texts of the grid window's caption for channel n: the form used everywhere but after New and Open.
[[nodiscard]] std::string ChannelCaption(Language language, int n);

/// The form for channel 1 that New and Open use; in English it has no blanks round the dash. Both forms are intended.
[[nodiscard]] std::string NewDocumentChannelCaption(Language language);

} // namespace zelvor
