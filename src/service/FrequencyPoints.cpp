#include "service/FrequencyPoints.h"

#include "data/MemoryMap.h"
#include "data/ModelCatalogue.h"
#include "text/Decimal.h"

namespace zelvor {

namespace {

// Units of 10 Hz.
constexpr int Step = 5'000;
constexpr int FrequencyDecimals = 5; // of a megahertz

} // namespace

const PointFrequency& FrequencyPoints::At(TunePoint point) const {
    switch (point) {
    case TunePoint::Low:
        return low;
    case TunePoint::LowPrime:
        return lowPrime;
    case TunePoint::HighPrime:
        return highPrime;
    case TunePoint::High:
        return high;
    case TunePoint::Test:
    case TunePoint::Center:
    case TunePoint::Narrow:
        break;
    }
    return center;
}

std::optional<FrequencyPoints> FrequencyPointsOf(const DataImage& image) {
    const ModelVariant* variant = FindVariant(image.At(address::Family), image.At(address::Market));
    if (variant == nullptr) {
        return std::nullopt;
    }
    const std::int64_t low = variant->band.low;
    const std::int64_t high = variant->band.high;
    // Every band is a multiple of four units wide, so both divisions are exact.
    const std::int64_t center = (low + high) / 2 + Step;
    const std::int64_t quarter = (high - low) / 4;
    return FrequencyPoints{{low + Step, low + 2 * Step},
                           {low + quarter + Step, low + quarter + 2 * Step},
                           {center, center + Step},
                           {high - quarter + Step, high - quarter + 2 * Step},
                           {high - Step, high - 2 * Step}};
}

std::string FrequencyOnShow(std::int64_t frequency) {
    return Decimal::Of(frequency, FrequencyDecimals).Format(3, FrequencyDecimals) + "MHz";
}

std::int64_t FrequencyOfText(std::string_view text) {
    return Decimal::Leading(text).Rounded(FrequencyDecimals);
}

} // namespace zelvor
