#include "data/ChannelBits.h"

#include <array>
#include <cstddef>
#include <string_view>

#include "data/ChannelRecord.h"
#include "data/ChannelWords.h"
#include "data/MemoryMap.h"

namespace zelvor {

namespace {

using namespace record;

constexpr TextPair Marked{"yes", "有"};
constexpr TextPair NotMarked{"no", "无"};

using Code = std::uint8_t;
constexpr std::array PowerCodes{HighPowerBit, Code{0}};
constexpr std::array WidthCodes{WideBit, Code{0}};
constexpr std::array SignallingCodes{Code{0}, OptSignalDtmf, OptSignalCorvane};
constexpr std::array SpMuteCodes{Code{0}, SpMuteCarrierAndOptSig, SpMuteCarrierOrOptSig};
constexpr std::array BusyLockCodes{Code{0}, BusyLockCarrier, BusyLockQtDqt, BusyLockOptSignal};
constexpr std::array BeatShiftCodes{Code{0}, BeatShiftBit};
constexpr std::array CompanderCodes{Code{0}, CompanderBit};
constexpr std::array<Code, 2 + FleetListCount> PttIdCodes = [] {
    std::array<Code, 2 + FleetListCount> codes{PttIdOff, PttIdOwn};
    for (int n = 1; n <= FleetListCount; ++n) {
        codes[static_cast<std::size_t>(n) + 1] = static_cast<Code>(PttIdFleetBase + n);
    }
    return codes;
}();
constexpr std::array<Code, AutoDialMask + 1> AutoDialCodes = [] {
    std::array<Code, AutoDialMask + 1> codes{};
    for (std::size_t i = 0; i < codes.size(); ++i) {
        codes[i] = static_cast<Code>(AutoDialFirst + i);
    }
    return codes;
}();
constexpr Code WholeByte = 0xFF;

template<std::string_view (*Word)(std::uint8_t, Language)>
std::string WordOf(const DataImage& /*image*/, std::uint8_t byte, Language language) {
    return std::string(Word(byte, language));
}

template<std::uint8_t Bit>
std::string MarkOf(const DataImage& /*image*/, std::uint8_t byte, Language language) {
    return MarkWord((byte & Bit) != 0, language);
}

std::string PttIdOf(const DataImage& image, std::uint8_t byte, Language language) {
    return PttIdWord(image.At(address::PttIdType), byte, language);
}

std::string AutoDialOf(const DataImage& /*image*/, std::uint8_t byte, Language /*language*/) {
    return AutoDialWord(byte);
}

} // namespace

std::optional<ChannelBits> BitsOf(ChannelColumn column) {
    switch (column) {
    case ChannelColumn::Power:
        return ChannelBits{HighPowerBit, PowerCodes, WordOf<PowerWord>};
    case ChannelColumn::Width:
        return ChannelBits{WideBit, WidthCodes, WordOf<WidthWord>};
    case ChannelColumn::OptionSignalling:
        return ChannelBits{OptSignalMask, SignallingCodes, WordOf<OptSignalWord>};
    case ChannelColumn::PttId:
        return ChannelBits{WholeByte, PttIdCodes, PttIdOf};
    case ChannelColumn::SpUnmute:
        return ChannelBits{SpMuteMask, SpMuteCodes, WordOf<SpMuteWord>};
    case ChannelColumn::BusyLockout:
        return ChannelBits{BusyLockMask, BusyLockCodes, WordOf<BusyLockWord>};
    case ChannelColumn::Autodial:
        return ChannelBits{WholeByte, AutoDialCodes, AutoDialOf};
    case ChannelColumn::BeatShift:
        return ChannelBits{BeatShiftBit, BeatShiftCodes, MarkOf<BeatShiftBit>};
    case ChannelColumn::Compander:
        return ChannelBits{CompanderBit, CompanderCodes, MarkOf<CompanderBit>};
    case ChannelColumn::Receive:
    case ChannelColumn::Transmit:
    case ChannelColumn::Decode:
    case ChannelColumn::Encode:
    case ChannelColumn::ScanAdd:
        break;
    }
    return std::nullopt;
}

std::string MarkWord(bool isMarked, Language language) {
    return std::string((isMarked ? Marked : NotMarked).In(language));
}

} // namespace zelvor
