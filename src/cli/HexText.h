#pragma once

#include <cstdint>
#include <string>

namespace zelvor::cli {

/// "0x1CC"
[[nodiscard]] std::string AddressText(int address);
/// "FF"
[[nodiscard]] std::string ByteText(std::uint8_t byte);

} // namespace zelvor::cli
