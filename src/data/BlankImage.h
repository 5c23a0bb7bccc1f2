#pragma once

#include "data/DataImage.h"

namespace zelvor {

/// Rebuilds the image as the blank image of its own variant: keeps the market and family bytes, sets everything else.
void InitAllFrameData(DataImage& image);

} // namespace zelvor
