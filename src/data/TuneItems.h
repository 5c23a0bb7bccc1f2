#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string_view>

#include "data/DataImage.h"
#include "text/Text.h"

/// What can be tuned, where its values lie, and the codes by which the radio knows them: one table for the tuning
/// dialogs, the tuning report and the simulated radio. Tuning values are bytes.
namespace zelvor {

/// The values at the test frequency, which have no place in the image; TestPointCurrent is a copy of the one that the
/// open tuning dialog works on.
struct TuneValues {
    std::int16_t TestPointHighPower = 0;
    std::int16_t TestPointLowPower = 0;
    std::int16_t TestPointDqtBalance = 0;
    std::int16_t TestPointMaxDeviation = 0;
    std::int16_t TestPointQtFine = 0;
    std::int16_t TestPointDqtFine = 0;
    std::int16_t TestPointSensitivity = 0;
    std::int16_t TestPointSquelchOpen = 0;
    std::int16_t TestPointSquelchTight = 0;
    std::int16_t TestPointCurrent = 0;

    bool operator==(const TuneValues&) const = default;
};

/// The columns of the tuning table. Test is the value at the test frequency, or the only value of an item (in wide mode
/// where the item has a narrow one too); Low to High are the frequency points; Narrow is the only value of narrow mode.
enum class TunePoint : std::uint8_t { Test, Low, LowPrime, Center, HighPrime, High, Narrow };
inline constexpr int TunePointCount = 7;

/// One value of an item.
struct TuneCell {
    int address;       // in the image; NoPlace for a value kept in TuneValues, and where the item has no such point
    int recordByte;    // its place in the tuning record, 1 to 62; 0 where it is in none
    std::uint8_t code; // first byte of Select point and Set value; 0 where the item has no such point

    [[nodiscard]] constexpr bool Exists() const { return code != 0; }
};
inline constexpr int NoPlace = -1;

struct TuneItemRow {
    Text name;
    std::uint8_t code;                   // first byte of the item's commands
    std::int16_t TuneValues::*testPoint; // where the Test value is kept; null where that is in the image
    std::array<TuneCell, TunePointCount> cells;

    [[nodiscard]] const TuneCell& Cell(TunePoint point) const { return cells[static_cast<std::size_t>(point)]; }
};

inline constexpr int TuneItemCount = 15;
/// TuneItem values that the program tells apart.
inline constexpr int FirstMeasuredItem = 12; // Battery Warning Level, VOX1, VOX10, RSSI: measured, not set by hand

/// The row of TuneItem 1 to 15.
[[nodiscard]] const TuneItemRow& TuneItemOf(int tuneItem);

/// A stored value; 0 for a point that the item does not have.
[[nodiscard]] int TuneValueOf(const TuneItemRow& item, TunePoint point, const DataImage& image,
                              const TuneValues& values);

inline constexpr int TuningRecordSize = 62;
using TuningRecord = std::array<std::uint8_t, TuningRecordSize>;

/// Stores the reply to Read tuning data in the image and the values; of a shorter reply what is there.
void StoreTuningData(std::span<const std::uint8_t> reply, DataImage& image, TuneValues& values);
/// The record that StoreTuningData would take apart into the image and values as they are; bytes that nothing is known
/// of are 0.
[[nodiscard]] TuningRecord BuildTuningRecord(const DataImage& image, const TuneValues& values);

} // namespace zelvor
