#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "data/DataImage.h"
#include "text/Language.h"

namespace zelvor {

/// The entries of the two lists that depend on a channel's decode tone and option signalling.
struct DependentLists {
    std::vector<std::string> spMute;
    std::vector<std::string> busyLock;
    bool operator==(const DependentLists&) const = default;
};

/// hasTone: the decode tone is not "None". hasSignalling: the option signalling is not "None".
[[nodiscard]] DependentLists DependentListsOf(bool hasTone, bool hasSignalling, Language language);

/// No entry of a list is selected.
inline constexpr int NoEntry = -1;

// Byte 12 of a channel record holds the places of the selected entries, not their meanings. Intended: of "Off",
// "Carrier", "Option Signalling" the third is stored like "QT/DQT" in the longer lists, and radios in the field are
// programmed so.

/// The entry of ComSPMute that byte 12 selects in a list of so many entries; NoEntry where both bits are set.
[[nodiscard]] int SpMuteEntry(std::uint8_t byte12, int entries);
/// The same for ComBusyLock. A place that its list does not have selects the first entry, in both lists.
[[nodiscard]] int BusyLockEntry(std::uint8_t byte12, int entries);

/// Byte 12 with an entry of ComSPMute (0 to 2) or ComBusyLock (0 to 3) stored. Intended: with any other, as with no
/// entry, the whole byte becomes 0xFF.
[[nodiscard]] std::uint8_t WithSpMuteEntry(std::uint8_t byte12, int entry);
[[nodiscard]] std::uint8_t WithBusyLockEntry(std::uint8_t byte12, int entry);

/// Byte 15 for an entry of ComAutoDial, 0 to 7, or NoEntry.
[[nodiscard]] std::uint8_t AutoDialByte(int entry);

/// The entries that ComPTTID offers after a choice of the PTT ID Type, which the image has by now. Intended: those for
/// the fleet list are bare digits.
[[nodiscard]] std::vector<std::string> PttIdTypeEntries(const DataImage& image, Language language);
/// The entry of ComPTTID that byte 14 selects under the PTT ID Type Corvane.
[[nodiscard]] int CorvanePttIdEntry(std::uint8_t byte14);

} // namespace zelvor
