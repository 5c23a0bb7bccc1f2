#include "data/FrequencyCodec.h"

#include <algorithm>

#include "text/Decimal.h"

namespace zelvor {
namespace {

constexpr int TensOfHertzPlaces = 5; // of a number of MHz
constexpr int LowestMHz = 100;
constexpr int HighestMHz = 550;
constexpr std::int64_t Raster5kHz = 500; // in units of 10 Hz
constexpr std::int64_t Raster625kHz = 625;

std::string FrequencyFormat(Decimal megahertz) {
    return megahertz.Format(3, TensOfHertzPlaces);
}

std::uint8_t PackPair(int number) {
    return static_cast<std::uint8_t>(number / 10 * 16 + number % 10);
}

/// The raster point next to a frequency in MHz, in units of 10 Hz; a frequency in the middle goes up.
std::int64_t NearestOnRaster(Decimal megahertz, std::int64_t raster) {
    // Whole numbers only: the frequency with all its decimals, and the raster in the same unit.
    constexpr std::int64_t UnitsPerTenHertz = 100'000;
    const std::int64_t step = raster * UnitsPerTenHertz;
    return (megahertz.Rounded(Decimal::Places) + step / 2) / step * raster;
}

Decimal Distance(Decimal a, Decimal b) {
    return a < b ? b - a : a - b;
}

Decimal OnRaster(Decimal megahertz) {
    const Decimal near5 = Decimal::Of(NearestOnRaster(megahertz, Raster5kHz), TensOfHertzPlaces);
    const Decimal near625 = Decimal::Of(NearestOnRaster(megahertz, Raster625kHz), TensOfHertzPlaces);
    if (megahertz == near5 || megahertz == near625) {
        return megahertz;
    }
    return Distance(megahertz, near5) < Distance(megahertz, near625) ? near5 : near625;
}

} // namespace

std::string FrequencyText(std::span<const std::uint8_t, 4> bytes) {
    std::string digits;
    for (std::size_t i = bytes.size(); i-- > 0;) {
        digits += Decimal::Of((bytes[i] >> 4) * 10 + (bytes[i] & 0x0F)).Format(2, 0);
    }
    digits.insert(3, 1, '.');
    return FrequencyFormat(Decimal::Leading(digits));
}

bool IsZeroFrequency(std::span<const std::uint8_t, 4> bytes) {
    return std::all_of(bytes.begin(), bytes.end(), [](std::uint8_t byte) { return byte == 0; });
}

FrequencyBytes EncodeFrequency(std::string_view text) {
    if (text.empty()) {
        return {0xFF, 0xFF, 0xFF, 0xFF};
    }
    // The digits are taken by their place in the text: a number of five digits before the point shifts them all.
    const std::string digits = (Decimal::Leading(text) * 10).Format(4, 4);
    const auto pair = [&digits](std::size_t place) {
        return PackPair(static_cast<int>(Decimal::Leading(std::string_view(digits).substr(place, 2)).Rounded()));
    };
    return {pair(7), pair(5), pair(2), pair(0)};
}

FrequencyBytes PackFrequency(std::int32_t tensOfHertz) {
    FrequencyBytes bytes{};
    for (std::uint8_t& byte : bytes) {
        byte = PackPair(tensOfHertz % 100);
        tensOfHertz /= 100;
    }
    return bytes;
}

std::optional<std::int32_t> UnpackFrequency(std::span<const std::uint8_t, 4> bytes) {
    std::int32_t value = 0;
    for (std::size_t i = bytes.size(); i-- > 0;) {
        const int high = bytes[i] >> 4;
        const int low = bytes[i] & 0x0F;
        if (high > 9 || low > 9) {
            return std::nullopt;
        }
        value = value * 100 + high * 10 + low;
    }
    return value;
}

bool IsOnRaster(std::int32_t tensOfHertz) {
    return tensOfHertz % Raster5kHz == 0 || tensOfHertz % Raster625kHz == 0;
}

bool IsInRange(std::int32_t tensOfHertz) {
    constexpr std::int32_t UnitsPerMHz = 100'000;
    return tensOfHertz >= LowestMHz * UnitsPerMHz && tensOfHertz <= HighestMHz * UnitsPerMHz;
}

NormalisedFrequency NormaliseFrequency(std::string_view text, const BandLimits& limits) {
    const Decimal megahertz = Decimal::Leading(text);
    const Decimal lowest = Decimal::Of(LowestMHz);
    const Decimal highest = Decimal::Of(HighestMHz);
    if (megahertz > Decimal::Of(limits.BandUpperMHz)) {
        return {FrequencyFormat(std::min(megahertz, highest)), true};
    }
    if (megahertz < Decimal::Of(limits.BandLowerMHz)) {
        return {FrequencyFormat(std::max(megahertz, lowest)), true};
    }
    return {FrequencyFormat(OnRaster(megahertz)), false};
}

} // namespace zelvor
