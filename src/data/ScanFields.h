#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "data/Field.h"

/// The scan block of the image: nine bytes, described once for all that show or store them.
namespace zelvor::scan {

/// The entries of PriorityMode.
enum class Mode : std::uint8_t { None, Fixed, Selected };

inline constexpr std::array<FieldWord, 3> ModeWords{{Text::None, Text::Fixed, Text::Selected}};
inline constexpr std::array<ListField::Exception, 1> ErasedIsNone{{{ErasedByte, 0}}};
inline constexpr ListField PriorityMode{.key = "scan.priority",
                                        .label = Text::PriorityLabel,
                                        .address = 0x160,
                                        .words = ModeWords,
                                        .exceptions = ErasedIsNone,
                                        .blank = 0};

/// 1 to 16; 0, stored as an erased byte, for none.
[[nodiscard]] int ReadChannel(std::string_view text);
inline constexpr std::uint8_t NoChannel = ErasedByte;
inline constexpr NumberField PriorityChannel{.key = "scan.priority-channel",
                                             .label = Text::PriorityChannel,
                                             .address = 0x161,
                                             .first = 0,
                                             .last = 16,
                                             .lengthLimit = 2,
                                             .blank = 0,
                                             .show = ShowNumber,
                                             .read = ReadChannel,
                                             .zeroByte = NoChannel};

/// Seconds: 0.50 for 1, and 0.05 more a step. 0 is no time.
[[nodiscard]] std::string ShowLookBackTime(int steps, Language language);
/// Cut down to the step and kept to the range; a text without a number counts as 0 s.
[[nodiscard]] int ReadLookBackTime(std::string_view text);
inline constexpr NumberField LookBackTimeA{.key = "scan.look-back-time-a",
                                           .label = Text::LookBackTimeA,
                                           .address = 0x162,
                                           .first = 1,
                                           .last = 91,
                                           .lengthLimit = 4,
                                           .blank = 31,
                                           .show = ShowLookBackTime,
                                           .read = ReadLookBackTime};
inline constexpr NumberField LookBackTimeB{.key = "scan.look-back-time-b",
                                           .label = Text::LookBackTimeB,
                                           .address = 0x163,
                                           .first = 1,
                                           .last = 91,
                                           .lengthLimit = 4,
                                           .blank = 51,
                                           .show = ShowLookBackTime,
                                           .read = ReadLookBackTime};

inline constexpr std::array<FieldWord, 4> RevertWords{
    {Text::Selected, Text::SelectedAndTalkBack, Text::Priority, Text::PriorityAndTalkBack}};
inline constexpr ListField RevertChannel{
    .key = "scan.revert-channel", .label = Text::RevertChannel, .address = 0x164, .words = RevertWords, .blank = 1};

/// The revert channels that a priority mode offers, as entries of RevertChannel.
inline constexpr std::array<std::uint8_t, 2> RevertWithoutPriority{0, 1};
inline constexpr std::array<std::uint8_t, 4> RevertOfEither{0, 1, 2, 3};
inline constexpr std::array<std::uint8_t, 2> RevertToPriority{2, 3};
/// Without a legal mode every one may be meant.
[[nodiscard]] constexpr std::span<const std::uint8_t> RevertChannelsOf(std::optional<Mode> mode) {
    if (mode == Mode::None) {
        return RevertWithoutPriority;
    }
    if (mode == Mode::Selected) {
        return RevertToPriority;
    }
    return RevertOfEither;
}

/// Seconds.
[[nodiscard]] int ReadDelay(std::string_view text);
inline constexpr NumberField DropoutDelayTime{.key = "scan.dropout-delay-time",
                                              .label = Text::DropoutDelayTime,
                                              .address = 0x165,
                                              .bytes = 2,
                                              .first = 0,
                                              .last = 300,
                                              .lengthLimit = 3,
                                              .blank = 3,
                                              .show = ShowNumber,
                                              .read = ReadDelay};
inline constexpr NumberField TxDwellTime{.key = "scan.tx-dwell-time",
                                         .label = Text::TxDwellTime,
                                         .address = 0x167,
                                         .bytes = 2,
                                         .first = 0,
                                         .last = 300,
                                         .lengthLimit = 3,
                                         .blank = 3,
                                         .show = ShowNumber,
                                         .read = ReadDelay};

/// In the order of the window and the report.
inline constexpr std::array Fields = std::to_array<Field>(
    {PriorityMode, PriorityChannel, LookBackTimeA, LookBackTimeB, RevertChannel, DropoutDelayTime, TxDwellTime});

} // namespace zelvor::scan
