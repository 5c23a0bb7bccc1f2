#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "data/Fields.h"

/// What the radio's two programmable keys do: a byte each, described once for all that show or store it.
namespace zelvor::key_assignment {

inline constexpr std::array FunctionWords{
    FieldWord{77},  // None
    FieldWord{130}, // Autodial
    FieldWord{131}, // Key Lock
    FieldWord{132}, // Key Lock with Backup
    FieldWord{133}, // Monitor
    FieldWord{134}, // Monitor Momentary
    FieldWord{135}, // Scan
    FieldWord{136}, // Scan+Temporary Delete
    FieldWord{137}, // Scrambler
    FieldWord{138}, // Squelch Off
    FieldWord{139}, // Squelch Off Momentary
    FieldWord{140}, // Temporary Delete
};
inline constexpr std::array<std::uint8_t, FunctionWords.size()> FunctionCodes{BlankByte, 0, 2, 3, 4,  5,
                                                                              6,         7, 8, 9, 10, 11};
/// The byte 1 has no function of its own: it shows Autodial.
inline constexpr std::array FunctionExceptions{ListField::Exception{1, 1}};

/// The function of a key, which has the same name in both languages. A byte beyond the list reads as None.
[[nodiscard]] constexpr ListField FunctionOf(std::string_view key, int address) {
    return {.label = 0,
            .address = address,
            .words = FunctionWords,
            .codes = FunctionCodes,
            .exceptions = FunctionExceptions,
            .otherwise = 0,
            .labelText = key};
}

inline constexpr std::array Keys{FunctionOf("PF1", 0x11D), FunctionOf("PF2", 0x11E)};

} // namespace zelvor::key_assignment
