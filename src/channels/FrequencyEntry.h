#pragma once

#include <string_view>

#include "data/FrequencyCodec.h"
#include "text/Language.h"

namespace zelvor {

class Session;
struct Services;

/// What the raster and range rule makes of a typed frequency in the document's limits. An entry out of range is
/// reported in a message box with the caption.
[[nodiscard]] NormalisedFrequency EnterFrequency(const Session& session, Services& services, std::string_view text,
                                                 const TextPair& caption);

} // namespace zelvor
