#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>

#include "data/DataImage.h"
#include "data/TuneItems.h"

namespace zelvor {

/// Frequencies in units of 10 Hz.
struct PointFrequency {
    std::int64_t receive;
    std::int64_t transmit;

    bool operator==(const PointFrequency&) const = default;
};

/// The frequencies at which a model is tuned: Low, Low', Center, High' and High, in rising order.
struct FrequencyPoints {
    PointFrequency low;
    PointFrequency lowPrime;
    PointFrequency center;
    PointFrequency highPrime;
    PointFrequency high;

    /// One of the five; point is Low to High.
    [[nodiscard]] const PointFrequency& At(TunePoint point) const;
};

/// Of the image's own model; nothing for an identity that no variant has.
[[nodiscard]] std::optional<FrequencyPoints> FrequencyPointsOf(const DataImage& image);

/// "145.12500MHz".
[[nodiscard]] std::string FrequencyOnShow(std::int64_t frequency);

/// The frequency of a text such as "145.12500", in units of 10 Hz.
[[nodiscard]] std::int64_t FrequencyOfText(std::string_view text);

} // namespace zelvor
