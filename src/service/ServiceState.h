#pragma once

#include <array>
#include <cstdint>

#include "data/TestFrequencies.h"
#include "data/TuneItems.h"

namespace zelvor {

/// State of the radio's service mode, shared by the exchange that enters it, test mode and the tuning dialogs. Owned by
/// the program, handed on by reference.
struct ServiceState {
    int TuneItem = 1;      // 1 to 15
    int TestChannelNo = 1; // 1 to 16
    bool NarrowMode = false;
    bool TestAborted = false; // the user gave up at the connection prompt: nothing more is sent to the radio
    /// What the radio told of its test channels on entry; "0" for an unused one.
    std::array<TestFrequencyTexts, TestChannelCount> TestFrequencyText;
    TuneValues Values;
    /// The radio's manufacturing record, by the index of its bytes.
    std::array<std::uint8_t, 34> RadioInfoRecord{};
};

} // namespace zelvor
