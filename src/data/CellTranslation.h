#pragma once

#include <string>
#include <string_view>

#include "data/DataImage.h"
#include "text/Language.h"

namespace zelvor {

/// What a cell of the channel table reads once the program's language has become `language`: column 1 to 9 of channel k
/// (1 to 16), which has a receive frequency. The text may be of either language. Frequencies, tones and texts that no
/// rule covers stay; of two words that exclude each other, any other text becomes the second one.
[[nodiscard]] std::string TranslateCell(int column, std::string_view text, const DataImage& image, int k,
                                        Language language);

} // namespace zelvor
