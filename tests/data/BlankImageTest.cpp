#include "data/BlankImage.h"

#include <gtest/gtest.h>

#include <iterator>
#include <string_view>

#include "data/TestImages.h"

namespace zelvor {
namespace {

struct ExpectedImage {
    int family;
    int market;
    std::string_view hex;
};

// The sixteen variants of the catalogue, then an image without an identity, an unknown family and a known family with a
// market that it does not have.
constexpr ExpectedImage ExpectedImages[] = {
#include "BlankImages.inc"
};

DataImage BlankOf(int family, int market, std::uint8_t fill) {
    DataImage image;
    image.Fill(fill);
    image.Set(0x1BD, static_cast<std::uint8_t>(market));
    image.Set(0x1BE, static_cast<std::uint8_t>(family));
    InitAllFrameData(image);
    return image;
}

TEST(BlankImage, HasTheGoldenBytesOfEveryVariantWhateverItHeldBefore) {
    ASSERT_EQ(std::size(ExpectedImages), 19U);
    for (const ExpectedImage& expected : ExpectedImages) {
        ASSERT_EQ(expected.hex.size(), 2048U);
        DataImage golden;
        testing::StoreHex(golden, 0, expected.hex);
        for (const std::uint8_t fill : {0xFF, 0x00, 0x5A}) {
            const DataImage image = BlankOf(expected.family, expected.market, fill);
            for (int address = 0; address < 1024; ++address) {
                ASSERT_EQ(image.At(address), golden.At(address))
                    << "family " << expected.family << ", market " << expected.market << ", address " << address;
            }
        }
    }
}

TEST(BlankImage, RebuildsTheIdentityOfTheFirstRun) {
    const DataImage image = BlankOf(0xF8, 1, 0x00);
    DataImage expected;
    testing::StoreHex(expected, 0x1B8, "503436313801F8FF");
    for (int address = 0x1B8; address < 0x1C0; ++address) {
        EXPECT_EQ(image.At(address), expected.At(address)) << address;
    }
}

TEST(BlankImage, LeavesTheFamilyDigitErasedForAnUnknownFamily) {
    for (int family = 0; family < 256; ++family) {
        const std::uint8_t digit = BlankOf(family, 1, 0x00).At(0x1BC);
        const int expected = family == 0xF8 ? 0x38 : family == 0xF9 ? 0x33 : family == 0xFC ? 0x37 : 0xFF;
        EXPECT_EQ(digit, expected) << family;
    }
}

TEST(BlankImage, SaysVhfForTheMarketsBelowTwo) {
    for (int market = 0; market < 256; ++market) {
        EXPECT_EQ(BlankOf(0xF9, market, 0xFF).At(0x1B9), market < 2 ? 0x34 : 0x35) << market;
        EXPECT_EQ(BlankOf(0xF9, market, 0xFF).At(0x1BD), market);
    }
}

TEST(BlankImage, HasNoChannelAndNoScanAddBit) {
    const DataImage image = BlankOf(0xF9, 112, 0x00);
    for (int address = 0x000; address < 0x110; ++address) {
        EXPECT_EQ(image.At(address), 0xFF) << address;
    }
    EXPECT_EQ(image.At(0x17E), 0x00);
    EXPECT_EQ(image.At(0x17F), 0x00);
}

TEST(BlankImage, MovesTheTestFrequenciesOfA5613To491MHzForMarketK2) {
    const DataImage image = BlankOf(0xF9, 112, 0xFF);
    DataImage expected; // pair 4: both 491.00000; pair 1: 491.05000 and 491.10000
    testing::StoreHex(expected, 0x280, "0050104900001149");
    testing::StoreHex(expected, 0x298, "0000104900001049");
    for (const int pair : {0x280, 0x298}) {
        for (int address = pair; address < pair + 8; ++address) {
            EXPECT_EQ(image.At(address), expected.At(address)) << address;
        }
    }
}

} // namespace
} // namespace zelvor
