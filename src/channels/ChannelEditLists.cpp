#include "channels/ChannelEditLists.h"

#include "data/ChannelRecord.h"
#include "data/MemoryMap.h"
#include "text/StringTable.h"

namespace zelvor {

namespace {

using namespace record;

constexpr int BusyLockShift = 3;
constexpr int SpMuteShift = 5;
constexpr int SpMuteEntries = 3;
constexpr int BusyLockEntries = 4;
constexpr std::uint8_t NothingStored = 0xFF;

constexpr int PttIdChoiceMask = 0x0F;
constexpr int LastPttIdEntry = 1 + FleetListCount;

std::vector<std::string> Words(Language language, const std::vector<Text>& names) {
    std::vector<std::string> texts;
    texts.reserve(names.size());
    for (const Text name : names) {
        texts.emplace_back(TableText(language, name));
    }
    return texts;
}

std::uint8_t WithBits(std::uint8_t byte, std::uint8_t mask, int value) {
    return static_cast<std::uint8_t>((byte & ~mask) | (value & mask));
}

} // namespace

DependentLists DependentListsOf(bool hasTone, bool hasSignalling, Language language) {
    std::vector<Text> spMute{hasTone ? Text::QtDqt : Text::Carrier};
    std::vector<Text> busyLock{Text::Off, Text::Carrier};
    if (hasTone) {
        busyLock.push_back(Text::QtDqt);
    }
    if (hasSignalling) {
        spMute.push_back(hasTone ? Text::QtDqtAndOptSig : Text::CarrierAndOptSig);
        spMute.push_back(hasTone ? Text::QtDqtOrOptSig : Text::CarrierOrOptSig);
        busyLock.push_back(Text::OptionSignalling);
    }
    return {Words(language, spMute), Words(language, busyLock)};
}

int SpMuteEntry(std::uint8_t byte12, int entries) {
    if ((byte12 & SpMuteMask) == SpMuteMask) {
        return NoEntry;
    }
    const int entry = (byte12 & SpMuteMask) >> SpMuteShift;
    return entry < entries ? entry : 0;
}

int BusyLockEntry(std::uint8_t byte12, int entries) {
    const int entry = (byte12 & BusyLockMask) >> BusyLockShift;
    return entry < entries ? entry : 0;
}

std::uint8_t WithSpMuteEntry(std::uint8_t byte12, int entry) {
    return entry >= 0 && entry < SpMuteEntries ? WithBits(byte12, SpMuteMask, entry << SpMuteShift) : NothingStored;
}

std::uint8_t WithBusyLockEntry(std::uint8_t byte12, int entry) {
    return entry >= 0 && entry < BusyLockEntries ? WithBits(byte12, BusyLockMask, entry << BusyLockShift)
                                                 : NothingStored;
}

std::uint8_t AutoDialByte(int entry) {
    return static_cast<std::uint8_t>(entry == NoEntry ? AutoDialFirst : AutoDialFirst + entry);
}

std::vector<std::string> PttIdTypeEntries(const DataImage& image, Language language) {
    const bool isCorvane = image.At(address::PttIdType) == TypeCorvane;
    std::vector<std::string> entries = Words(language, {Text::Off, isCorvane ? Text::Own : Text::On});
    for (int n = 1; isCorvane && n <= FleetListCount; ++n) {
        entries.push_back(std::to_string(n));
    }
    return entries;
}

int CorvanePttIdEntry(std::uint8_t byte14) {
    const int choice = byte14 & PttIdChoiceMask;
    return choice <= LastPttIdEntry ? choice : 0;
}

} // namespace zelvor
