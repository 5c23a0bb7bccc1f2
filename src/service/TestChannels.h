#pragma once

#include <cstdint>
#include <span>

#include "data/DataImage.h"
#include "data/MemoryMap.h"
#include "data/TestFrequencies.h"

/// The radio's test channels as it tells them record by record. A record has the bytes of a test channel in the image.
namespace zelvor {

using TestChannelRecord = std::span<const std::uint8_t, address::TestFrequencyPairSize>;

/// Both frequencies as "000.00000" in MHz; "0" and "0" for an unused channel.
[[nodiscard]] TestFrequencyTexts TestFrequencyTextOf(TestChannelRecord record);

/// Whether the record tells the same frequencies as the image's test channel 1 to 16; two unused ones agree.
[[nodiscard]] bool AgreesWithImage(TestChannelRecord record, const DataImage& image, int channel);

/// Whether test mode offers the channel: its receive frequency is above 0 and below 600 MHz.
[[nodiscard]] bool IsTestChannelOffered(const TestFrequencyTexts& texts);

} // namespace zelvor
