#include "simulator/RadioResponder.h"

#include <random>

#include <gtest/gtest.h>

#include "Feed.h"

namespace zelvor::test {
namespace {

class CloneResponderTest : public ::testing::Test {
protected:
    CloneResponderTest() {
        memory.Fill(0x11);
        int address = 0x1B8;
        for (const std::uint8_t byte : {0x50, 0x34, 0x36, 0x31, 0x38, 0x01, 0xF8, 0xFF}) {
            memory.Set(address++, byte);
        }
    }

    DataImage memory;
    RadioResponder radio{memory};
};

TEST_F(CloneResponderTest, EntryIsAcknowledged) {
    EXPECT_EQ(Feed(radio, Text("PROGRAM")), Acknowledged);
    EXPECT_EQ(radio.Clone().State(), CloneState::Entered);
}

TEST_F(CloneResponderTest, TheIdentityIsEightBytesOfTheMemory) {
    (void)Feed(radio, Text("PROGRAM"));
    EXPECT_EQ(Feed(radio, {0x02}), (Bytes{0x50, 0x34, 0x36, 0x31, 0x38, 0x01, 0xF8, 0xFF}));
    EXPECT_EQ(radio.Clone().State(), CloneState::Identified);
    EXPECT_EQ(Feed(radio, {0x06}), Acknowledged);
    EXPECT_EQ(radio.Clone().State(), CloneState::Ready);
}

TEST_F(CloneResponderTest, OutsideProgrammingModeNothingButEntryIsAnswered) {
    EXPECT_EQ(Feed(radio, Joined({{0x02, 0x06, 0x52, 0x00, 0x00, 0x40, 0x45}, Text("ATI1\r")})), Silence);
    EXPECT_EQ(Feed(radio, {0x57, 0x00, 0x10, 0x01, 0x99}), Silence);
    EXPECT_EQ(memory.At(0x010), 0x11);
    EXPECT_EQ(Feed(radio, Text("PROGRAM")), Acknowledged);
}

TEST_F(CloneResponderTest, EntryIsFoundBehindABeginningOfItself) {
    EXPECT_EQ(Feed(radio, Text("PPROGPROGRAM")), Acknowledged);
}

TEST_F(CloneResponderTest, AWrongLetterInEntryIsNoEntry) {
    EXPECT_EQ(Feed(radio, Text("PROGRAN")), Silence);
    EXPECT_EQ(Feed(radio, Text("program")), Silence);
    EXPECT_EQ(radio.Clone().State(), CloneState::Idle);
}

TEST_F(CloneResponderTest, ReadsBeforeTheIdentityExchangeAreSkipped) {
    (void)Feed(radio, Text("PROGRAM"));
    EXPECT_EQ(Feed(radio, {0x52, 0x00, 0x00, 0x40}), Silence);
    (void)Feed(radio, {0x02});
    EXPECT_EQ(Feed(radio, {0x52, 0x00, 0x00, 0x40}), Silence);
    EXPECT_EQ(Feed(radio, {0x06}), Acknowledged);
}

TEST_F(CloneResponderTest, AReadReplyEchoesAddressAndCount) {
    Enter(radio);
    memory.Set(0x123, 0xAB);
    EXPECT_EQ(Feed(radio, {0x52, 0x01, 0x22, 0x03}), (Bytes{0x57, 0x01, 0x22, 0x03, 0x11, 0xAB, 0x11}));
}

TEST_F(CloneResponderTest, AReadOrWritePastTheEndOfTheMemoryIsNotAnswered) {
    Enter(radio);
    EXPECT_EQ(Feed(radio, {0x52, 0x03, 0xC1, 0x40}), Silence);
    EXPECT_EQ(Feed(radio, {0x52, 0xFF, 0xFF, 0x40}), Silence);
    EXPECT_EQ(Feed(radio, {0x57, 0x03, 0xFF, 0x02, 0x99, 0x99}), Silence);
    EXPECT_EQ(memory.At(0x3FF), 0x11);
    EXPECT_EQ(Feed(radio, {0x57, 0x03, 0xFF, 0x01, 0x99}), Acknowledged);
    EXPECT_EQ(memory.At(0x3FF), 0x99);
    EXPECT_EQ(Feed(radio, {0x52, 0x03, 0xFF, 0x01}), (Bytes{0x57, 0x03, 0xFF, 0x01, 0x99}));
}

TEST_F(CloneResponderTest, AWriteStoresItsDataAtItsAddress) {
    Enter(radio);
    EXPECT_EQ(Feed(radio, {0x57, 0x02, 0x04, 0x03, 0xA1, 0xA2, 0xA3}), Acknowledged);
    EXPECT_EQ(memory.At(0x203), 0x11);
    EXPECT_EQ(memory.At(0x204), 0xA1);
    EXPECT_EQ(memory.At(0x205), 0xA2);
    EXPECT_EQ(memory.At(0x206), 0xA3);
    EXPECT_EQ(memory.At(0x207), 0x11);
}

TEST_F(CloneResponderTest, AWriteIsStoredOnlyWhenItsLastByteIsThere) {
    Enter(radio);
    EXPECT_EQ(Feed(radio, {0x57, 0x02, 0x04, 0x02, 0xA1}), Silence);
    EXPECT_EQ(memory.At(0x204), 0x11);
    EXPECT_EQ(Feed(radio, {0xA2}), Acknowledged);
    EXPECT_EQ(memory.At(0x204), 0xA1);
}

TEST_F(CloneResponderTest, EntryBytesInsideTheDataOfAWriteAreData) {
    Enter(radio);
    EXPECT_EQ(Feed(radio, Joined({{0x57, 0x03, 0x00, 0x08}, Text("PROGRAM"), {0x45}})), Acknowledged);
    EXPECT_EQ(radio.Clone().State(), CloneState::Ready);
    EXPECT_EQ(memory.At(0x300), 'P');
    EXPECT_EQ(memory.At(0x306), 'M');
    EXPECT_EQ(memory.At(0x307), 0x45);
}

TEST_F(CloneResponderTest, EntryStartsTheSessionAgainFromEveryState) {
    const std::vector<Bytes> before{
        {},
        Text("PROGRAM"),
        Joined({Text("PROGRAM"), {0x02}}),
        Joined({Text("PROGRAM"), {0x02, 0x06}}),
        Joined({Text("PROGRAM"), {0x02, 0x06, 0x52, 0x00, 0x40, 0x40}}),
        Joined({Text("PROGRAM"), {0x02, 0x06, 0x57, 0x03, 0x00, 0x01, 0x11}}),
    };
    for (const Bytes& bytes : before) {
        radio.Restart();
        (void)Feed(radio, bytes);
        EXPECT_EQ(Feed(radio, Text("PROGRAM")), Acknowledged) << bytes.size() << " bytes before";
        EXPECT_EQ(radio.Clone().State(), CloneState::Entered);
        EXPECT_EQ(Feed(radio, {0x02}).size(), 8U);
    }
}

TEST_F(CloneResponderTest, ABrokenCommandIsForgottenInSilenceAndTheSessionGoesOn) {
    Enter(radio);
    (void)Feed(radio, {0x57, 0x00, 0x10, 0x10, 0x22});
    EXPECT_FALSE(radio.LineSilent());
    EXPECT_EQ(Feed(radio, {0x52, 0x00, 0x10, 0x01}), (Bytes{0x57, 0x00, 0x10, 0x01, 0x11}));
}

TEST_F(CloneResponderTest, EndIsNotAnsweredAndLeavesProgrammingMode) {
    Enter(radio);
    const auto reaction = radio.Take(0x45);
    ASSERT_TRUE(reaction);
    EXPECT_EQ(reaction->reply, Silence);
    EXPECT_EQ(reaction->session, SessionEvent::Ended);
    EXPECT_EQ(radio.Clone().State(), CloneState::Idle);
    EXPECT_EQ(Feed(radio, {0x52, 0x00, 0x00, 0x40}), Silence);
}

TEST_F(CloneResponderTest, EndIsTakenBeforeTheIdentityToo) {
    (void)Feed(radio, Text("PROGRAM"));
    (void)Feed(radio, {0x45});
    EXPECT_EQ(radio.Clone().State(), CloneState::Idle);
}

TEST_F(CloneResponderTest, ACommandThatComesOnceMoreBehindEndIsSkipped) {
    Enter(radio);
    EXPECT_EQ(Feed(radio, {0x45, 0x57, 0x00, 0x10, 0x01, 0x99}), Silence);
    EXPECT_EQ(memory.At(0x010), 0x11);
}

TEST_F(CloneResponderTest, ARestartLeavesProgrammingModeAndKeepsTheMemory) {
    Enter(radio);
    (void)Feed(radio, {0x57, 0x00, 0x20, 0x01, 0x77});
    radio.Restart();
    EXPECT_EQ(radio.Clone().State(), CloneState::Idle);
    EXPECT_EQ(memory.At(0x020), 0x77);
}

TEST_F(CloneResponderTest, TheCommandLengthTellsTheSkippedBytesApart) {
    for (const std::uint8_t byte : Text("xyPROGRA")) {
        EXPECT_FALSE(radio.Take(byte));
    }
    const auto reaction = radio.Take('M');
    ASSERT_TRUE(reaction);
    EXPECT_EQ(reaction->commandLength, 7U);
    EXPECT_EQ(reaction->session, SessionEvent::Started);
}

/// Random bytes without 'W': no packet can be written, whatever else happens.
TEST_F(CloneResponderTest, GarbageWithoutAWritePacketLeavesTheMemoryAlone) {
    constexpr unsigned Seed = 20240611;
    std::mt19937 random(Seed);
    const DataImage before = memory;
    std::size_t answered = 0;
    for (int i = 0; i < 200'000; ++i) {
        if (i % 97 == 0) {
            Enter(radio);
        }
        auto byte = static_cast<std::uint8_t>(random());
        byte = byte == 'W' ? 'R' : byte;
        answered += radio.Take(byte) ? 1 : 0;
    }
    EXPECT_EQ(memory, before) << "seed " << Seed;
    EXPECT_GT(answered, 0U) << "the garbage never met a command; seed " << Seed;
}

TEST_F(CloneResponderTest, GarbageOutsideProgrammingModeLeavesTheMemoryAlone) {
    constexpr unsigned Seed = 7;
    std::mt19937 random(Seed);
    const DataImage before = memory;
    for (int i = 0; i < 200'000; ++i) {
        (void)radio.Take(static_cast<std::uint8_t>(random()));
    }
    EXPECT_EQ(memory, before) << "seed " << Seed;
    EXPECT_EQ(radio.Clone().State(), CloneState::Idle) << "seed " << Seed;
}

/// Every byte counts as every byte of a command: nothing may reach outside the memory (the sanitizer build looks on).
TEST_F(CloneResponderTest, WritesOfEveryAddressAndCountStayInsideTheMemory) {
    Enter(radio);
    for (int high = 0; high <= 0xFF; ++high) {
        for (const int low : {0x00, 0x01, 0xC0, 0xFF}) {
            for (const int count : {0x00, 0x01, 0x10, 0x40, 0xFF}) {
                Bytes packet{0x57, static_cast<std::uint8_t>(high), static_cast<std::uint8_t>(low),
                             static_cast<std::uint8_t>(count)};
                packet.resize(4 + static_cast<std::size_t>(count), 0x5A);
                const bool fits = high * 256 + low + count <= 1024;
                ASSERT_EQ(Feed(radio, packet), fits ? Acknowledged : Silence) << high << ' ' << low << ' ' << count;
            }
        }
    }
}

} // namespace
} // namespace zelvor::test
