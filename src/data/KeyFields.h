#pragma once

#include <array>
#include <cstdint>

#include "data/Fields.h"

/// What the radio's two programmable keys do: a byte each, described once for all that show or store it.
namespace zelvor::key_assignment {

inline constexpr std::array FunctionWords{
    FieldWord{Text::None},
    FieldWord{Text::Autodial},
    FieldWord{Text::KeyLock},
    FieldWord{Text::KeyLockWithBackup},
    FieldWord{Text::Monitor},
    FieldWord{Text::MonitorMomentary},
    FieldWord{Text::Scan},
    FieldWord{Text::ScanAndTemporaryDelete},
    FieldWord{Text::Scrambler},
    FieldWord{Text::SquelchOff},
    FieldWord{Text::SquelchOffMomentary},
    FieldWord{Text::TemporaryDelete},
};
inline constexpr std::array<std::uint8_t, FunctionWords.size()> FunctionCodes{BlankByte, 0, 2, 3, 4,  5,
                                                                              6,         7, 8, 9, 10, 11};
/// The byte 1 has no function of its own: it shows Autodial.
inline constexpr std::array FunctionExceptions{ListField::Exception{1, 1}};

/// The function of a key, which has the same name in both languages. A byte beyond the list reads as None.
[[nodiscard]] constexpr ListField FunctionOf(const char* key, int address) {
    return {.label = key,
            .address = address,
            .words = FunctionWords,
            .codes = FunctionCodes,
            .exceptions = FunctionExceptions,
            .otherwise = 0};
}

inline constexpr std::array Keys{FunctionOf("PF1", 0x11D), FunctionOf("PF2", 0x11E)};

} // namespace zelvor::key_assignment
