#pragma once

#include <string>
#include <string_view>

#include "data/Field.h"

namespace zelvor::cli {

/// Why a field did not take a text, for an image that is as it was then. Values are quoted in English.
[[nodiscard]] std::string RefusalOf(const Field& field, std::string_view text, const DataImage& image,
                                    Language language);

} // namespace zelvor::cli
