#pragma once

#include "data/DataImage.h"

namespace zelvor {

/// The memory of a 4618 VHF radio of market M as a dealer may hand it out: 16 channels, legal values in every setting.
/// The areas that a clone write leaves alone hold patterns of their own, none of them 0xFF: the tuning area 0x180 to
/// 0x1B7 rises from 0x40 to 0x77, the last 192 bytes rise from 0x00 to 0xBF.
[[nodiscard]] DataImage SampleRadioMemory();

} // namespace zelvor
