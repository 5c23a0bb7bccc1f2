#pragma once

#include <cstdint>
#include <optional>

namespace zelvor {

/// Code page Windows-1252, the one of the embedded message. Its five unassigned bytes 0x81, 0x8D, 0x8F, 0x90 and 0x9D
/// stand for the characters of the same number, so that every byte has a character and comes back as itself.

[[nodiscard]] char16_t Windows1252Character(std::uint8_t byte);

/// Nothing for a character outside the code page.
[[nodiscard]] std::optional<std::uint8_t> Windows1252Byte(char16_t character);

} // namespace zelvor
