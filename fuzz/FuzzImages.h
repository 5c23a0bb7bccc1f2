#pragma once

#include "FuzzInput.h"
#include "data/DataImage.h"

namespace zelvor::fuzz {

/// The blank image of model 4618, market M.
[[nodiscard]] DataImage BlankImage();
/// The same with channel 2 on 145.125 MHz with tones and channel 16 receiving only.
[[nodiscard]] DataImage ProgrammedImage();

/// One of these two, with bytes of the input's at places of the input's. The PTT ID Type is among them.
[[nodiscard]] DataImage TakeImage(FuzzInput& input);

/// 1024 bytes of the input's.
[[nodiscard]] DataImage TakeWholeImage(FuzzInput& input);

} // namespace zelvor::fuzz
