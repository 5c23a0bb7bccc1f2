#include "data/LegalFrequency.h"

#include <algorithm>

#include "data/FrequencyCodec.h"
#include "text/Decimal.h"

namespace zelvor {

namespace {

constexpr std::size_t MostDigits = 7; // before the point

bool AreDigits(std::string_view text) {
    return !text.empty() && std::ranges::all_of(text, [](char c) { return c >= '0' && c <= '9'; });
}

} // namespace

LegalValues LegalFrequencies() {
    return {.mayBeEmpty = true, .range = LegalValues::Range{"100.00000", "550.00000", "0.00500 or 0.00625"}};
}

TypedFrequency ReadTypedFrequency(std::string_view text, const BandLimits& limits) {
    if (!IsPlainNumber(text)) {
        return {FrequencyFault::NoNumber, {}};
    }
    const NormalisedFrequency normalised = NormaliseFrequency(text, limits);
    if (normalised.outOfRange) {
        return {FrequencyFault::OutOfRange, {}};
    }
    if (Decimal::Leading(normalised.text) != Decimal::Leading(text)) {
        return {FrequencyFault::OffRaster, {}};
    }
    return {FrequencyFault::None, normalised.text};
}

bool IsPlainNumber(std::string_view text) {
    const std::size_t point = text.find('.');
    const std::string_view whole = text.substr(0, point);
    if (!AreDigits(whole) || whole.size() > MostDigits) {
        return false;
    }
    const std::string_view decimals = point == std::string_view::npos ? "0" : text.substr(point + 1);
    return AreDigits(decimals) && decimals.size() <= static_cast<std::size_t>(Decimal::Places);
}

bool IsNumberOnShow(std::string_view text, std::string_view shown) {
    return IsPlainNumber(text) && IsPlainNumber(shown) && Decimal::Leading(text) == Decimal::Leading(shown);
}

} // namespace zelvor
