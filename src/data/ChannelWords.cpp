#include "data/ChannelWords.h"

#include "data/ChannelRecord.h"
#include "data/MemoryMap.h"
#include "text/StringTable.h"

namespace zelvor {

using namespace record;

std::string_view OptSignalWord(std::uint8_t byte12, Language language) {
    switch (byte12 & OptSignalMask) {
    case 0:
        return TableText(language, words::None);
    case OptSignalDtmf:
        return TableText(language, words::Dtmf);
    case OptSignalCorvane:
        return TableText(language, words::Corvane);
    default:
        return {};
    }
}

std::string_view BusyLockWord(std::uint8_t byte12, Language language) {
    switch (byte12 & BusyLockMask) {
    case 0:
        return TableText(language, words::Off);
    case BusyLockCarrier:
        return TableText(language, words::Carrier);
    case BusyLockQtDqt:
        return TableText(language, words::QtDqt);
    default: // BusyLockOptSignal
        return TableText(language, words::OptionSignalling);
    }
}

std::string_view SpMuteWord(std::uint8_t byte12, Language language) {
    switch (byte12 & SpMuteMask) {
    case 0:
        return TableText(language, words::Carrier);
    case SpMuteCarrierAndOptSig:
        return TableText(language, words::CarrierAndOptSig);
    case SpMuteCarrierOrOptSig:
        return TableText(language, words::CarrierOrOptSig);
    default:
        return {};
    }
}

std::string PttIdWord(std::uint8_t type, std::uint8_t byte14, Language language) {
    if (type == TypeDtmf) {
        return std::string(TableText(language, (byte14 & PttIdOn) == PttIdOn ? words::On : words::Off));
    }
    if (type != TypeCorvane) {
        return {};
    }
    const int choice = byte14 & 0x0F;
    if (choice == 1) {
        return std::string(TableText(language, words::Own));
    }
    if (choice >= 2 && choice <= 1 + FleetListCount) {
        return FleetListText(language, choice - 1);
    }
    return std::string(TableText(language, words::Off));
}

std::string AutoDialWord(std::uint8_t byte15) {
    return std::to_string((byte15 & AutoDialMask) + 1);
}

std::string FleetListText(Language language, int n) {
    return std::string(TableText(language, words::FleetList)) + ' ' + std::to_string(n);
}

std::vector<std::string> PttIdTexts(const DataImage& image, Language language) {
    std::vector<std::string> texts;
    const std::uint8_t type = image.At(address::PttIdType);
    if (type != TypeDtmf && type != TypeCorvane) {
        return texts;
    }
    texts.emplace_back(TableText(language, words::Off));
    if (type == TypeDtmf) {
        texts.emplace_back(TableText(language, words::On));
        return texts;
    }
    texts.emplace_back(TableText(language, words::Own));
    for (int n = 1; n <= FleetListCount; ++n) {
        texts.push_back(FleetListText(language, n));
    }
    return texts;
}

} // namespace zelvor
