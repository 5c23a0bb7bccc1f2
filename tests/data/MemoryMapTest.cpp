#include "data/MemoryMap.h"

#include <gtest/gtest.h>

#include "data/ChannelRecord.h"

namespace zelvor {
namespace {

TEST(MemoryMap, NamesTheAddressesOfTheRadio) {
    EXPECT_EQ(address::EncoderMuteByte, 0x00C);
    EXPECT_EQ(address::FirstChannel, 0x010);
    EXPECT_EQ(address::Channel(1), 0x010);
    EXPECT_EQ(address::Channel(16), 0x100);
    EXPECT_EQ(address::PttIdType, 0x133);
    EXPECT_EQ(address::CorvaneOwnFleet, 0x170);
    EXPECT_EQ(address::CorvaneOwnId, 0x172);
    EXPECT_EQ(address::ScanAdd, 0x17E);
    EXPECT_EQ(address::Tuning, 0x180);
    EXPECT_EQ(address::Tuning + address::TuningSize, 0x1B8);
    EXPECT_EQ(address::Identity, 0x1B8);
    EXPECT_EQ(address::Identity + address::IdentitySize, 0x1C0);
    EXPECT_EQ(address::Market, 0x1BD);
    EXPECT_EQ(address::Family, 0x1BE);
    EXPECT_EQ(address::TestFrequencies, 0x280);
    EXPECT_EQ(address::TestFrequencies + 16 * address::TestFrequencyPairSize, 0x300);
    EXPECT_EQ(address::NotWritten, 1024 - 192);
}

TEST(ChannelRecord, CallsAFrequencyMissingByItsTopByte) {
    for (int byte = 0; byte < 256; ++byte) {
        EXPECT_EQ(record::IsNoFrequency(byte), byte == 0 || byte == 255) << byte;
    }
}

} // namespace
} // namespace zelvor
