// The whole transcript of a read and of a write session, as they pass over the cable.

#include <array>

#include <gtest/gtest.h>

#include "Feed.h"
#include "simulator/RadioResponder.h"

namespace zelvor::test {
namespace {

struct Exchange {
    Bytes command;
    Bytes reply;
};

struct BlockAddress {
    std::uint8_t high;
    std::uint8_t low;
};

/// The seventeen blocks that a program reads; the last one comes twice.
constexpr std::array<BlockAddress, 17> Blocks{{{0x00, 0x00},
                                               {0x00, 0x40},
                                               {0x00, 0x80},
                                               {0x00, 0xC0},
                                               {0x01, 0x00},
                                               {0x01, 0x40},
                                               {0x01, 0x80},
                                               {0x01, 0xC0},
                                               {0x02, 0x00},
                                               {0x02, 0x40},
                                               {0x02, 0x80},
                                               {0x02, 0xC0},
                                               {0x03, 0x00},
                                               {0x03, 0x40},
                                               {0x03, 0x80},
                                               {0x03, 0xC0},
                                               {0x03, 0xC0}}};

struct PacketHead {
    std::uint8_t high;
    std::uint8_t low;
    std::uint8_t count;
};

/// The forty-nine packets that a program writes.
constexpr std::array<PacketHead, 49> Packets{{
    {0x00, 0x00, 16}, {0x00, 0x10, 16}, {0x00, 0x20, 16}, {0x00, 0x30, 16}, {0x00, 0x40, 16}, {0x00, 0x50, 16},
    {0x00, 0x60, 16}, {0x00, 0x70, 16}, {0x00, 0x80, 16}, {0x00, 0x90, 16}, {0x00, 0xA0, 16}, {0x00, 0xB0, 16},
    {0x00, 0xC0, 16}, {0x00, 0xD0, 16}, {0x00, 0xE0, 16}, {0x00, 0xF0, 16}, {0x01, 0x00, 16}, {0x01, 0x10, 16},
    {0x01, 0x20, 16}, {0x01, 0x30, 16}, {0x01, 0x40, 16}, {0x01, 0x50, 16}, {0x01, 0x60, 16}, {0x01, 0x70, 16},
    {0x01, 0xB8, 16}, {0x01, 0xC8, 16}, {0x01, 0xD8, 16}, {0x01, 0xE8, 16}, {0x01, 0xF8, 8},  {0x02, 0x00, 16},
    {0x02, 0x10, 16}, {0x02, 0x20, 16}, {0x02, 0x30, 16}, {0x02, 0x40, 16}, {0x02, 0x50, 16}, {0x02, 0x60, 16},
    {0x02, 0x70, 16}, {0x02, 0x80, 16}, {0x02, 0x90, 16}, {0x02, 0xA0, 16}, {0x02, 0xB0, 16}, {0x02, 0xC0, 16},
    {0x02, 0xD0, 16}, {0x02, 0xE0, 16}, {0x02, 0xF0, 16}, {0x03, 0x00, 16}, {0x03, 0x10, 16}, {0x03, 0x20, 16},
    {0x03, 0x30, 16},
}};

/// A byte that differs between any two addresses that a mix-up of rows, columns or blocks would confuse.
std::uint8_t Pattern(int address) {
    return static_cast<std::uint8_t>(address * 5 + (address >> 8) * 3);
}

DataImage PatternMemory() {
    DataImage::Bytes bytes{};
    for (int address = 0; address < 1024; ++address) {
        bytes[static_cast<std::size_t>(address)] = Pattern(address);
    }
    return DataImage::FromAddressOrder(bytes);
}

/// Entry, identity and acknowledgement. The identity is the pattern at 0x1B8 to 0x1BF: 0x1B8 * 5 = 0x898, + 3.
std::vector<Exchange> Opening() {
    return {{Text("PROGRAM"), {0x06}}, {{0x02}, {0x9B, 0xA0, 0xA5, 0xAA, 0xAF, 0xB4, 0xB9, 0xBE}}, {{0x06}, {0x06}}};
}

std::vector<Exchange> ReadSession() {
    std::vector<Exchange> session = Opening();
    for (const BlockAddress& block : Blocks) {
        Bytes reply{0x57, block.high, block.low, 0x40};
        for (int i = 0; i < 64; ++i) {
            reply.push_back(Pattern(block.high * 256 + block.low + i));
        }
        session.push_back({{0x52, block.high, block.low, 0x40}, reply});
        session.push_back({{0x06}, {0x06}});
    }
    session.push_back({{0x45}, {}});
    return session;
}

/// Data byte i of packet n is n + 2 i, a value that no other packet has there.
std::vector<Exchange> WriteSession() {
    std::vector<Exchange> session = Opening();
    int n = 0;
    for (const PacketHead& head : Packets) {
        ++n;
        Bytes packet{0x57, head.high, head.low, head.count};
        for (int i = 0; i < head.count; ++i) {
            packet.push_back(static_cast<std::uint8_t>(n + 2 * i));
        }
        session.push_back({packet, {0x06}});
    }
    session.push_back({{0x45}, {}});
    return session;
}

std::size_t ByteCount(const std::vector<Exchange>& session) {
    std::size_t count = 0;
    for (const Exchange& exchange : session) {
        count += exchange.command.size() + exchange.reply.size();
    }
    return count;
}

void ExpectSession(const std::vector<Exchange>& session, RadioResponder& radio) {
    std::size_t n = 0;
    for (const Exchange& exchange : session) {
        EXPECT_EQ(Feed(radio, exchange.command), exchange.reply) << "exchange " << n;
        ++n;
    }
}

TEST(GoldenSession, AReadSessionIsAnsweredByteForByte) {
    DataImage memory = PatternMemory();
    RadioResponder radio(memory);
    const std::vector<Exchange> session = ReadSession();
    ASSERT_EQ(session.size(), 38U);
    ASSERT_EQ(ByteCount(session), 1278U);
    ExpectSession(session, radio);
    EXPECT_EQ(memory, PatternMemory()) << "a read changes nothing";
    EXPECT_EQ(radio.Clone().State(), CloneState::Idle);
}

TEST(GoldenSession, AWriteSessionIsAcknowledgedPacketForPacket) {
    DataImage memory = PatternMemory();
    RadioResponder radio(memory);
    const std::vector<Exchange> session = WriteSession();
    ASSERT_EQ(session.size(), 53U);
    ASSERT_EQ(ByteCount(session), 1041U);
    ExpectSession(session, radio);
    EXPECT_EQ(radio.Clone().State(), CloneState::Idle);
}

TEST(GoldenSession, AWriteSessionStoresItsDataAndNothingElse) {
    DataImage memory = PatternMemory();
    RadioResponder radio(memory);
    ExpectSession(WriteSession(), radio);
    EXPECT_EQ(memory.At(0x000), 1);       // packet 1
    EXPECT_EQ(memory.At(0x00F), 1 + 30);  //
    EXPECT_EQ(memory.At(0x010), 2);       // packet 2
    EXPECT_EQ(memory.At(0x17F), 24 + 30); // packet 24, its last byte
    EXPECT_EQ(memory.At(0x1B8), 25);      // packet 25
    EXPECT_EQ(memory.At(0x1C7), 25 + 30); //
    EXPECT_EQ(memory.At(0x1F8), 29);      // packet 29, the short one
    EXPECT_EQ(memory.At(0x1FF), 29 + 14); //
    EXPECT_EQ(memory.At(0x200), 30);      // packet 30
    EXPECT_EQ(memory.At(0x33F), 49 + 30); // packet 49
    int kept = 0;
    for (int address = 0; address < 1024; ++address) {
        const bool isTuning = address >= 0x180 && address <= 0x1B7;
        const bool isTail = address >= 0x340;
        if (isTuning || isTail) {
            EXPECT_EQ(memory.At(address), Pattern(address)) << std::hex << address;
            ++kept;
        }
    }
    EXPECT_EQ(kept, 56 + 192);
}

TEST(GoldenSession, CommandsInOneRunAreAnsweredLikeCommandsOneByOne) {
    DataImage memory = PatternMemory();
    RadioResponder radio(memory);
    Bytes commands;
    Bytes replies;
    for (const std::vector<Exchange>& session : {ReadSession(), WriteSession()}) {
        for (const Exchange& exchange : session) {
            commands = Joined({commands, exchange.command});
            replies = Joined({replies, exchange.reply});
        }
    }
    EXPECT_EQ(Feed(radio, commands), replies);
}

} // namespace
} // namespace zelvor::test
