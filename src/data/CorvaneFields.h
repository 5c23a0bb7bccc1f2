#pragma once

#include <array>
#include <string>
#include <string_view>

#include "data/DataImage.h"
#include "data/Fields.h"
#include "text/Language.h"

/// The Corvane signalling block of the image: own number, timers and the fleet list, described once for all that show
/// or store them.
namespace zelvor::corvane {

[[nodiscard]] std::string ShowFleet(int step, Language language);
[[nodiscard]] int ReadFleet(std::string_view text);
[[nodiscard]] std::string ShowId(int step, Language language);
[[nodiscard]] int ReadId(std::string_view text);
[[nodiscard]] int ReadDelay(std::string_view text);
[[nodiscard]] int ReadTimer(std::string_view text);

inline constexpr std::array BaudRates{FieldWord{"1200"}, FieldWord{"2400"}};

/// The radio's own number: fleets 100 to 349 and IDs 1000 to 4999 as steps from 1, and 0 for none. Both are none
/// together.
inline constexpr NumberField OwnFleet{.label = Text::OwnFleet,
                                      .address = 0x170,
                                      .bytes = 1,
                                      .first = 0,
                                      .last = 250,
                                      .increment = 1,
                                      .lengthLimit = 3,
                                      .blank = 0,
                                      .showsBlank = false,
                                      .show = ShowFleet,
                                      .read = ReadFleet,
                                      .zeroByte = BlankByte};
inline constexpr NumberField OwnId{.label = Text::OwnId,
                                   .address = 0x171,
                                   .bytes = 2,
                                   .first = 0,
                                   .last = 4000,
                                   .increment = 1,
                                   .lengthLimit = 4,
                                   .blank = 0,
                                   .showsBlank = false,
                                   .show = ShowId,
                                   .read = ReadId};
inline constexpr ListField BaudRate{
    .label = Text::CorvaneBaudRate, .address = 0x175, .words = BaudRates, .none = BlankByte};
/// Milliseconds.
inline constexpr NumberField DelayTime{.label = Text::DataTxModulationDelayTimer,
                                       .address = 0x173,
                                       .bytes = 2,
                                       .first = 0,
                                       .last = 6000,
                                       .increment = 1,
                                       .lengthLimit = 4,
                                       .blank = 400,
                                       .showsBlank = true,
                                       .show = ShowNumber,
                                       .read = ReadDelay};
/// Seconds.
inline constexpr NumberField MessageModeTimer{.label = Text::MessageModeTimer,
                                              .address = 0x176,
                                              .bytes = 2,
                                              .first = 0,
                                              .last = 300,
                                              .increment = 1,
                                              .lengthLimit = 3,
                                              .blank = 300,
                                              .showsBlank = true,
                                              .show = ShowNumberOrOff,
                                              .read = ReadTimer};
inline constexpr CheckField SideTone{.label = Text::PttIdSideTone, .address = 0x178, .blankIsOff = true};

/// The fleet list: pairs of a fleet and an ID that a channel's PTT ID can point to.
inline constexpr int FleetListSize = 8;
inline constexpr int EntrySize = 3; // bytes

/// Address of entry n, 1 to 8. Entries 5 to 8 lie in a block of their own.
[[nodiscard]] constexpr int EntryAddress(int n) {
    return n <= 4 ? 0x1C0 + EntrySize * (n - 1) : 0x1D0 + EntrySize * (n - 5);
}

/// One of the two numbers of an entry. All its bytes 0xFF: none; all 0: all fleets or IDs; else the number less its
/// base, low byte first.
struct ListNumber {
    TextPair heading;
    int offset; // of its first byte in the entry
    int bytes;
    int base;
    int first; // legal numbers
    int last;
    int digits; // that can be typed
};
inline constexpr ListNumber ListFleet{{"Fleet", "队列"}, 0, 1, 99, 100, 349, 3};
inline constexpr ListNumber ListId{{"ID", "ID"}, 1, 2, 999, 1000, 4999, 4};

/// Stands for all fleets or all IDs.
inline constexpr int AllNumbers = 0;

/// The text of a number, or of AllNumbers.
[[nodiscard]] std::string ShowListNumber(int number, Language language);
/// The text that entry n's number has; empty for none. Illegal numbers show as they are.
[[nodiscard]] std::string LoadListNumber(const DataImage& image, int n, const ListNumber& field, Language language);
/// The number that a typed text, which is not empty, stands for: AllNumbers where it has no number, else a legal one.
[[nodiscard]] int ReadListNumber(std::string_view text, const ListNumber& field);
/// number: a legal one or AllNumbers.
void StoreListNumber(DataImage& image, int n, const ListNumber& field, int number);
/// Leaves entry n without fleet and ID.
void EraseEntry(DataImage& image, int n);

} // namespace zelvor::corvane
