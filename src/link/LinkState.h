#pragma once

#include <cstdint>
#include <vector>

namespace zelvor {

/// SentState of a link on which no command was sent yet; also forces the next send tick.
inline constexpr int NothingSent = 55;

/// The one state of the line to the radio. Owned by the program and handed to every exchange by reference: only one of
/// them talks to the radio at a time, and each begins by resetting what it uses, so that what an earlier one left
/// behind, given up or not, does no harm. Only the port's number outlives them all.
struct LinkState {
    int CommPortNumber = 1; // 1 to 20, in memory only
    std::uint8_t CommState = 0;
    int SentState = NothingSent;
    int StepCount = 0;
    int TransferMode = 0; // 0 reading, 1 writing, 55 the last send of a transfer is done
    int AddrHigh = 0;
    int AddrLow = 0;
    std::vector<std::uint8_t> TxBuffer;
};

} // namespace zelvor
