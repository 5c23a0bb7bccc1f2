#include "data/DataImage.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdint>

namespace zelvor {
namespace {

TEST(DataImage, StartsAsAnErasedMemory) {
    const DataImage image;
    for (int address = 0; address < 1024; ++address) {
        EXPECT_EQ(image.At(address), 0xFF) << address;
    }
}

TEST(DataImage, PlacesKnownIndexesAtTheirAddresses) {
    const struct {
        int index;
        int address;
    } known[] = {{820, 0x133}, {997, 0x17E}, {982, 0x1BD}, {998, 0x1BE}, {192, 0x00C},
                 {0, 0x000},   {1, 0x040},   {16, 0x001},  {15, 0x3C0},  {1023, 0x3FF}};
    for (const auto& place : known) {
        EXPECT_EQ(DataImage::AddressOfIndex(place.index), place.address);
        EXPECT_EQ(DataImage::IndexOfAddress(place.address), place.index);
        DataImage image;
        image.Set(place.address, 0x5A);
        EXPECT_EQ(image.AtIndex(place.index), 0x5A);
        image.SetIndex(place.index, 0xA5);
        EXPECT_EQ(image.At(place.address), 0xA5);
    }
}

TEST(DataImage, GivesEachAddressACellOfItsOwn) {
    DataImage image;
    for (int address = 0; address < 1024; ++address) {
        image.Fill(0x00);
        image.Set(address, 0x01);
        int cells = 0;
        for (int index = 0; index < 1024; ++index) {
            cells += image.AtIndex(index);
        }
        ASSERT_EQ(cells, 1) << address;
        ASSERT_EQ(image.AtIndex(address % 64 * 16 + address / 64), 0x01) << address;
    }
}

TEST(DataImage, KeepsBytesInAddressOrderOutward) {
    DataImage::Bytes bytes{};
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        bytes[i] = static_cast<std::uint8_t>(i * 7 + i / 256);
    }
    const DataImage image = DataImage::FromAddressOrder(bytes);
    EXPECT_EQ(image.At(0x000), 0);
    EXPECT_EQ(image.At(0x001), 7);
    EXPECT_EQ(image.At(0x100), 1);
    EXPECT_EQ(image.At(0x3FF), 0xFC);
    EXPECT_EQ(image.AtIndex(1), 0xC0); // address 0x040
    EXPECT_EQ(image.ToAddressOrder(), bytes);
}

TEST(DataImage, ReplacesOnlyTheBitsOfAMask) {
    DataImage image;
    image.Set(0x10C, 0b1010'0101);
    image.SetBits(0x10C, 0b0001'1000, 0b1111'1111);
    EXPECT_EQ(image.At(0x10C), 0b1011'1101);
    image.SetBits(0x10C, 0b1000'0001, 0b0000'0000);
    EXPECT_EQ(image.At(0x10C), 0b0011'1100);
    image.SetBits(0x10C, 0b0000'0000, 0b1111'1111);
    EXPECT_EQ(image.At(0x10C), 0b0011'1100);
}

TEST(DataImage, DiffersByAnyOneByte) {
    const DataImage blank;
    for (int address = 0; address < 1024; ++address) {
        DataImage image;
        image.Set(address, 0xFE);
        EXPECT_NE(image, blank) << address;
    }
    EXPECT_EQ(DataImage(), blank);
}

} // namespace
} // namespace zelvor
