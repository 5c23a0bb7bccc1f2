#pragma once

#include <array>
#include <string>
#include <string_view>

#include "data/DataImage.h"
#include "data/Field.h"
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

inline constexpr std::array<FieldWord, 2> BaudRates{{"1200", "2400"}};

/// The radio's own number: fleets 100 to 349 and IDs 1000 to 4999 as steps from 1, and 0 for none. Both are none
/// together.
inline constexpr NumberField OwnFleet{.key = "corvane.own-fleet",
                                      .label = Text::OwnFleet,
                                      .address = 0x170,
                                      .first = 0,
                                      .last = 250,
                                      .lengthLimit = 3,
                                      .blank = 0,
                                      .show = ShowFleet,
                                      .read = ReadFleet,
                                      .zeroByte = ErasedByte};
inline constexpr NumberField OwnId{.key = "corvane.own-id",
                                   .label = Text::OwnId,
                                   .address = 0x171,
                                   .bytes = 2,
                                   .first = 0,
                                   .last = 4000,
                                   .lengthLimit = 4,
                                   .blank = 0,
                                   .show = ShowId,
                                   .read = ReadId};
inline constexpr ListField BaudRate{.key = "corvane.baud-rate",
                                    .label = Text::CorvaneBaudRate,
                                    .address = 0x175,
                                    .words = BaudRates,
                                    .none = ErasedByte,
                                    .blank = 0};
/// Milliseconds.
inline constexpr NumberField DelayTime{.key = "corvane.data-tx-modulation-delay",
                                       .label = Text::DataTxModulationDelayTimer,
                                       .address = 0x173,
                                       .bytes = 2,
                                       .first = 0,
                                       .last = 6000,
                                       .lengthLimit = 4,
                                       .erased = 400,
                                       .showsErased = true,
                                       .blank = 400,
                                       .show = ShowNumber,
                                       .read = ReadDelay};
/// Seconds.
inline constexpr NumberField MessageModeTimer{.key = "corvane.message-mode-timer",
                                              .label = Text::MessageModeTimer,
                                              .address = 0x176,
                                              .bytes = 2,
                                              .first = 0,
                                              .last = 300,
                                              .lengthLimit = 3,
                                              .erased = 300,
                                              .showsErased = true,
                                              .blank = 10,
                                              .show = ShowNumberOrOff,
                                              .read = ReadTimer};
inline constexpr CheckField SideTone{.key = "corvane.ptt-id-side-tone",
                                     .label = Text::PttIdSideTone,
                                     .address = 0x178,
                                     .erasedIsOff = true,
                                     .blank = true};

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
    std::string_view key;
    FieldWord heading;
    int offset; // of its first byte in the entry
    int bytes;
    int base;
    int first; // legal numbers
    int last;
    int digits; // that can be typed
};
inline constexpr ListNumber ListFleet{.key = "fleet",
                                      .heading = TextPair{"Fleet", "队列"},
                                      .offset = 0,
                                      .bytes = 1,
                                      .base = 99,
                                      .first = 100,
                                      .last = 349,
                                      .digits = 3};
inline constexpr ListNumber ListId{
    .key = "id", .heading = "ID", .offset = 1, .bytes = 2, .base = 999, .first = 1000, .last = 4999, .digits = 4};

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

/// A number of an entry as a field.
struct ListNumberField {
    int entry; // 1 to 8
    const ListNumber* number;
};
inline constexpr std::array<ListNumberField, 2 * FleetListSize> FleetList = [] {
    std::array<ListNumberField, 2 * FleetListSize> fields{};
    for (int n = 1; n <= FleetListSize; ++n) {
        fields[static_cast<std::size_t>(2 * n - 2)] = {n, &ListFleet};
        fields[static_cast<std::size_t>(2 * n - 1)] = {n, &ListId};
    }
    return fields;
}();

/// "corvane.fleet-list.3.id"
[[nodiscard]] std::string KeyOf(const ListNumberField& field);
[[nodiscard]] int AddressOf(const ListNumberField& field);
[[nodiscard]] int SizeOf(const ListNumberField& field);
[[nodiscard]] std::string LabelOf(const ListNumberField& field, Language language);
[[nodiscard]] std::string ShowValue(const ListNumberField& field, const DataImage& image, Language language);
[[nodiscard]] LegalValues LegalValuesOf(const ListNumberField& field, Language language);
[[nodiscard]] bool ParseValue(const ListNumberField& field, std::string_view text, DataImage& image);
[[nodiscard]] bool HoldsLegalValue(const ListNumberField& field, const DataImage& image);
void StoreBlankValue(const ListNumberField& field, DataImage& image);

/// The own number and how to send.
inline constexpr std::array OwnFields =
    std::to_array<Field>({OwnFleet, OwnId, BaudRate, DelayTime, MessageModeTimer, SideTone});
inline constexpr std::array FleetListFields =
    std::to_array<Field>({FleetList[0], FleetList[1], FleetList[2], FleetList[3], FleetList[4], FleetList[5],
                          FleetList[6], FleetList[7], FleetList[8], FleetList[9], FleetList[10], FleetList[11],
                          FleetList[12], FleetList[13], FleetList[14], FleetList[15]});

/// In the order of the report.
inline constexpr std::array Fields = Joined(OwnFields, FleetListFields);

} // namespace zelvor::corvane
