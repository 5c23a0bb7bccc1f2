#include "data/TuneItems.h"

#include <cstddef>

namespace zelvor {

namespace {

constexpr TuneCell None{NoPlace, 0, 0};

/// A value kept in TuneValues.
constexpr TuneCell Kept(int recordByte, std::uint8_t code) {
    return {NoPlace, recordByte, code};
}

// A row a line, a point a column.
// clang-format off
constexpr std::array<TuneItemRow, TuneItemCount> Items{{
    //                                                                      Test            Low              Low'             Center           High'            High             Narrow
    {Text::RfHighPower,         18, &TuneValues::TestPointHighPower,    {{Kept(11, 18),    {0x185, 12, 48},  {0x184, 13, 51}, {0x183, 14, 49},  {0x182, 15, 52}, {0x181, 16, 50},  None}}},
    {Text::RfLowPower,          20, &TuneValues::TestPointLowPower,     {{Kept(17, 20),    {0x18A, 18, 96},  {0x189, 19, 99}, {0x188, 20, 97},  {0x187, 21, 100}, {0x186, 22, 98}, None}}},
    {Text::DqtBalance,          24, &TuneValues::TestPointDqtBalance,   {{Kept(29, 24),    {0x18E, 30, 101}, None,            {0x18D, 31, 102}, None,            {0x18C, 32, 103}, {0x18B, 33, 24}}}},
    {Text::MaxDeviation,        23, &TuneValues::TestPointMaxDeviation, {{Kept(24, 23),    {0x192, 25, 36},  None,            {0x191, 26, 37},  None,            {0x190, 27, 38},  {0x18F, 28, 23}}}},
    {Text::QtFineDeviation,     25, &TuneValues::TestPointQtFine,       {{Kept(34, 25),    {0x196, 35, 106}, None,            {0x195, 36, 107}, None,            {0x194, 37, 108}, {0x193, 38, 25}}}},
    {Text::DqtFineDeviation,    26, &TuneValues::TestPointDqtFine,      {{Kept(39, 26),    {0x19A, 40, 111}, None,            {0x199, 41, 112}, None,            {0x198, 42, 113}, {0x197, 43, 26}}}},
    {Text::DtmfFineDeviation,   29, nullptr,                            {{{0x19C, 44, 29}, None,             None,            None,             None,            None,             {0x19B, 45, 29}}}},
    {Text::Sensitivity,         31, &TuneValues::TestPointSensitivity,  {{Kept(46, 31),    {0x19F, 47, 53},  None,            {0x19E, 48, 54},  None,            {0x19D, 49, 55},  None}}},
    // Intended: the codes of the two squelch items are in the opposite order to their numbers.
    {Text::SquelchTight,        13, &TuneValues::TestPointSquelchTight, {{Kept(6, 13),     {0x1A3, 7, 117},  None,            {0x1A2, 8, 118},  None,            {0x1A1, 9, 119},  {0x1A0, 10, 13}}}},
    {Text::SquelchOpen,         12, &TuneValues::TestPointSquelchOpen,  {{Kept(1, 12),     {0x1A7, 2, 114},  None,            {0x1A6, 3, 115},  None,            {0x1A5, 4, 116},  {0x1A4, 5, 12}}}},
    {Text::MskFineDeviation,    27, nullptr,                            {{{0x1AA, 52, 27}, None,             None,            None,             None,            None,             {0x1A8, 54, 27}}}},
    {Text::BatteryWarningLevel, 28, nullptr,                            {{{0x1AC, 55, 28}, None,             None,            None,             None,            None,             None}}},
    {Text::Vox1,                33, nullptr,                            {{{0x1AE, 57, 33}, None,             None,            None,             None,            None,             None}}},
    {Text::Vox10,               35, nullptr,                            {{{0x1AF, 58, 35}, None,             None,            None,             None,            None,             None}}},
    // The record does not hold the last one: its byte comes with a clone read alone.
    {Text::Rssi,                34, nullptr,                            {{{0x1B2, 0, 34},  None,             None,            None,             None,            None,             None}}},
}};
// clang-format on

/// Bytes of the record that are kept in the image although no item uses them.
struct UnusedByte {
    int recordByte;
    int address;
};
constexpr std::array<UnusedByte, 3> UnusedBytes{{{51, 0x1AB}, {53, 0x1A9}, {56, 0x1AD}}};

/// Calls visit(recordByte, item or null, address or NoPlace) for every byte of the record that has a place.
template<typename Visit>
void ForEachRecordByte(Visit visit) {
    for (const TuneItemRow& item : Items) {
        for (const TuneCell& cell : item.cells) {
            if (cell.recordByte != 0) {
                visit(cell.recordByte, &item, cell.address);
            }
        }
    }
    for (const UnusedByte& unused : UnusedBytes) {
        visit(unused.recordByte, nullptr, unused.address);
    }
}

} // namespace

const TuneItemRow& TuneItemOf(int tuneItem) {
    return Items[static_cast<std::size_t>(tuneItem - 1)];
}

int TuneValueOf(const TuneItemRow& item, TunePoint point, const DataImage& image, const TuneValues& values) {
    const TuneCell& cell = item.Cell(point);
    if (!cell.Exists()) {
        return 0;
    }
    return cell.address == NoPlace ? values.*item.testPoint : image.At(cell.address);
}

void StoreTuningData(std::span<const std::uint8_t> reply, DataImage& image, TuneValues& values) {
    ForEachRecordByte([&](int recordByte, const TuneItemRow* item, int address) {
        const auto place = static_cast<std::size_t>(recordByte - 1);
        if (place >= reply.size()) {
            return;
        }
        if (address == NoPlace) {
            values.*item->testPoint = reply[place];
        } else {
            image.Set(address, reply[place]);
        }
    });
}

TuningRecord BuildTuningRecord(const DataImage& image, const TuneValues& values) {
    TuningRecord record{};
    ForEachRecordByte([&](int recordByte, const TuneItemRow* item, int address) {
        record[static_cast<std::size_t>(recordByte - 1)] =
            address == NoPlace ? static_cast<std::uint8_t>(values.*item->testPoint) : image.At(address);
    });
    return record;
}

} // namespace zelvor
