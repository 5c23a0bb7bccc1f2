#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "data/DataImage.h"
#include "text/Text.h"

/// The scan block of the image: nine bytes, described once for all that show or store them.
namespace zelvor::scan {

/// The legal values of the priority mode's byte.
enum class Mode : std::uint8_t { None, Fixed, Selected };

/// A byte that is a number of a list of words.
struct ListField {
    Text label;
    int address;
    std::span<const Text> words;
    std::optional<std::uint8_t> blank = {}; // the number that 0xFF reads as; nothing: it is no legal one
};

inline constexpr std::array ModeWords{Text::None, Text::Fixed, Text::Selected};
inline constexpr std::array RevertWords{Text::Selected, Text::SelectedAndTalkBack, Text::Priority,
                                        Text::PriorityAndTalkBack};
inline constexpr ListField PriorityMode{Text::PriorityLabel, 0x160, ModeWords, 0};
inline constexpr ListField RevertChannel{Text::RevertChannel, 0x164, RevertWords};

/// The place of a byte's word among those of the field; nothing for an illegal byte.
[[nodiscard]] std::optional<std::uint8_t> EntryOf(const ListField& field, std::uint8_t byte);

/// The revert channels that a priority mode offers, as values of RevertChannel.
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

/// The priority channel: 1 to 16, and NoChannel.
struct ChannelField {
    Text label;
    int address;
};
inline constexpr ChannelField PriorityChannel{Text::PriorityChannel, 0x161};
inline constexpr std::uint8_t NoChannel = 0xFF;

/// A time, stored as a number of steps and shown in seconds.
struct TimeField {
    Text label;
    int address;
    int bytes;       // 1, or 2 with the low byte first
    int first;       // legal values
    int last;        //
    int step;        // seconds of a step and
    int base;        // of the value 0, in units of 10^-decimals s
    int decimals;    // of the shown text
    int lengthLimit; // characters that can be typed
};
inline constexpr TimeField LookBackTimeA{Text::LookBackTimeA, 0x162, 1, 1, 91, 5, 45, 2, 4};
inline constexpr TimeField LookBackTimeB{Text::LookBackTimeB, 0x163, 1, 1, 91, 5, 45, 2, 4};
inline constexpr TimeField DropoutDelayTime{Text::DropoutDelayTime, 0x165, 2, 0, 300, 1, 0, 0, 3};
inline constexpr TimeField TxDwellTime{Text::TxDwellTime, 0x167, 2, 0, 300, 1, 0, 0, 3};

/// The stored value, legal or not; nothing where the image holds none: 0 or 0xFF in a field of one byte, a high byte of
/// 0xFF in one of two.
[[nodiscard]] std::optional<int> Load(const DataImage& image, const TimeField& field);
void Store(DataImage& image, const TimeField& field, int value);

/// The seconds of any value, "0.50" for 1 of a look back time.
[[nodiscard]] std::string Show(const TimeField& field, int value);

/// The legal value of a typed text: cut down to the step and kept to the range. A text without a number counts as 0 s.
[[nodiscard]] int Read(const TimeField& field, std::string_view text);

} // namespace zelvor::scan
