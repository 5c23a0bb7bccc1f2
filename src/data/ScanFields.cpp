#include "data/ScanFields.h"

#include <algorithm>

#include "text/Decimal.h"

namespace zelvor::scan {

namespace {

constexpr std::uint8_t BlankByte = 0xFF;
constexpr int NoHighByte = 0xFF;

/// Seconds in units of 10^-decimals, cut off behind them.
std::int64_t CutUnits(std::string_view text, int decimals) {
    std::int64_t units = Decimal::Leading(text).Rounded(Decimal::Places);
    for (int place = Decimal::Places; place > decimals; --place) {
        units /= 10;
    }
    return units;
}

} // namespace

std::optional<std::uint8_t> EntryOf(const ListField& field, std::uint8_t byte) {
    if (byte == BlankByte) {
        return field.blank;
    }
    return byte < field.words.size() ? std::optional(byte) : std::nullopt;
}

std::optional<int> Load(const DataImage& image, const TimeField& field) {
    const int low = image.At(field.address);
    if (field.bytes == 1) {
        return low == 0x00 || low == 0xFF ? std::nullopt : std::optional(low);
    }
    const int high = image.At(field.address + 1);
    return high == NoHighByte ? std::nullopt : std::optional(high * 256 + low);
}

void Store(DataImage& image, const TimeField& field, int value) {
    image.Set(field.address, static_cast<std::uint8_t>(value % 256));
    if (field.bytes == 2) {
        image.Set(field.address + 1, static_cast<std::uint8_t>(value / 256));
    }
}

std::string Show(const TimeField& field, int value) {
    return Decimal::Of(value * field.step + field.base, field.decimals).Format(1, field.decimals);
}

int Read(const TimeField& field, std::string_view text) {
    const std::int64_t value = (CutUnits(text, field.decimals) - field.base) / field.step;
    return static_cast<int>(std::clamp<std::int64_t>(value, field.first, field.last));
}

} // namespace zelvor::scan
