#pragma once

#include <cstdint>

#include "data/Field.h"

namespace zelvor::cli {

/// Of the bits that two images have different in a byte of a field, those that the field's two values tell: the values
/// differ, and a bit that is told either has a part in them, or is erased along with the value that it had a part in.
[[nodiscard]] std::uint8_t ToldBits(const Field& field, const DataImage& a, const DataImage& b, int address);

} // namespace zelvor::cli
