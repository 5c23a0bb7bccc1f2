#include "simulator/TuningState.h"

#include <array>
#include <cstddef>
#include <string_view>

namespace zelvor {
namespace {

constexpr std::array<std::string_view, TunePointCount> PointNames{"Test",  "Low",  "Low'",  "Center",
                                                                  "High'", "High", "Narrow"};

constexpr std::array<TunePoint, TunePointCount> AllPoints{TunePoint::Test,   TunePoint::Low,       TunePoint::LowPrime,
                                                          TunePoint::Center, TunePoint::HighPrime, TunePoint::High,
                                                          TunePoint::Narrow};

std::optional<TunePlace> FindPlace(std::uint8_t code, bool narrow) {
    for (int item = 1; item <= TuneItemCount; ++item) {
        const TuneItemRow& row = TuneItemOf(item);
        const bool isNarrow = narrow && row.Cell(TunePoint::Narrow).Exists();
        for (const TunePoint point : AllPoints) {
            const TuneCell& cell = row.Cell(point);
            if (cell.Exists() && cell.code == code && isNarrow == (point == TunePoint::Narrow)) {
                return TunePlace{item, point};
            }
        }
    }
    return std::nullopt;
}

} // namespace

std::string TunePlaceText(const TunePlace& place) {
    std::string text = "item " + std::to_string(place.item) + " ";
    text += PointNames[static_cast<std::size_t>(place.point)];
    return text;
}

TuningState::TuningState(DataImage& memory) : memory_(memory) {
    for (int item = 1; item <= TuneItemCount; ++item) {
        const TuneItemRow& row = TuneItemOf(item);
        if (row.testPoint != nullptr) {
            values_.*row.testPoint = memory_.At(row.Cell(TunePoint::Center).address);
        }
    }
    Begin();
}

void TuningState::Begin() {
    workingMemory_ = memory_;
    workingValues_ = values_;
    narrow_ = false;
}

std::optional<TunePlace> TuningState::Find(std::uint8_t code) const {
    return FindPlace(code, narrow_);
}

bool TuningState::IsCode(std::uint8_t code) {
    return FindPlace(code, false).has_value(); // narrow mode has no code of its own
}

std::uint8_t TuningState::WorkingValue(const TunePlace& place) const {
    return static_cast<std::uint8_t>(TuneValueOf(TuneItemOf(place.item), place.point, workingMemory_, workingValues_));
}

void TuningState::Set(const TunePlace& place, std::uint8_t value) {
    const TuneItemRow& row = TuneItemOf(place.item);
    const TuneCell& cell = row.Cell(place.point);
    if (cell.address == NoPlace) {
        workingValues_.*row.testPoint = value;
    } else {
        workingMemory_.Set(cell.address, value);
    }
}

void TuningState::Store(int item) {
    const TuneItemRow& row = TuneItemOf(item);
    for (const TuneCell& cell : row.cells) {
        if (cell.address != NoPlace) {
            memory_.Set(cell.address, workingMemory_.At(cell.address));
        }
    }
    if (row.testPoint != nullptr) {
        values_.*row.testPoint = workingValues_.*row.testPoint;
    }
}

} // namespace zelvor
