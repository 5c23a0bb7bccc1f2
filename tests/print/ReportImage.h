#pragma once

#include "data/DataImage.h"

namespace zelvor::testing {

/// The document of the golden files: model 4618, market M, with something in every section, and channels 1, 2, 3, 5 and
/// 16. All other bytes are 0xFF.
[[nodiscard]] DataImage ReportImage();

/// A document of that model with `count` channels in use, from channel 1 on; all other bytes are 0xFF.
[[nodiscard]] DataImage ImageWithChannels(int count);

} // namespace zelvor::testing
