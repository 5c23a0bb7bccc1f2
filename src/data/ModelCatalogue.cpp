#include "data/ModelCatalogue.h"

#include <algorithm>
#include <cstddef>

#include "data/MemoryMap.h"

namespace zelvor {
namespace {

// Intended: the radio information of model 5617 says "VHF" before UHF ranges, and its printed report says 459. Users
// compare both with what they have on paper.
constexpr std::array<ModelVariant, 16> Catalogue{{
    {Family4618, 1, "4618: VHF: 136-174 MHz(M)] [ ", "4618", "VHF: 136-174 MHz(M)", "4618 (VHF)", "136-174 MHz(M)",
     "4618(VHF)", "M", "136-174MHz", 2, 0},
    {Family4618, 33, "5618: UHF: 450-490 MHz(M)] [ ", "5618", "UHF: 450-490 MHz(M)", "5618 (UHF)", "450-490 MHz(M)",
     "5618(UHF)", "M", "450-490MHz", 5, 0},
    {Family4618, 51, "5618: UHF: 440-480 MHz(C)] [ ", "5618", "UHF: 440-480 MHz(C)", "5618 (UHF)", "440-480 MHz(C)",
     "5618(UHF)", "C", "440-480MHz", 5, 1},
    {Family4618, 67, "5618: UHF: 400-430 MHz(C2)] [ ", "5618", "UHF: 400-430 MHz(C2)", "5618 (UHF)", "400-430 MHz(C2)",
     "5618(UHF)", "C2", "400-430MHz", 5, 2},
    {Family4618, 99, "5618: UHF: 370-390 MHz(C5)] [ ", "5618", "UHF: 370-390 MHz(C5)", "5618 (UHF)", "370-390 MHz(C5)",
     "5618(UHF)", "C5", "370-390MHz", 5, 3},
    {Family4618, 83, "5618: UHF: 350-370 MHz(C6)] [ ", "5618", "UHF: 350-370 MHz(C6)", "5618 (UHF)", "350-370 MHz(C6)",
     "5618(UHF)", "C6", "350-370MHz", 5, 4},
    {Family4618, 115, "5618: UHF: 400-470 MHz(C7)] [ ", "5618", "UHF: 400-470 MHz(C7)", "5618 (UHF)", "400-470 MHz(C7)",
     "5618(UHF)", "C7", "400-470MHz", 5, 5},
    {Family4613, 1, "4613: VHF: 136-174 MHz(M)] [ ", "4613", "VHF: 136-174 MHz(M)", "4613 (VHF)", "136-174 MHz(M)",
     "4613(VHF)", "M", "136-174MHz", 0, 0},
    {Family4613, 0, "4613: VHF: 136-174 MHz(K)] [ ", "4613", "VHF: 136-174 MHz(K)", "4613 (VHF)", "136-174 MHz(K)",
     "4613(VHF)", "K", "136-174MHz", 0, 1},
    {Family4613, 32, "5613: UHF: 450-490 MHz(K)] [ ", "5613", "UHF: 450-490 MHz(K)", "5613 (UHF)", "450-490 MHz(K)",
     "5613(UHF)", "K", "450-490MHz", 3, 0},
    {Family4613, 112, "5613: UHF: 470-512 MHz(K2)] [ ", "5613", "UHF: 470-512 MHz(K2)", "5613 (UHF)", "470-512 MHz(K2)",
     "5613(UHF)", "K2", "470-512MHz", 3, 1},
    {Family4613, 33, "5613: UHF: 450-490 MHz(M)] [ ", "5613", "UHF: 450-490 MHz(M)", "5613 (UHF)", "450-490 MHz(M)",
     "5613(UHF)", "M", "450-490MHz", 3, 2},
    {Family4613, 113, "5613: UHF: 470-512 MHz(M2)] [ ", "5613", "UHF: 470-512 MHz(M2)", "5613 (UHF)", "470-512 MHz(M2)",
     "5613(UHF)", "M2", "470-512MHz", 3, 3},
    {Family4617, 1, "4617: VHF: 136-174 MHz(M)] [ ", "4617", "VHF: 136-174 MHz(M)", "4617 (VHF)", "136-174 MHz(M)",
     "4617(VHF)", "M", "136-174MHz", 1, 0},
    {Family4617, 33, "5617: UHF: 450-490 MHz(M)] [ ", "5617", "VHF: 450-490 MHz(M)", "5617 (UHF)", "450-490 MHz(M)",
     "5617(UHF)", "M", "459-490MHz", 4, 0},
    {Family4617, 65, "5617: UHF: 400-430 MHz(M3)] [ ", "5617", "VHF: 400-430 MHz(M3)", "5617 (UHF)", "400-430 MHz(M3)",
     "5617(UHF)", "M3", "400-430MHz", 4, 1},
}};

constexpr std::array<std::string_view, 6> Models{"4613 (VHF)", "4617 (VHF)", "4618 (VHF)",
                                                 "5613 (UHF)", "5617 (UHF)", "5618 (UHF)"};

constexpr std::array<RangeEntry, 2> Ranges4613{{{"136-174 MHz(M)", 1}, {"136-174 MHz(K)", 0}}};
constexpr std::array<RangeEntry, 1> Ranges4617And4618{{{"136-174 MHz(M)", 1}}};
constexpr std::array<RangeEntry, 4> Ranges5613{
    {{"450-490 MHz(K)", 32}, {"470-512 MHz(K2)", 112}, {"450-490 MHz(M)", 33}, {"470-512 MHz(M2)", 113}}};
constexpr std::array<RangeEntry, 2> Ranges5617{{{"450-490 MHz(M)", 33}, {"400-430 MHz(M3)", 65}}};
constexpr std::array<RangeEntry, 5> Ranges5618{{{"450-490 MHz(M)", 33},
                                                {"440-480 MHz(C)", 51},
                                                {"400-430 MHz(C2)", 67},
                                                {"370-390 MHz(C5)", 99},
                                                {"350-370 MHz(C6)", 83}}};

constexpr std::string_view TitleOfUnknownFamily = "4613: VHF: 136-174 MHz(K)] [ ";
constexpr TextPair FileNameLabel{"File Name:", "文件名:"};

constexpr std::string_view HexDigits = "0123456789ABCDEF";

std::optional<std::uint8_t> HexPair(std::string_view text) {
    const std::size_t high = HexDigits.find(text[0]);
    const std::size_t low = HexDigits.find(text[1]);
    if (high == std::string_view::npos || low == std::string_view::npos) {
        return std::nullopt;
    }
    return static_cast<std::uint8_t>(high * 16 + low);
}

} // namespace

std::span<const ModelVariant> ModelCatalogue() {
    return Catalogue;
}

const ModelVariant* FindVariant(std::uint8_t family, std::uint8_t market) {
    const auto found = std::find_if(Catalogue.begin(), Catalogue.end(), [&](const ModelVariant& variant) {
        return variant.family == family && variant.market == market;
    });
    return found == Catalogue.end() ? nullptr : &*found;
}

bool IsFamilyByte(std::uint8_t family) {
    return family == Family4618 || family == Family4613 || family == Family4617;
}

std::span<const std::string_view> ModelEntries() {
    return Models;
}

std::span<const RangeEntry> RangeEntries(int modelIndex) {
    switch (modelIndex) {
    case 0:
        return Ranges4613;
    case 1:
    case 2:
        return Ranges4617And4618;
    case 3:
        return Ranges5613;
    case 4:
        return Ranges5617;
    case 5:
        return Ranges5618;
    default:
        return {};
    }
}

std::string_view NavigatorModelText(std::uint8_t family, std::uint8_t market) {
    const bool isVhf = market < 2;
    switch (family) {
    case Family4618:
        return isVhf ? "4618 (VHF)" : "5618 (UHF)";
    case Family4613:
        return isVhf ? "4613 (VHF)" : "5613 (UHF)";
    case Family4617:
        return isVhf ? "4617 (VHF)" : "5617 (UHF)";
    default:
        return {};
    }
}

std::optional<Band> BandOfMarket(std::uint8_t market) {
    switch (market) {
    case 0:
    case 1:
        return Band{13'600'000, 17'400'000};
    case 32:
    case 33:
        return Band{45'000'000, 49'000'000};
    case 51:
        return Band{44'000'000, 48'000'000};
    case 65:
    case 67:
        return Band{40'000'000, 43'000'000};
    case 83:
        return Band{35'000'000, 37'000'000};
    case 99:
        return Band{37'000'000, 39'000'000};
    case 112:
    case 113:
        return Band{47'000'000, 51'200'000};
    case 115:
        return Band{40'000'000, 47'000'000};
    default:
        return std::nullopt;
    }
}

Band TestFrequencyBand(std::uint8_t market) {
    return BandOfMarket(market).value_or(Band{44'000'000, 48'000'000});
}

BandLimits SetBandLimits(const DataImage& image) {
    const std::uint8_t family = image.At(address::Family);
    if (family == 0x00 || family == 0xFF) {
        return {136, 174};
    }
    return {100, 550};
}

std::string BuildMainTitle(const DataImage& image, std::string_view baseName, Language language) {
    const std::uint8_t family = image.At(address::Family);
    const ModelVariant* variant = FindVariant(family, image.At(address::Market));
    std::string title = "Zelvor [";
    // A known family with a market that it does not have shows neither variant nor label.
    if (variant != nullptr || !IsFamilyByte(family)) {
        title += variant != nullptr ? variant->titleText : TitleOfUnknownFamily;
        title += FileNameLabel.In(language);
    }
    title += baseName;
    title += ']';
    return title;
}

ModelIdentity IdentityOf(const DataImage& image) {
    ModelIdentity identity{};
    for (int i = 0; i < address::IdentitySize; ++i) {
        identity[static_cast<std::size_t>(i)] = image.At(address::Identity + i);
    }
    return identity;
}

std::string IdentityToText(const ModelIdentity& identity) {
    std::string text;
    for (const std::uint8_t byte : identity) {
        if (!text.empty()) {
            text += ':';
        }
        text += HexDigits[byte >> 4];
        text += HexDigits[byte & 0x0F];
    }
    return text;
}

std::optional<FamilyAndMarket> ParseIdentityText(std::string_view text) {
    constexpr std::size_t MarketPlace = 15;
    constexpr std::size_t FamilyPlace = 18;
    if (text.size() < FamilyPlace + 2) {
        return std::nullopt;
    }
    const std::optional<std::uint8_t> market = HexPair(text.substr(MarketPlace, 2));
    const std::optional<std::uint8_t> family = HexPair(text.substr(FamilyPlace, 2));
    if (!market || !family) {
        return std::nullopt;
    }
    return FamilyAndMarket{*family, *market};
}

} // namespace zelvor
