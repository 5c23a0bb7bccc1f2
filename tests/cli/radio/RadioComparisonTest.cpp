#include "cli/RadioComparison.h"

#include <gtest/gtest.h>

#include "cli/radio/RadioRig.h"

namespace zelvor::cli {
namespace {

/// Addresses that a write sends: all but the tuning region and the last 192 bytes.
bool IsSent(int address) {
    return address < 0x180 || (address >= 0x1B8 && address < 0x340);
}

/// The byte 12 of each of the channels 1 to 15, and 0x10C.
bool IsSetByWrite(int address) {
    return address >= 0x10 && address <= 0x10C && address % 16 == 12;
}

TEST(RadioComparison, KnowsEachByteThatAWriteSends) {
    const DataImage image = PatternImage(3);
    const SentBytes sent = SentByWrite(image);
    constexpr std::array<std::uint8_t, 16> Head{0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF,
                                                0xFF, 0xFF, 0xFF, 0x00, 0xFF, 0xFF, 0x03, 0xFF};
    int taken = 0;
    for (int address = 0; address < 1024; ++address) {
        const auto& byte = sent.at(static_cast<std::size_t>(address));
        ASSERT_EQ(byte.has_value(), IsSent(address)) << address;
        if (address < 16) {
            EXPECT_EQ(byte, Head.at(static_cast<std::size_t>(address))) << address;
        } else if (byte) {
            EXPECT_EQ(*byte, IsSetByWrite(address) ? 0 : image.At(address)) << address;
            ++taken;
        }
    }
    EXPECT_EQ(taken, 760);
}

TEST(RadioComparison, FindsEachOfThe760BytesOfAFileAndNoOther) {
    const DataImage file = PatternImage(3);
    for (int address = 0; address < 1024; ++address) {
        DataImage radio = file;
        radio.Set(address, static_cast<std::uint8_t>(file.At(address) ^ 0x40));
        const bool isSeen = IsSent(address) && address >= 16;
        if (isSeen && IsSetByWrite(address) && radio.At(address) == 0) {
            continue;
        }
        EXPECT_EQ(CompareWithFile(radio, file).size(), isSeen ? 1U : 0U) << address;
    }
}

TEST(RadioComparison, TakesWhatTheFileHasAndWhatAWriteMakesOfIt) {
    DataImage file = PatternImage(3);
    file.Set(0x01C, 0x55);
    file.Set(0x10C, 0x66);
    DataImage radio = file;
    EXPECT_TRUE(CompareWithFile(radio, file).empty());
    radio.Set(0x01C, 0x00);
    radio.Set(0x10C, 0x00);
    EXPECT_TRUE(CompareWithFile(radio, file).empty());
    radio.Set(0x01C, 0x01);
    EXPECT_EQ(CompareWithFile(radio, file), (std::vector<WrongByte>{{0x01C, 0x55, 0x01}}));
}

TEST(RadioComparison, AfterAWriteFindsEachByteOfTheWholeMemory) {
    const DataImage before = PatternImage(100);
    const DataImage written = PatternImage(3);
    DataImage radio = before;
    for (int address = 0; address < 1024; ++address) {
        if (const auto byte = SentByWrite(written).at(static_cast<std::size_t>(address))) {
            radio.Set(address, *byte);
        }
    }
    EXPECT_TRUE(CompareAfterWrite(radio, written, before).empty());
    for (const int address :
         {0x000, 0x00B, 0x00F, 0x010, 0x01C, 0x10C, 0x17F, 0x180, 0x1B7, 0x1B8, 0x33F, 0x340, 0x3FF}) {
        DataImage spoilt = radio;
        const auto found = static_cast<std::uint8_t>(radio.At(address) ^ 0x01);
        spoilt.Set(address, found);
        EXPECT_EQ(CompareAfterWrite(spoilt, written, before),
                  (std::vector<WrongByte>{{address, radio.At(address), found}}))
            << address;
    }
}

TEST(RadioComparison, AfterAWriteWithoutABackupTakesTheRestAsItIs) {
    const DataImage written = PatternImage(3);
    DataImage radio = PatternImage(3);
    for (int address = 0; address < 1024; ++address) {
        if (const auto byte = SentByWrite(written).at(static_cast<std::size_t>(address))) {
            radio.Set(address, *byte);
        }
    }
    radio.Set(0x180, 0x12);
    radio.Set(0x3FF, 0x34);
    EXPECT_TRUE(CompareAfterWrite(radio, written, std::nullopt).empty());
    radio.Set(0x00B, 0x01);
    EXPECT_EQ(CompareAfterWrite(radio, written, std::nullopt), (std::vector<WrongByte>{{0x00B, 0x00, 0x01}}));
}

TEST(RadioComparison, WritesAddressesAndBytesInHexadecimal) {
    EXPECT_EQ(WrongByteText({0x1CC, 0xFF, 0x00}), "0x1CC: FF -> 00");
}

} // namespace
} // namespace zelvor::cli
