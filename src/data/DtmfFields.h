#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "data/Field.h"
#include "text/StringTable.h"

/// The DTMF settings of the image: how the radio sends and decodes digits, its two codes and its autodial memories.
namespace zelvor::dtmf {

[[nodiscard]] std::string ShowSpeed(int index, Language language);
[[nodiscard]] int ReadSpeed(std::string_view text);
[[nodiscard]] std::string ShowTime(int index, Language language);
[[nodiscard]] int ReadTime(std::string_view text);
[[nodiscard]] std::string ShowDelay(int tens, Language language);
[[nodiscard]] int ReadDelay(std::string_view text);
[[nodiscard]] std::string ShowDCode(int seconds, Language language);
[[nodiscard]] int ReadDCode(std::string_view text);
[[nodiscard]] int ReadResetTime(std::string_view text);

// Stored as a place among four texts; any other byte has no text. Digits a second, and milliseconds.
inline constexpr NumberField Speed{.key = "dtmf.speed",
                                   .label = Text::DtmfSpeed,
                                   .address = 0x110,
                                   .first = 0,
                                   .last = 3,
                                   .lengthLimit = 2,
                                   .showsErased = true,
                                   .blank = 0,
                                   .show = ShowSpeed,
                                   .read = ReadSpeed};
inline constexpr NumberField FirstDigitTime{.key = "dtmf.first-digit-time",
                                            .label = Text::FirstDigitTime,
                                            .address = 0x111,
                                            .first = 0,
                                            .last = 3,
                                            .lengthLimit = 4,
                                            .showsErased = true,
                                            .blank = 0,
                                            .show = ShowTime,
                                            .read = ReadTime};
inline constexpr NumberField Tone{.key = "dtmf.star-and-hash-tone",
                                  .label = Text::StarAndHashTone,
                                  .address = 0x113,
                                  .first = 0,
                                  .last = 3,
                                  .lengthLimit = 4,
                                  .showsErased = true,
                                  .blank = 0,
                                  .show = ShowTime,
                                  .read = ReadTime};

/// Tens of milliseconds.
inline constexpr NumberField FirstDigitDelay{.key = "dtmf.first-digit-delay",
                                             .label = Text::FirstDigitDelay,
                                             .address = 0x112,
                                             .first = 10,
                                             .last = 100,
                                             .increment = 5,
                                             .lengthLimit = 4,
                                             .erased = 10,
                                             .showsErased = true,
                                             .blank = 10,
                                             .show = ShowDelay,
                                             .read = ReadDelay};
/// Seconds.
inline constexpr NumberField DCodeAssignment{.key = "dtmf.d-code-assignment",
                                             .label = Text::DCodeAssignment,
                                             .address = 0x114,
                                             .first = 0,
                                             .last = 16,
                                             .lengthLimit = 2,
                                             .showsErased = true,
                                             .blank = 0,
                                             .show = ShowDCode,
                                             .read = ReadDCode};
inline constexpr NumberField AutoResetTimer{.key = "dtmf.auto-reset-timer",
                                            .label = Text::AutoResetTimer,
                                            .address = 0x117,
                                            .first = 0,
                                            .last = 15,
                                            .lengthLimit = 2,
                                            .erased = 10,
                                            .showsErased = true,
                                            .blank = 10,
                                            .show = ShowNumberOrOff,
                                            .read = ReadResetTime};

/// The next of the texts that a field shows from its first to its last value, round in a circle; nothing where the text
/// is none of them.
[[nodiscard]] std::optional<int> NextText(const NumberField& field, std::string_view text, bool up);

inline constexpr CheckField SideTone{
    .key = "dtmf.side-tone", .label = Text::DtmfSideTone, .address = 0x115, .blank = true};
inline constexpr CheckField ClearToTranspond{.key = "dtmf.clear-to-transpond",
                                             .label = Text::ClearToTranspond,
                                             .address = 0x11A,
                                             .erasedIsOff = true,
                                             .blank = false};

inline constexpr std::array<FieldWord, 7> GroupCodeWords{{Text::Off, "A", "B", "C", "D", "#", "*"}};
inline constexpr std::array<std::uint8_t, 7> GroupCodeBytes{0, 'A', 'B', 'C', 'D', '#', '*'};
inline constexpr ListField GroupCode{.key = "dtmf.group-code",
                                     .label = Text::GroupCode,
                                     .address = 0x116,
                                     .words = GroupCodeWords,
                                     .codes = GroupCodeBytes,
                                     .blank = 0};

inline constexpr std::array<FieldWord, 3> CallAlertWords{{Text::Off, Text::Normal, Text::Continuous}};
inline constexpr std::array<std::uint8_t, 3> CallAlertBytes{2, 0, 1};
inline constexpr ListField CallAlert{.key = "dtmf.call-alert",
                                     .label = Text::CallAlert,
                                     .address = 0x118,
                                     .words = CallAlertWords,
                                     .codes = CallAlertBytes,
                                     .blank = 1};

inline constexpr std::array<FieldWord, 3> TranspondWords{{Text::Off, Text::Alert, Text::IdCode}};
inline constexpr ListField Transpond{.key = "dtmf.transpond",
                                     .label = Text::Transpond,
                                     .address = 0x119,
                                     .words = TranspondWords,
                                     .none = ErasedByte,
                                     .blank = 0};

inline constexpr std::array<FieldWord, 2> StunTypeWords{{"TX Inhibit", "TX/RX Inhibit"}};
inline constexpr std::array<ListField::Exception, 1> StunTypeExceptions{{{ErasedByte, 0}}};
inline constexpr ListField StunType{.key = "dtmf.stun-type",
                                    .label = Text::StunType,
                                    .address = 0x1FA,
                                    .words = StunTypeWords,
                                    .exceptions = StunTypeExceptions,
                                    .blank = 0};

inline constexpr int CodeSize = 10;
inline constexpr TextField IdCode{.key = "dtmf.id-code",
                                  .label = Text::IdCode,
                                  .address = 0x120,
                                  .size = CodeSize,
                                  .characters = TextField::Characters::Digits,
                                  .leastLength = 3,
                                  .mayBeEmpty = false,
                                  .blank = u"000"};
inline constexpr TextField StunCode{.key = "dtmf.stun-code",
                                    .label = Text::StunCode,
                                    .address = 0x1F0,
                                    .size = CodeSize,
                                    .leastLength = 3,
                                    .blank = u""};

inline constexpr int AutodialCount = 8;
inline constexpr int AutodialSize = 16;

/// The memories 1 to 8.
inline constexpr std::array<TextField, AutodialCount> Autodials = [] {
    const auto memory = [](int n) {
        return TextField{.key = "dtmf.autodial-memory",
                         .label = Text::AutodialMemory,
                         .number = n,
                         .address = 0x200 + AutodialSize * (n - 1),
                         .size = AutodialSize,
                         .layout = TextField::Layout::PaddedByBlanks,
                         .blank = u""};
    };
    return std::array{memory(1), memory(2), memory(3), memory(4), memory(5), memory(6), memory(7), memory(8)};
}();

/// How the radio sends, and how it is called.
inline constexpr std::array EncodeFields =
    std::to_array<Field>({Speed, FirstDigitTime, FirstDigitDelay, Tone, DCodeAssignment, SideTone});
inline constexpr std::array DecodeFields = std::to_array<Field>(
    {IdCode, GroupCode, AutoResetTimer, CallAlert, Transpond, ClearToTranspond, StunCode, StunType});
inline constexpr std::array AutodialFields = std::to_array<Field>(
    {Autodials[0], Autodials[1], Autodials[2], Autodials[3], Autodials[4], Autodials[5], Autodials[6], Autodials[7]});

/// In the order of the report.
inline constexpr std::array Fields = Joined(EncodeFields, DecodeFields, AutodialFields);

} // namespace zelvor::dtmf
