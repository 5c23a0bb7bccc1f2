#include "data/TestFrequencies.h"

#include <gtest/gtest.h>

#include <vector>

#include "data/BlankImage.h"
#include "data/TestImages.h"

namespace zelvor {
namespace {

using zelvor::testing::StoreHex;

std::string HexAt(const DataImage& image, int address, int count) {
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string text;
    for (int i = 0; i < count; ++i) {
        text += digits[image.At(address + i) >> 4];
        text += digits[image.At(address + i) & 0x0F];
    }
    return text;
}

struct MarketTable {
    std::vector<int> markets;
    std::string_view bytes; // of channels 1 to 6
};

const MarketTable Tables[] = {
    {{0x00, 0x01},
     "0050501500005115"
     "0050601300006113"
     "0050391700003917"
     "0000501500005015"
     "0000521500005215"
     "0000541500005415"},
    {{0x20, 0x21},
     "0050004700000147"
     "0050004500000145"
     "0050994800009948"
     "0000004700000047"
     "0000024700000247"
     "0000044700000447"},
    {{0x33},
     "0050004600000146"
     "0050004400000144"
     "0050994700009947"
     "0000004600000046"
     "0000024600000246"
     "0000044600000446"},
    {{0x41, 0x43},
     "0050504100005141"
     "0050004000000140"
     "0050994200009942"
     "0000504100005041"
     "0000524100005241"
     "0000544100005441"},
    {{0x53},
     "0050003600000136"
     "0050003500000135"
     "0050993600009936"
     "0000003600000036"
     "0000023600000236"
     "0000043600000436"},
    {{0x63},
     "0050003800000138"
     "0050003700000137"
     "0050993800009938"
     "0000003800000038"
     "0000023800000238"
     "0000043800000438"},
    {{0x70, 0x71},
     "0050104900001149"
     "0050004700000147"
     "0050195100001951"
     "0000104900001049"
     "0000124900001249"
     "0000144900001449"},
    {{0x73},
     "0050504300005143"
     "0050004000000140"
     "0050994600009946"
     "0000504300005043"
     "0000524300005243"
     "0000544300005443"},
    {{0x02, 0x22, 0x42, 0x80, 0xFF},
     "0050000000000100"
     "0050000000000100"
     "0000000000000000"
     "0000000000000000"
     "0000020000000200"
     "0000040000000400"},
};

TEST(TestFrequencies, DefaultTableFollowsTheMarketByte) {
    for (const MarketTable& table : Tables) {
        for (const int market : table.markets) {
            DataImage image;
            image.Set(0x1BD, static_cast<std::uint8_t>(market));
            RestoreDefaultTestFrequencies(image);
            EXPECT_EQ(HexAt(image, 0x280, 48), table.bytes) << market;
            image.Set(0x1BD, 0xFF);
            for (int address = 0x280; address < 0x2B0; ++address) {
                image.Set(address, 0xFF);
            }
            EXPECT_EQ(image, DataImage()) << "written outside channels 1 to 6, market " << market;
        }
    }
}

TEST(TestFrequencies, TheBlankImageOfAnUnknownMarketHasABandTheTableHasNot) {
    DataImage image;
    image.Set(0x1BD, 0x42);
    InitAllFrameData(image);
    EXPECT_EQ(HexAt(image, 0x280, 16), "00500046000001460050004400000144");
    RestoreDefaultTestFrequencies(image);
    EXPECT_EQ(HexAt(image, 0x280, 16), "00500000000001000050000000000100");
}

TEST(TestFrequencies, DefaultTableIsTheBlankImagesForAKnownMarket) {
    for (const int market : {0x00, 0x01, 0x20, 0x21, 0x33, 0x41, 0x43, 0x53, 0x63, 0x70, 0x71, 0x73}) {
        DataImage image;
        image.Set(0x1BD, static_cast<std::uint8_t>(market));
        image.Set(0x1BE, 0xF8);
        InitAllFrameData(image);
        const DataImage blank = image;
        RestoreDefaultTestFrequencies(image);
        EXPECT_EQ(image, blank) << market;
    }
}

TEST(TestFrequencies, APairIsEightBytesReceiveFirstLowestDigitsFirst) {
    DataImage image;
    WriteTestChannel(image, 1, {"145.12500", "409.87654"});
    WriteTestChannel(image, 16, {"100.00000", "012.34567"});
    EXPECT_EQ(HexAt(image, 0x280, 8), "0025511454769840");
    EXPECT_EQ(HexAt(image, 0x2F8, 8), "0000001067452301");
    EXPECT_EQ(HexAt(image, 0x27F, 1) + HexAt(image, 0x288, 8) + HexAt(image, 0x300, 1), "FFFFFFFFFFFFFFFFFFFF");
    EXPECT_EQ(ReadTestChannel(image, 1), (TestFrequencyTexts{"145.12500", "409.87654"}));
    EXPECT_EQ(ReadTestChannel(image, 16), (TestFrequencyTexts{"100.00000", "012.34567"}));
}

TEST(TestFrequencies, OnlyTheFirstReceiveByteMakesAChannelEmpty) {
    DataImage image;
    StoreHex(image, 0x288, "FF25511400255114");
    StoreHex(image, 0x290, "00FFFFFFFFFFFFFF");
    StoreHex(image, 0x298, "002551140025FF14");
    EXPECT_TRUE(IsTestChannelEmpty(image, 2));
    EXPECT_EQ(ReadTestChannel(image, 2), (TestFrequencyTexts{"", ""}));
    EXPECT_FALSE(IsTestChannelEmpty(image, 3));
    EXPECT_FALSE(IsTestChannelEmpty(image, 4));
    EXPECT_EQ(ReadTestChannel(image, 4).receive, "145.12500");
}

TEST(TestFrequencies, DigitsAboveNineEndTheNumber) {
    struct Row {
        std::string_view bytes;
        std::string text;
    };
    const Row rows[] = {
        {"00FFFFFF", "000.00000"}, // FFFFFF00
        {"0025511A", "000.00001"}, // 1A512500
        {"0A255114", "014.51250"}, // 1451250A: 1451250 only
        {"002551E4", "000.00000"}, // E4512500
        {"002551B9", "000.00000"}, {"99999999", "999.99999"}, {"00000000", "000.00000"},
        {"01000000", "000.00001"}, {"0E255114", "014.51250"}, // no exponent
    };
    for (const Row& row : rows) {
        DataImage image;
        StoreHex(image, 0x280, row.bytes);
        StoreHex(image, 0x284, "00255114");
        EXPECT_EQ(ReadTestChannel(image, 1).receive, row.text) << row.bytes;
        EXPECT_EQ(ReadTestChannel(image, 1).transmit, "145.12500") << row.bytes;
        StoreHex(image, 0x280, "00255114");
        StoreHex(image, 0x284, row.bytes);
        EXPECT_EQ(ReadTestChannel(image, 1).transmit, row.text) << row.bytes;
    }
}

TEST(TestFrequencies, AllSixteenCountForAnEmptyTable) {
    for (int channel = 1; channel <= 16; ++channel) {
        DataImage image;
        EXPECT_TRUE(AreTestChannelsEmpty(image));
        image.Set(0x280 + 8 * (channel - 1), 0x00);
        EXPECT_FALSE(AreTestChannelsEmpty(image)) << channel;
    }
}

TEST(TestFrequencies, ErasingSetsEightBytesAndNoOther) {
    DataImage image;
    image.Fill(0x55);
    EraseTestChannel(image, 3);
    EXPECT_EQ(HexAt(image, 0x28F, 10), "55FFFFFFFFFFFFFFFF55");
}

TEST(TestFrequencies, TheBlockIsTheBytesFrom280To2FF) {
    DataImage image;
    image.Fill(0x11);
    for (int i = 0; i < 128; ++i) {
        image.Set(0x280 + i, static_cast<std::uint8_t>(i));
    }
    const TestFrequencyBytes block = TestFrequencyBlock(image);
    ASSERT_EQ(block.size(), 128U);
    for (std::size_t i = 0; i < 128; ++i) {
        EXPECT_EQ(block[i], i);
    }
}

TEST(TestFrequencies, EveryStoredPairReadsBackOverAllRasterFrequencies) {
    DataImage image;
    for (int units = 10'000'000; units <= 55'000'000; units += 625) {
        const std::string digits = std::to_string(units);
        const std::string text = digits.substr(0, 3) + "." + digits.substr(3);
        WriteTestChannel(image, 9, {text, text});
        ASSERT_EQ(ReadTestChannel(image, 9), (TestFrequencyTexts{text, text}));
    }
}

} // namespace
} // namespace zelvor
