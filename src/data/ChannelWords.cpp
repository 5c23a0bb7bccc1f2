#include "data/ChannelWords.h"

#include "data/ChannelRecord.h"
#include "data/MemoryMap.h"
#include "text/StringTable.h"

namespace zelvor {

using namespace record;

std::string_view OptSignalWord(std::uint8_t byte12, Language language) {
    switch (byte12 & OptSignalMask) {
    case 0:
        return TableText(language, Text::None);
    case OptSignalDtmf:
        return TableText(language, Text::Dtmf);
    case OptSignalCorvane:
        return TableText(language, Text::Corvane);
    default:
        return {};
    }
}

std::string_view BusyLockWord(std::uint8_t byte12, Language language) {
    switch (byte12 & BusyLockMask) {
    case 0:
        return TableText(language, Text::Off);
    case BusyLockCarrier:
        return TableText(language, Text::Carrier);
    case BusyLockQtDqt:
        return TableText(language, Text::QtDqt);
    default: // BusyLockOptSignal
        return TableText(language, Text::OptionSignalling);
    }
}

std::string_view SpMuteWord(std::uint8_t byte12, Language language) {
    switch (byte12 & SpMuteMask) {
    case 0:
        return TableText(language, Text::Carrier);
    case SpMuteCarrierAndOptSig:
        return TableText(language, Text::CarrierAndOptSig);
    case SpMuteCarrierOrOptSig:
        return TableText(language, Text::CarrierOrOptSig);
    default:
        return {};
    }
}

std::string_view PowerWord(std::uint8_t byte13, Language language) {
    return TableText(language, (byte13 & HighPowerBit) != 0 ? Text::High : Text::Low);
}

std::string_view WidthWord(std::uint8_t byte13, Language language) {
    return TableText(language, (byte13 & WideBit) != 0 ? Text::Wide : Text::Narrow);
}

std::string PttIdWord(std::uint8_t type, std::uint8_t byte14, Language language) {
    if (type == TypeDtmf) {
        return std::string(TableText(language, (byte14 & PttIdOn) == PttIdOn ? Text::On : Text::Off));
    }
    if (type != TypeCorvane) {
        return {};
    }
    const int choice = byte14 & 0x0F;
    if (choice == 1) {
        return std::string(TableText(language, Text::Own));
    }
    if (choice >= 2 && choice <= 1 + FleetListCount) {
        return FleetListText(language, choice - 1);
    }
    return std::string(TableText(language, Text::Off));
}

std::string AutoDialWord(std::uint8_t byte15) {
    return std::to_string((byte15 & AutoDialMask) + 1);
}

std::string FleetListText(Language language, int n) {
    return std::string(TableText(language, Text::FleetList)) + ' ' + std::to_string(n);
}

std::vector<std::string> PttIdTexts(const DataImage& image, Language language) {
    std::vector<std::string> texts;
    const std::uint8_t type = image.At(address::PttIdType);
    if (type != TypeDtmf && type != TypeCorvane) {
        return texts;
    }
    texts.emplace_back(TableText(language, Text::Off));
    if (type == TypeDtmf) {
        texts.emplace_back(TableText(language, Text::On));
        return texts;
    }
    texts.emplace_back(TableText(language, Text::Own));
    for (int n = 1; n <= FleetListCount; ++n) {
        texts.push_back(FleetListText(language, n));
    }
    return texts;
}

} // namespace zelvor
