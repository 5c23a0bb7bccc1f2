#include "data/ModelCatalogue.h"

#include <gtest/gtest.h>

#include <iterator>
#include <string>
#include <string_view>
#include <vector>

#include "data/TestImages.h"

namespace zelvor {
namespace {

struct ExpectedVariant {
    int family;
    int market;
    std::string_view title;
    std::string_view infoModel;
    std::string_view infoBand;
    std::string_view dialogModel;
    std::string_view dialogRange;
    std::string_view reportModel;
    std::string_view reportMarket;
    std::string_view reportRange;
    int modelIndex;
    int rangeIndex;
};

constexpr ExpectedVariant ExpectedVariants[] = {
#include "ExpectedVariants.inc"
};

DataImage ImageOf(int family, int market) {
    DataImage image;
    image.Set(0x1BD, static_cast<std::uint8_t>(market));
    image.Set(0x1BE, static_cast<std::uint8_t>(family));
    return image;
}

const ModelVariant* Find(int family, int market) {
    return FindVariant(static_cast<std::uint8_t>(family), static_cast<std::uint8_t>(market));
}

TEST(ModelCatalogue, NamesAllSixteenVariantsInFourFamiliesOfText) {
    ASSERT_EQ(std::size(ExpectedVariants), 16U);
    EXPECT_EQ(ModelCatalogue().size(), 16U);
    for (const ExpectedVariant& expected : ExpectedVariants) {
        const ModelVariant* variant = Find(expected.family, expected.market);
        ASSERT_NE(variant, nullptr) << expected.title;
        EXPECT_EQ(variant->titleText, expected.title);
        EXPECT_EQ(variant->infoModel, expected.infoModel);
        EXPECT_EQ(variant->infoBand, expected.infoBand);
        EXPECT_EQ(variant->dialogModel, expected.dialogModel);
        EXPECT_EQ(variant->dialogRange, expected.dialogRange);
        EXPECT_EQ(variant->reportModel, expected.reportModel);
        EXPECT_EQ(variant->reportMarket, expected.reportMarket);
        EXPECT_EQ(variant->reportRange, expected.reportRange);
        EXPECT_EQ(variant->modelIndex, expected.modelIndex) << expected.title;
        EXPECT_EQ(variant->rangeIndex, expected.rangeIndex) << expected.title;
    }
}

TEST(ModelCatalogue, HasNoOtherPairOfFamilyAndMarket) {
    int found = 0;
    for (int family = 0; family < 256; ++family) {
        for (int market = 0; market < 256; ++market) {
            found += Find(family, market) != nullptr ? 1 : 0;
        }
    }
    EXPECT_EQ(found, 16);
}

TEST(ModelCatalogue, KnowsThreeFamilyBytes) {
    for (int family = 0; family < 256; ++family) {
        EXPECT_EQ(IsFamilyByte(static_cast<std::uint8_t>(family)), family == 0xF8 || family == 0xF9 || family == 0xFC);
    }
}

TEST(ModelCatalogue, ListsTheModelsOfTheDialog) {
    const std::vector<std::string_view> expected{"4613 (VHF)", "4617 (VHF)", "4618 (VHF)",
                                                 "5613 (UHF)", "5617 (UHF)", "5618 (UHF)"};
    const auto entries = ModelEntries();
    EXPECT_EQ(std::vector<std::string_view>(entries.begin(), entries.end()), expected);
}

TEST(ModelCatalogue, ListsTheRangesOfEachModelOfTheDialog) {
    struct Range {
        std::string_view text;
        int market;
    };
    const std::vector<std::vector<Range>> expected{
        {{"136-174 MHz(M)", 1}, {"136-174 MHz(K)", 0}},
        {{"136-174 MHz(M)", 1}},
        {{"136-174 MHz(M)", 1}},
        {{"450-490 MHz(K)", 32}, {"470-512 MHz(K2)", 112}, {"450-490 MHz(M)", 33}, {"470-512 MHz(M2)", 113}},
        {{"450-490 MHz(M)", 33}, {"400-430 MHz(M3)", 65}},
        {{"450-490 MHz(M)", 33},
         {"440-480 MHz(C)", 51},
         {"400-430 MHz(C2)", 67},
         {"370-390 MHz(C5)", 99},
         {"350-370 MHz(C6)", 83}}};
    for (std::size_t model = 0; model < expected.size(); ++model) {
        const auto entries = RangeEntries(static_cast<int>(model));
        ASSERT_EQ(entries.size(), expected[model].size()) << model;
        for (std::size_t i = 0; i < entries.size(); ++i) {
            EXPECT_EQ(entries[i].text, expected[model][i].text);
            EXPECT_EQ(entries[i].market, expected[model][i].market);
        }
    }
    EXPECT_TRUE(RangeEntries(-1).empty());
    EXPECT_TRUE(RangeEntries(6).empty());
}

TEST(ModelCatalogue, OffersNoRangeForMarketC7) {
    ASSERT_NE(Find(0xF8, 115), nullptr);
    EXPECT_EQ(Find(0xF8, 115)->rangeIndex, 5);
    EXPECT_EQ(RangeEntries(5).size(), 5U);
}

TEST(ModelCatalogue, NamesTheNavigatorsRootByFamilyAndBand) {
    for (int market = 0; market < 256; ++market) {
        const auto byte = static_cast<std::uint8_t>(market);
        EXPECT_EQ(NavigatorModelText(0xF8, byte), market < 2 ? "4618 (VHF)" : "5618 (UHF)") << market;
        EXPECT_EQ(NavigatorModelText(0xF9, byte), market < 2 ? "4613 (VHF)" : "5613 (UHF)") << market;
        EXPECT_EQ(NavigatorModelText(0xFC, byte), market < 2 ? "4617 (VHF)" : "5617 (UHF)") << market;
        for (const int family : {0x00, 0xF7, 0xFA, 0xFF}) {
            EXPECT_EQ(NavigatorModelText(static_cast<std::uint8_t>(family), byte), "");
        }
    }
}

TEST(TestFrequencyBand, FollowsTheMarketByteAlone) {
    for (int market = 0; market < 256; ++market) {
        Band expected{44'000'000, 48'000'000};
        switch (market) {
        case 0:
        case 1:
            expected = {13'600'000, 17'400'000};
            break;
        case 32:
        case 33:
            expected = {45'000'000, 49'000'000};
            break;
        case 65:
        case 67:
            expected = {40'000'000, 43'000'000};
            break;
        case 83:
            expected = {35'000'000, 37'000'000};
            break;
        case 99:
            expected = {37'000'000, 39'000'000};
            break;
        case 112:
        case 113:
            expected = {47'000'000, 51'200'000};
            break;
        case 115:
            expected = {40'000'000, 47'000'000};
            break;
        default:
            break;
        }
        const Band band = TestFrequencyBand(static_cast<std::uint8_t>(market));
        EXPECT_EQ(band.low, expected.low) << market;
        EXPECT_EQ(band.high, expected.high) << market;
    }
}

TEST(BandOfMarket, IsThatOfEveryVariantOfTheMarket) {
    for (const ModelVariant& variant : ModelCatalogue()) {
        const std::optional<Band> band = BandOfMarket(variant.market);
        ASSERT_TRUE(band) << variant.titleText;
        EXPECT_EQ(band->low, variant.band.low) << variant.titleText;
        EXPECT_EQ(band->high, variant.band.high) << variant.titleText;
    }
}

TEST(SetBandLimits, Are136To174OnlyForAnImageThatNeverSawAnIdentity) {
    for (int family = 0; family < 256; ++family) {
        for (const int market : {0, 1, 33, 51, 115, 255}) {
            const BandLimits limits = SetBandLimits(ImageOf(family, market));
            const bool noIdentity = family == 0x00 || family == 0xFF;
            EXPECT_EQ(limits.BandLowerMHz, noIdentity ? 136 : 100) << family;
            EXPECT_EQ(limits.BandUpperMHz, noIdentity ? 174 : 550) << family;
        }
    }
}

TEST(BuildMainTitle, NamesTheVariantAndTheFile) {
    EXPECT_EQ(BuildMainTitle(ImageOf(0xF8, 1), "Zelvor.dat", Language::English),
              "Zelvor [4618: VHF: 136-174 MHz(M)] [ File Name:Zelvor.dat]");
    EXPECT_EQ(BuildMainTitle(ImageOf(0xF8, 1), "Zelvor.dat", Language::Chinese),
              "Zelvor [4618: VHF: 136-174 MHz(M)] [ 文件名:Zelvor.dat]");
}

TEST(BuildMainTitle, ShowsTheTextOfEveryVariantInBothLanguages) {
    for (const ExpectedVariant& expected : ExpectedVariants) {
        const DataImage image = ImageOf(expected.family, expected.market);
        EXPECT_EQ(BuildMainTitle(image, "a b.dat", Language::English),
                  "Zelvor [" + std::string(expected.title) + "File Name:a b.dat]");
        EXPECT_EQ(BuildMainTitle(image, "对讲机.dat", Language::Chinese),
                  "Zelvor [" + std::string(expected.title) + "文件名:对讲机.dat]");
    }
}

TEST(BuildMainTitle, ShowsOnlyTheFileForAMarketThatTheFamilyLacks) {
    EXPECT_EQ(BuildMainTitle(ImageOf(0xF8, 0), "Zelvor.dat", Language::English), "Zelvor [Zelvor.dat]");
    EXPECT_EQ(BuildMainTitle(ImageOf(0xFC, 255), "Zelvor.dat", Language::Chinese), "Zelvor [Zelvor.dat]");
}

TEST(BuildMainTitle, ShowsTheTextOf4613ForAnUnknownFamily) {
    for (const int family : {0x00, 0x55, 0xFA, 0xFF}) {
        for (const int market : {0, 1, 33, 255}) {
            EXPECT_EQ(BuildMainTitle(ImageOf(family, market), "Zelvor.dat", Language::English),
                      "Zelvor [4613: VHF: 136-174 MHz(K)] [ File Name:Zelvor.dat]");
        }
    }
    EXPECT_EQ(BuildMainTitle(ImageOf(0xFF, 0xFF), "Zelvor.dat", Language::Chinese),
              "Zelvor [4613: VHF: 136-174 MHz(K)] [ 文件名:Zelvor.dat]");
}

TEST(BuildMainTitle, Shows4613MarketMForAMarketOf1InItsFamily) {
    EXPECT_EQ(BuildMainTitle(ImageOf(0xF9, 1), "Zelvor.dat", Language::English),
              "Zelvor [4613: VHF: 136-174 MHz(M)] [ File Name:Zelvor.dat]");
}

TEST(ModelIdentity, LiesAtItsEightAddresses) {
    DataImage image;
    testing::StoreHex(image, 0x1B7, "00503435363738394100");
    EXPECT_EQ(IdentityOf(image), (ModelIdentity{0x50, 0x34, 0x35, 0x36, 0x37, 0x38, 0x39, 0x41}));
}

TEST(ModelIdentity, IsStoredAsPairsOfUpperCaseDigits) {
    EXPECT_EQ(IdentityToText(DefaultIdentity), "50:34:36:31:38:01:F8:FF");
    EXPECT_EQ(IdentityToText({0x00, 0x0A, 0xB0, 0xCD, 0xEF, 0x12, 0x34, 0x99}), "00:0A:B0:CD:EF:12:34:99");
}

TEST(ParseIdentityText, TakesMarketAndFamilyFromTheirPlaces) {
    const struct {
        std::string_view text;
        int family;
        int market;
    } cases[] = {{"50:34:36:31:38:01:F8:FF", 0xF8, 0x01}, {"50:35:36:31:33:71:F9:FF", 0xF9, 0x71},
                 {"50:35:36:31:37:41:FC", 0xFC, 0x41},    {"zz zz zz zz zz BC-0D and more", 0x0D, 0xBC},
                 {"               00:00", 0x00, 0x00},    {"               FF:FF", 0xFF, 0xFF}};
    for (const auto& expected : cases) {
        const std::optional<FamilyAndMarket> parsed = ParseIdentityText(expected.text);
        ASSERT_TRUE(parsed.has_value()) << expected.text;
        EXPECT_EQ(parsed->family, expected.family) << expected.text;
        EXPECT_EQ(parsed->market, expected.market) << expected.text;
    }
}

TEST(ParseIdentityText, ReadsEveryByteBack) {
    for (int byte = 0; byte < 256; ++byte) {
        const auto value = static_cast<std::uint8_t>(byte);
        const auto other = static_cast<std::uint8_t>(255 - byte);
        const auto parsed = ParseIdentityText(IdentityToText({0, 0, 0, 0, 0, value, other, 0}));
        ASSERT_TRUE(parsed.has_value()) << byte;
        EXPECT_EQ(parsed->market, value);
        EXPECT_EQ(parsed->family, other);
    }
}

TEST(ParseIdentityText, GivesNothingForATextThatIsTooShortOrNotHexadecimal) {
    for (const std::string_view text :
         {"", "0", "50:34:36:31:38:01:F", "50:34:36:31:38:01:f8:FF", "50:34:36:31:38:0a:F8:FF",
          "50:34:36:31:38:G1:F8:FF", "50:34:36:31:38:01:F :FF", "50:34:36:31:38:@1:F8:FF", "50:34:36:31:38:01:/8:FF"}) {
        EXPECT_FALSE(ParseIdentityText(text).has_value()) << text;
    }
}

} // namespace
} // namespace zelvor
