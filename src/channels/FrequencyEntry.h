#pragma once

#include <string_view>

#include "data/FrequencyCodec.h"
#include "text/Language.h"

namespace zelvor {

class DataImage;
struct Services;

/// What the raster and range rule makes of a typed frequency in the limits of the image's model. An entry out of range
/// is reported in a message box with the caption.
[[nodiscard]] NormalisedFrequency EnterFrequency(const DataImage& image, std::string_view text, Services& services,
                                                 Language language, const TextPair& caption);

} // namespace zelvor
