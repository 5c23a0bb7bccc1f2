#include "simulator/SampleRadio.h"

#include <array>
#include <set>

#include <gtest/gtest.h>

#include "Feed.h"

namespace zelvor::test {
namespace {

Bytes MemoryAt(const DataImage& memory, int address, int count) {
    Bytes bytes;
    for (int i = 0; i < count; ++i) {
        bytes.push_back(memory.At(address + i));
    }
    return bytes;
}

class SampleRadioTest : public ::testing::Test {
protected:
    Bytes Record(int k, int first = 0, int count = 16) { return MemoryAt(memory, k * 16 + first, count); }

    DataImage memory = SampleRadioMemory();
};

TEST_F(SampleRadioTest, IsA4618OfMarketM) {
    EXPECT_EQ(MemoryAt(memory, 0x1B8, 8), (Bytes{0x50, 0x34, 0x36, 0x31, 0x38, 0x01, 0xF8, 0xFF}));
}

TEST_F(SampleRadioTest, TheFirstThreeRecordsAreTheseBytes) {
    EXPECT_EQ(Record(1),
              (Bytes{0x00, 0x25, 0x51, 0x14, 0x00, 0x25, 0x51, 0x14, 0xFF, 0xFF, 0xFF, 0xFF, 0x00, 0xB1, 0xB0, 0xF8}));
    EXPECT_EQ(Record(2),
              (Bytes{0x00, 0x50, 0x52, 0x14, 0x00, 0x50, 0x46, 0x14, 0x75, 0x03, 0x75, 0x03, 0x00, 0xB1, 0xB0, 0xF8}));
    EXPECT_EQ(Record(3),
              (Bytes{0x00, 0x75, 0x53, 0x14, 0x00, 0x75, 0x47, 0x14, 0xE8, 0x03, 0xE8, 0x03, 0x08, 0xB1, 0xB0, 0xF8}));
}

TEST_F(SampleRadioTest, HasEveryKindOfTone) {
    EXPECT_EQ(Record(4, 8, 4), (Bytes{0x9E, 0x02, 0xC7, 0x09}));  // 67.0, 250.3
    EXPECT_EQ(Record(5, 8, 4), (Bytes{0x13, 0x28, 0x13, 0x28}));  // D023N
    EXPECT_EQ(Record(6, 8, 4), (Bytes{0x13, 0xA8, 0x13, 0xA8}));  // D023I
    EXPECT_EQ(Record(7, 8, 4), (Bytes{0xEC, 0x29, 0xEC, 0x29}));  // D754N
    EXPECT_EQ(Record(8, 8, 4), (Bytes{0xEC, 0xA9, 0xEC, 0xA9}));  // D754I
    EXPECT_EQ(Record(10, 8, 4), (Bytes{0xFF, 0xFF, 0xFF, 0xFF})); // none
}

TEST_F(SampleRadioTest, ThreeChannelsReceiveOnly) {
    for (int k = 1; k <= 16; ++k) {
        const bool receiveOnly = k == 12 || k == 13 || k == 14;
        EXPECT_EQ(Record(k, 4, 4) == (Bytes{0xFF, 0xFF, 0xFF, 0xFF}), receiveOnly) << "channel " << k;
    }
}

TEST_F(SampleRadioTest, ReachesBothEndsOfItsBand) {
    EXPECT_EQ(Record(15, 0, 4), (Bytes{0x00, 0x00, 0x60, 0x13})); // 136.00000
    EXPECT_EQ(Record(16, 0, 4), (Bytes{0x00, 0x00, 0x40, 0x17})); // 174.00000
}

TEST_F(SampleRadioTest, EveryFrequencyIsDecimalAndInTheBand) {
    for (int k = 1; k <= 16; ++k) {
        for (const int side : {0, 4}) {
            if (memory.At(k * 16 + side + 3) == 0xFF) {
                continue;
            }
            int tensOfHertz = 0;
            for (int i = 3; i >= 0; --i) {
                const int byte = memory.At(k * 16 + side + i);
                ASSERT_LE(byte >> 4, 9) << "channel " << k;
                ASSERT_LE(byte & 15, 9) << "channel " << k;
                tensOfHertz = tensOfHertz * 100 + (byte >> 4) * 10 + (byte & 15);
            }
            EXPECT_GE(tensOfHertz, 13'600'000) << "channel " << k;
            EXPECT_LE(tensOfHertz, 17'400'000) << "channel " << k;
            EXPECT_TRUE(tensOfHertz % 500 == 0 || tensOfHertz % 625 == 0) << "channel " << k;
        }
    }
}

TEST_F(SampleRadioTest, HasEveryMixOfPowerAndWidth) {
    std::set<int> mixes;
    for (int k = 1; k <= 16; ++k) {
        EXPECT_EQ(memory.At(k * 16 + 13) & 0x8F, 0x81) << "channel " << k;
        mixes.insert(memory.At(k * 16 + 13) & 0x30);
    }
    EXPECT_EQ(mixes.size(), 4U);
}

TEST_F(SampleRadioTest, ScansTheseChannels) {
    EXPECT_EQ(memory.At(0x17E), 0x57); // 1, 2, 3, 5, 7
    EXPECT_EQ(memory.At(0x17F), 0x9B); // 9, 10, 12, 13, 16
}

TEST_F(SampleRadioTest, TheAreasThatNoWriteTouchesHoldPatterns) {
    for (int i = 0; i < 56; ++i) {
        EXPECT_EQ(memory.At(0x180 + i), 0x40 + i);
    }
    for (int i = 0; i < 192; ++i) {
        EXPECT_EQ(memory.At(0x340 + i), i);
    }
}

TEST_F(SampleRadioTest, TheFirstTestFrequencyPairIsNextToTheCentreOfTheBand) {
    EXPECT_EQ(MemoryAt(memory, 0x280, 8), (Bytes{0x00, 0x50, 0x50, 0x15, 0x00, 0x00, 0x51, 0x15})); // 155.05 155.10
}

TEST_F(SampleRadioTest, HasAMessage) {
    const Bytes line = MemoryAt(memory, 0x300, 13);
    EXPECT_EQ(std::string(line.begin(), line.begin() + 12), "Sample radio");
    EXPECT_EQ(line.back(), 0xFF);
}

/// One row for each setting: address and the values that its editor offers.
TEST_F(SampleRadioTest, SettingsAreLegal) {
    struct Range {
        int address;
        int low;
        int high;
    };
    constexpr std::array<Range, 43> Ranges{{
        {0x110, 0, 3},   {0x111, 0, 3},   {0x112, 10, 100}, {0x113, 0, 3},  {0x114, 0, 16}, {0x115, 0, 1},
        {0x117, 0, 15},  {0x118, 0, 2},   {0x119, 0, 2},    {0x11A, 0, 1},  {0x11D, 0, 11}, {0x11E, 0, 11},
        {0x120, 48, 57}, {0x121, 48, 57}, {0x122, 48, 57},  {0x12C, 0, 1},  {0x12D, 0, 1},  {0x12F, 0, 2},
        {0x130, 1, 40},  {0x131, 0, 10},  {0x132, 0, 2},    {0x133, 0, 1},  {0x134, 0, 9},  {0x135, 0, 1},
        {0x136, 0, 1},   {0x137, 0, 1},   {0x138, 0, 1},    {0x139, 0, 1},  {0x13A, 0, 10}, {0x13B, 0, 5},
        {0x13C, 0, 1},   {0x13D, 0, 1},   {0x13E, 0, 1},    {0x160, 0, 2},  {0x161, 1, 16}, {0x162, 1, 91},
        {0x163, 1, 91},  {0x164, 0, 3},   {0x170, 1, 250},  {0x172, 0, 15}, {0x175, 0, 1},  {0x178, 0, 1},
        {0x1FA, 0, 1},
    }};
    for (const Range& range : Ranges) {
        EXPECT_GE(memory.At(range.address), range.low) << std::hex << range.address;
        EXPECT_LE(memory.At(range.address), range.high) << std::hex << range.address;
    }
}

} // namespace
} // namespace zelvor::test
