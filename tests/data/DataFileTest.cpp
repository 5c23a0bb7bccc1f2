#include "data/DataFile.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>

#include "data/TestImages.h"

namespace zelvor {
namespace {

TEST(DataFile, HasTheGoldenBytesOfASavedDocument) {
    const std::string erased(64, 'F');
    const std::string golden = "525136313532FFFFFFFFFFFFFFFFFFFF"
                               "FFFFFFFFFFFFFFFFFFFFFFFFFFFFFFFF"
                               "00255114250600459E0213A802BFB0F8" +
                               erased + erased + erased + erased + erased + erased + erased +
                               "FFFFFFFFFFFFFFFFFFFFFFFFFFFFFFFF"
                               "00000A000001000A000000FFFFFF0AFF"
                               "303030FFFFFFFFFFFFFFFFFF00000100"
                               "04000000050001000000050100000000"
                               "3132333435FFFFFFFFFFFFFFFFFFFFFF"
                               "FFFFFFFFFFFFFFFFFFFFFFFFFFFFFFFF"
                               "00FF1F330103000300FFFFFFFFFFFFFF"
                               "FF00009001000A000100FFFF00000100" +
                               erased +
                               "FFFFFFFFFFFFFFFFFFFFFFFFFFFFFFFF"
                               "FFFFFFFFFFFFFFFF503436313801F8FF" +
                               erased +
                               "FFFFFFFFFFFFFFFFFFFFFFFFFFFFFFFF"
                               "FFFFFFFFFFFFFFFFFFFF00FFFFFFFFFF" +
                               erased + erased + erased + erased +
                               "0050501500005115"
                               "0050601300006113"
                               "0050391700003917"
                               "0000501500005015"
                               "0000521500005215"
                               "0000541500005415" +
                               erased + erased + erased + erased + erased + erased + erased + erased + erased + erased +
                               "FFFFFFFFFFFFFFFFFFFFFFFFFFFFFFFF";
    ASSERT_EQ(golden.size(), 2080U);
    std::string hex;
    for (const std::uint8_t byte : EncodeDataFile(testing::SampleImage())) {
        constexpr std::string_view Digits = "0123456789ABCDEF";
        hex += Digits[byte >> 4];
        hex += Digits[byte & 0x0F];
    }
    EXPECT_EQ(hex, golden);
}

TEST(DataFile, BringsAnyContentBack) {
    constexpr unsigned Seed = 6152;
    std::mt19937 random(Seed);
    for (int round = 0; round < 50; ++round) {
        const DataImage image = testing::RandomImage(random);
        const std::optional<DataImage> back = DecodeDataFile(EncodeDataFile(image));
        ASSERT_TRUE(back.has_value());
        ASSERT_EQ(*back, image) << "seed " << Seed << ", round " << round;
    }
}

TEST(DataFile, KeepsRadioAddressesBehindSixteenBytes) {
    for (int address = 0; address < 1024; ++address) {
        DataImage image;
        image.Set(address, 0x42);
        const DataFileBytes bytes = EncodeDataFile(image);
        ASSERT_EQ(bytes[static_cast<std::size_t>(16 + address)], 0x42);
        ASSERT_EQ(std::count(bytes.begin() + 16, bytes.end(), 0x42), 1);
    }
}

} // namespace
} // namespace zelvor
