#include "data/ModelCatalogue.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <set>
#include <vector>

#include "data/MemoryMap.h"

namespace zelvor {
namespace {

/// Models of the same family byte: one of each band, whose numbers differ in the first digit.
struct Family {
    std::uint8_t byte;
    char digit; // the last of the models' numbers
};

constexpr std::array<Family, 3> Families{
    {{.byte = Family4618, .digit = '8'}, {.byte = Family4613, .digit = '3'}, {.byte = Family4617, .digit = '7'}}};

struct Row {
    std::uint8_t family;
    std::uint8_t market;
    std::string_view marketName;
    int low; // MHz
    int high;
};

/// The variants of a model are in the order of the model dialog's ranges. Reports name the first row for an image of
/// an unknown variant.
constexpr std::array<Row, 16> Rows{{
    {.family = Family4618, .market = 1, .marketName = "M", .low = 136, .high = 174},
    {.family = Family4618, .market = 33, .marketName = "M", .low = 450, .high = 490},
    {.family = Family4618, .market = 51, .marketName = "C", .low = 440, .high = 480},
    {.family = Family4618, .market = 67, .marketName = "C2", .low = 400, .high = 430},
    {.family = Family4618, .market = 99, .marketName = "C5", .low = 370, .high = 390},
    {.family = Family4618, .market = 83, .marketName = "C6", .low = 350, .high = 370},
    {.family = Family4618, .market = 115, .marketName = "C7", .low = 400, .high = 470},
    {.family = Family4613, .market = 1, .marketName = "M", .low = 136, .high = 174},
    {.family = Family4613, .market = 0, .marketName = "K", .low = 136, .high = 174},
    {.family = Family4613, .market = 32, .marketName = "K", .low = 450, .high = 490},
    {.family = Family4613, .market = 112, .marketName = "K2", .low = 470, .high = 512},
    {.family = Family4613, .market = 33, .marketName = "M", .low = 450, .high = 490},
    {.family = Family4613, .market = 113, .marketName = "M2", .low = 470, .high = 512},
    {.family = Family4617, .market = 1, .marketName = "M", .low = 136, .high = 174},
    {.family = Family4617, .market = 33, .marketName = "M", .low = 450, .high = 490},
    {.family = Family4617, .market = 65, .marketName = "M3", .low = 400, .high = 430},
}};

// The exceptions. All are intended: users compare the texts with what they have on paper.

/// The model dialog does not offer market C7.
bool IsOffered(const ModelVariant& variant) {
    return variant.market != 115;
}

/// The radio information of model 5617 says "VHF" before its UHF ranges.
bool SaysVhfInInfo(const Row& row) {
    return row.family == Family4617;
}

/// The printed reports of model 5617, market M, say "459-490MHz".
int LowInReports(const Row& row) {
    return row.family == Family4617 && row.market == 33 ? 459 : row.low;
}

constexpr std::int32_t UnitsPerMHz = 100'000;
constexpr Band BandOfUnknownMarket{440 * UnitsPerMHz, 480 * UnitsPerMHz};

/// By market byte, so that it holds for unknown pairs too.
constexpr bool IsVhf(std::uint8_t market) {
    return market < 2;
}

const Family* FindFamily(std::uint8_t byte) {
    const auto found = std::ranges::find(Families, byte, &Family::byte);
    return found == Families.end() ? nullptr : &*found;
}

/// "4618".
std::string ModelNumber(const Family& family, bool isVhf) {
    return std::string(isVhf ? "4" : "5") + "61" + family.digit;
}

/// "4618 (VHF)".
std::string ModelEntry(const Family& family, bool isVhf) {
    return ModelNumber(family, isVhf) + (isVhf ? " (VHF)" : " (UHF)");
}

/// "136-174".
std::string RangeText(int low, int high) {
    return std::to_string(low) + '-' + std::to_string(high);
}

/// A row's entry among the models of the model dialog.
std::string ModelEntryOf(const Row& row) {
    return ModelEntry(*FindFamily(row.family), IsVhf(row.market));
}

/// The places are those of its entries in the model dialog.
ModelVariant VariantOf(const Row& row, std::size_t modelPlace, std::size_t rangePlace) {
    const Family& family = *FindFamily(row.family);
    const bool isVhf = IsVhf(row.market);
    const std::string model = ModelNumber(family, isVhf);
    const std::string band = isVhf ? "VHF" : "UHF";
    const std::string market(row.marketName);
    const std::string range = RangeText(row.low, row.high) + " MHz(" + market + ')';
    return {.family = row.family,
            .market = row.market,
            .band = {row.low * UnitsPerMHz, row.high * UnitsPerMHz},
            .titleText = model + ": " + band + ": " + range + "] [ ",
            .infoModel = model,
            .infoBand = (SaysVhfInInfo(row) ? "VHF" : band) + ": " + range,
            .dialogModel = ModelEntryOf(row),
            .dialogRange = range,
            .reportModel = model + '(' + band + ')',
            .reportMarket = market,
            .reportRange = RangeText(LowInReports(row), row.high) + "MHz",
            .modelIndex = static_cast<int>(modelPlace),
            .rangeIndex = static_cast<int>(rangePlace)};
}

/// What the rows come to.
struct Catalogue {
    std::vector<ModelVariant> variants;
    std::vector<std::string> models;             // of the model dialog, by number
    std::vector<std::vector<RangeEntry>> ranges; // of each model
};

Catalogue MakeCatalogue() {
    Catalogue catalogue;
    std::set<std::string> models;
    for (const Row& row : Rows) {
        models.insert(ModelEntryOf(row));
    }
    catalogue.models.assign(models.begin(), models.end());
    catalogue.ranges.resize(models.size());
    for (const Row& row : Rows) {
        const auto model = static_cast<std::size_t>(std::distance(models.begin(), models.find(ModelEntryOf(row))));
        std::vector<RangeEntry>& ranges = catalogue.ranges[model];
        const ModelVariant& variant = catalogue.variants.emplace_back(VariantOf(row, model, ranges.size()));
        if (IsOffered(variant)) {
            ranges.push_back({variant.dialogRange, variant.market});
        }
    }
    return catalogue;
}

const Catalogue& TheCatalogue() {
    static const Catalogue catalogue = MakeCatalogue();
    return catalogue;
}

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
    return TheCatalogue().variants;
}

const ModelVariant* FindVariant(std::uint8_t family, std::uint8_t market) {
    const std::vector<ModelVariant>& variants = TheCatalogue().variants;
    const auto found = std::find_if(variants.begin(), variants.end(), [&](const ModelVariant& variant) {
        return variant.family == family && variant.market == market;
    });
    return found == variants.end() ? nullptr : &*found;
}

const ModelVariant& VariantOfUnknownFamily() {
    return *FindVariant(Family4613, 0);
}

bool IsFamilyByte(std::uint8_t family) {
    return FindFamily(family) != nullptr;
}

std::span<const std::string> ModelEntries() {
    return TheCatalogue().models;
}

std::span<const RangeEntry> RangeEntries(int modelIndex) {
    const auto& ranges = TheCatalogue().ranges;
    const auto index = static_cast<std::size_t>(modelIndex);
    return index < ranges.size() ? std::span<const RangeEntry>(ranges[index]) : std::span<const RangeEntry>();
}

std::string NavigatorModelText(std::uint8_t family, std::uint8_t market) {
    const Family* known = FindFamily(family);
    return known != nullptr ? ModelEntry(*known, IsVhf(market)) : std::string();
}

std::optional<Band> BandOfMarket(std::uint8_t market) {
    for (const ModelVariant& variant : TheCatalogue().variants) {
        if (variant.market == market) {
            return variant.band;
        }
    }
    return std::nullopt;
}

Band TestFrequencyBand(std::uint8_t market) {
    return BandOfMarket(market).value_or(BandOfUnknownMarket);
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
        title += (variant != nullptr ? *variant : VariantOfUnknownFamily()).titleText;
        title += FileNameLabel.In(language);
    }
    title += baseName;
    title += ']';
    return title;
}

ModelIdentity MakeIdentity(std::uint8_t family, std::uint8_t market) {
    const Family* known = FindFamily(family);
    const std::uint8_t band = IsVhf(market) ? '4' : '5';
    const std::uint8_t digit = known != nullptr ? static_cast<std::uint8_t>(known->digit) : 0xFF;
    return {'P', band, '6', '1', digit, market, family, 0xFF};
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
