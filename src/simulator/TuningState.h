#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "data/DataImage.h"
#include "data/TuneItems.h"

namespace zelvor {

/// One value that a code of the tuning mode stands for.
struct TunePlace {
    int item; // 1 to 15
    TunePoint point;

    bool operator==(const TunePlace&) const = default;
};

/// "item 1 Low".
[[nodiscard]] std::string TunePlaceText(const TunePlace& place);

/// The tuning values of the radio: those of its memory, which the caller owns and which must outlive this, those at the
/// test frequency, which the radio keeps beside it, and a copy of both that is worked on. At first each value at the
/// test frequency is that of the item's point Center.
class TuningState {
public:
    explicit TuningState(DataImage& memory);

    /// The working copy is taken anew: what was set and not stored is gone. The radio is in wide mode.
    void Begin();

    void SetNarrow(bool narrow) { narrow_ = narrow; }
    [[nodiscard]] bool IsNarrow() const { return narrow_; }

    /// What the code stands for. In narrow mode, an item that has a narrow value has no other.
    [[nodiscard]] std::optional<TunePlace> Find(std::uint8_t code) const;
    /// Whether the code stands for anything, in whichever mode.
    [[nodiscard]] static bool IsCode(std::uint8_t code);

    [[nodiscard]] std::uint8_t WorkingValue(const TunePlace& place) const;
    void Set(const TunePlace& place, std::uint8_t value);
    /// Makes all working values of an item the radio's.
    void Store(int item);

    /// The tuning record of what is stored.
    [[nodiscard]] TuningRecord Record() const { return BuildTuningRecord(memory_, values_); }

private:
    DataImage& memory_;
    TuneValues values_;
    DataImage workingMemory_; // only its tuning values are looked at
    TuneValues workingValues_;
    bool narrow_ = false;
};

} // namespace zelvor
