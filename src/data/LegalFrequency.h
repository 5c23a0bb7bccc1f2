#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "data/Field.h"
#include "data/ModelCatalogue.h"

namespace zelvor {

/// What the fields that hold a frequency take.
[[nodiscard]] LegalValues LegalFrequencies();

/// What stands against a typed frequency, which NormaliseFrequency would correct.
enum class FrequencyFault : std::uint8_t { None, NoNumber, OutOfRange, OffRaster };

/// A frequency as a plain decimal number of MHz, with or without the zeros at its end.
struct TypedFrequency {
    FrequencyFault fault = FrequencyFault::None;
    std::string text; // "000.00000" where there is no fault
};
[[nodiscard]] TypedFrequency ReadTypedFrequency(std::string_view text, const BandLimits& limits);

/// Whether a text is digits with at most one point between them, no longer than a Decimal keeps exactly.
[[nodiscard]] bool IsPlainNumber(std::string_view text);

/// Whether a typed text is the number that a field shows.
[[nodiscard]] bool IsNumberOnShow(std::string_view text, std::string_view shown);

} // namespace zelvor
