#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "data/DataImage.h"
#include "text/Language.h"

namespace zelvor {

/// The eight identity bytes at address::Identity, which the radio also sends as its identity. Bytes 6 and 7 (market and
/// family, counted from 1) name the variant; the others are rebuilt from them.
using ModelIdentity = std::array<std::uint8_t, 8>;

/// Identity of a first run: model 4618, market M.
inline constexpr ModelIdentity DefaultIdentity{0x50, 0x34, 0x36, 0x31, 0x38, 0x01, 0xF8, 0xFF};

inline constexpr std::uint8_t Family4618 = 0xF8; // and 5618
inline constexpr std::uint8_t Family4613 = 0xF9; // and 5613
inline constexpr std::uint8_t Family4617 = 0xFC; // and 5617

/// A band in units of 10 Hz.
struct Band {
    std::int32_t low;
    std::int32_t high;
};

/// One market variant of one model, with the four families of text that name it. All is made from the rows of
/// ModelCatalogue.cpp; what the texts of a model have of their own is named there.
struct ModelVariant {
    std::uint8_t family; // identity byte 7
    std::uint8_t market; // identity byte 6
    Band band;
    std::string titleText;    // "4618: VHF: 136-174 MHz(M)] [ "
    std::string infoModel;    // "4618"
    std::string infoBand;     // "VHF: 136-174 MHz(M)"
    std::string dialogModel;  // "4618 (VHF)"
    std::string dialogRange;  // "136-174 MHz(M)"
    std::string reportModel;  // "4618(VHF)"
    std::string reportMarket; // "M"
    std::string reportRange;  // "136-174MHz"
    int modelIndex;           // entry of ModelTypeForm's cboModelType
    int rangeIndex;           // entry of ModelTypeForm's cboFreq; market C7 names one that the list lacks
};

/// All sixteen variants.
[[nodiscard]] std::span<const ModelVariant> ModelCatalogue();

/// The variant of an identity's family and market bytes, or null where the catalogue has no such pair.
[[nodiscard]] const ModelVariant* FindVariant(std::uint8_t family, std::uint8_t market);

/// The variant that titles and radio information name where the family byte is unknown: 4613, market K.
[[nodiscard]] const ModelVariant& VariantOfUnknownFamily();

[[nodiscard]] bool IsFamilyByte(std::uint8_t family);

/// ModelTypeForm's first list, and its second for an entry of the first: the text and the market byte that it stands
/// for.
struct RangeEntry {
    std::string text;
    std::uint8_t market;
};
[[nodiscard]] std::span<const std::string> ModelEntries();
[[nodiscard]] std::span<const RangeEntry> RangeEntries(int modelIndex); // empty for an index outside 0 to 5

/// Navigator root: the model by family byte and band ("4618 (VHF)"); empty for an unknown family byte.
[[nodiscard]] std::string NavigatorModelText(std::uint8_t family, std::uint8_t market);

/// The band of a market byte; nothing where no variant has such a market.
[[nodiscard]] std::optional<Band> BandOfMarket(std::uint8_t market);

/// The band of the blank image's test frequencies: the market's, or 440 to 480 MHz where it has none.
[[nodiscard]] Band TestFrequencyBand(std::uint8_t market);

/// Range of frequencies that may be entered, in MHz: 100 to 550, or 136 to 174 in an image that never saw an identity
/// (family byte 0x00 or 0xFF).
struct BandLimits {
    int BandLowerMHz;
    int BandUpperMHz;
};
[[nodiscard]] BandLimits SetBandLimits(const DataImage& image);

/// The main window's caption. `baseName` is the file name without its directory.
[[nodiscard]] std::string BuildMainTitle(const DataImage& image, std::string_view baseName, Language language);

/// The identity of a market and family byte, known or not.
[[nodiscard]] ModelIdentity MakeIdentity(std::uint8_t family, std::uint8_t market);

[[nodiscard]] ModelIdentity IdentityOf(const DataImage& image);

/// "50:34:36:31:38:01:F8:FF", 23 characters: the form in which the settings store keeps an identity.
[[nodiscard]] std::string IdentityToText(const ModelIdentity& identity);

struct FamilyAndMarket {
    std::uint8_t family;
    std::uint8_t market;
};
/// Family and market of a stored identity text; nothing where it is too short or a digit is not hexadecimal in upper
/// case.
[[nodiscard]] std::optional<FamilyAndMarket> ParseIdentityText(std::string_view text);

} // namespace zelvor
