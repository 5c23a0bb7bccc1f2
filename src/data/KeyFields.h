#pragma once

#include <array>
#include <cstdint>

#include "data/Field.h"

/// What the radio's two programmable keys do: a byte each, described once for all that show or store it.
namespace zelvor::key_assignment {

inline constexpr std::array FunctionWords = std::to_array<FieldWord>({
    Text::None,
    Text::Autodial,
    Text::KeyLock,
    Text::KeyLockWithBackup,
    Text::Monitor,
    Text::MonitorMomentary,
    Text::Scan,
    Text::ScanAndTemporaryDelete,
    Text::Scrambler,
    Text::SquelchOff,
    Text::SquelchOffMomentary,
    Text::TemporaryDelete,
});
inline constexpr std::array<std::uint8_t, FunctionWords.size()> FunctionCodes{ErasedByte, 0, 2, 3, 4,  5,
                                                                              6,          7, 8, 9, 10, 11};
/// The byte 1 has no function of its own: it shows Autodial.
inline constexpr std::array<ListField::Exception, 1> FunctionExceptions{ListField::Exception{1, 1}};

/// The function of a key, which has the same name in both languages. A byte beyond the list reads as None.
inline constexpr std::array<ListField, 2> Keys{ListField{.key = "keys.pf1",
                                                         .label = "PF1",
                                                         .address = 0x11D,
                                                         .words = FunctionWords,
                                                         .codes = FunctionCodes,
                                                         .exceptions = FunctionExceptions,
                                                         .otherwise = 0,
                                                         .blank = 0},
                                               ListField{.key = "keys.pf2",
                                                         .label = "PF2",
                                                         .address = 0x11E,
                                                         .words = FunctionWords,
                                                         .codes = FunctionCodes,
                                                         .exceptions = FunctionExceptions,
                                                         .otherwise = 0,
                                                         .blank = 10}};

inline constexpr std::array Fields = std::to_array<Field>({Keys[0], Keys[1]});

} // namespace zelvor::key_assignment
