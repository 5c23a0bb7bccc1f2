#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "data/ModelCatalogue.h"

namespace zelvor {

/// A frequency in the image: four bytes of packed decimal in units of 10 Hz, lowest digits first.
/// 145.12500 MHz is 00 25 51 14.
using FrequencyBytes = std::array<std::uint8_t, 4>;

/// "000.00000" of the bytes. A nibble above 9 counts as that many tens or units and widens the text before it is
/// formatted.
[[nodiscard]] std::string FrequencyText(std::span<const std::uint8_t, 4> bytes);

/// True where all the joined digits are zero: the transmit side then shows no text.
[[nodiscard]] bool IsZeroFrequency(std::span<const std::uint8_t, 4> bytes);

/// The bytes of a frequency text, rounded to 10 Hz in decimal; four bytes 0xFF for the empty text.
[[nodiscard]] FrequencyBytes EncodeFrequency(std::string_view text);

/// The bytes of a frequency in units of 10 Hz, 0 to 99999999.
[[nodiscard]] FrequencyBytes PackFrequency(std::int32_t tensOfHertz);

/// A frequency in units of 10 Hz; nothing where a nibble is no digit.
[[nodiscard]] std::optional<std::int32_t> UnpackFrequency(std::span<const std::uint8_t, 4> bytes);

/// Whether a frequency in units of 10 Hz is a multiple of 5 kHz or 6.25 kHz.
[[nodiscard]] bool IsOnRaster(std::int32_t tensOfHertz);
/// Whether it lies in 100 to 550 MHz, the range of every radio.
[[nodiscard]] bool IsInRange(std::int32_t tensOfHertz);

/// What the raster and range rule makes of an entered text.
struct NormalisedFrequency {
    std::string text;        // "000.00000"
    bool outOfRange = false; // the "Frequency is out of range." message is due
};

/// The raster and range rule. Raster: the nearest multiple of 5 kHz or 6.25 kHz, a tie between the two going to 6.25
/// kHz. Range: an entry outside the limits is reported, but only moved where it also lies outside 100 to 550 MHz; that
/// asymmetry is intended, and files in the field hold such frequencies.
[[nodiscard]] NormalisedFrequency NormaliseFrequency(std::string_view text, const BandLimits& limits);

} // namespace zelvor
