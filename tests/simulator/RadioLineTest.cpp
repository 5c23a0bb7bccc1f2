#include "simulator/RadioLine.h"

#include <gtest/gtest.h>

#include "RadioLineRig.h"

namespace zelvor::test {
namespace {

using std::chrono::milliseconds;

TEST(LinePacer, BytesFollowEachOtherAndIdleTimeIsNotMadeUp) {
    LinePacer pacer;
    EXPECT_EQ(pacer.Carry(LineTime(0)), OneByte);
    EXPECT_EQ(pacer.Carry(LineTime(0)), 2 * OneByte);
    EXPECT_EQ(pacer.Carry(10 * OneByte), 11 * OneByte);
    EXPECT_EQ(pacer.Carry(10 * OneByte), 12 * OneByte);
}

TEST(LinePacer, NineThousandSixHundredBytesTakeElevenSecondsExactly) {
    LinePacer pacer;
    LineTime end{0};
    for (int i = 0; i < 9600; ++i) {
        end = pacer.Carry(LineTime(0));
    }
    EXPECT_EQ(end, std::chrono::seconds(11));
}

TEST_F(RadioLineTest, ACommandCountsWhenTheLineHasDeliveredItsLastByte) {
    Send(Text("PROGRAM"));
    Pass(7 * OneByte - LineTime(1));
    EXPECT_EQ(heard.commands.size(), 0U);
    Pass(LineTime(1));
    EXPECT_EQ(heard.commands, std::vector<Bytes>{Text("PROGRAM")});
    EXPECT_EQ(heard.started, 1);
    EXPECT_TRUE(heard.delivered.empty());
    Pass(OneByte - LineTime(1));
    EXPECT_TRUE(heard.delivered.empty());
    Pass(LineTime(1));
    ASSERT_EQ(heard.delivered.size(), 1U);
    EXPECT_EQ(heard.delivered[0].byte, 0x06);
}

TEST_F(RadioLineTest, TheBytesOfAReplyComeOneByOne) {
    (void)Ask(Text("PROGRAM"));
    const LineTime asked = heard.now;
    ASSERT_EQ(Ask({0x02}).size(), 8U);
    for (int i = 0; i < 8; ++i) {
        EXPECT_EQ(heard.delivered[static_cast<std::size_t>(1 + i)].time, asked + (2 + i) * OneByte);
    }
}

TEST_F(RadioLineTest, ALateCallDelaysNoLaterByte) {
    Send(Text("PROGRAM"));
    Pass(milliseconds(20)); // the caller was busy all the while
    EXPECT_EQ(heard.delivered.size(), 1U);
    EXPECT_FALSE(line.NextDeadline());
}

TEST_F(RadioLineTest, AReadSessionTakesTheWireTimeOfItsBytes) {
    (void)Ask(Text("PROGRAM"));
    (void)Ask({0x02});
    (void)Ask({0x06});
    for (int k = 1; k <= 17; ++k) {
        const int address = (k < 17 ? k - 1 : 15) * 64;
        const Bytes read{0x52, static_cast<std::uint8_t>(address / 256), static_cast<std::uint8_t>(address % 256),
                         0x40};
        ASSERT_EQ(Ask(read).size(), 68U);
        ASSERT_EQ(Ask({0x06}).size(), 1U);
    }
    EXPECT_EQ(Ask({0x45}), Bytes{});
    EXPECT_EQ(heard.ended, 1);
    // 1278 bytes of 11 bits at 9600 baud: 1.464375 s.
    EXPECT_EQ(heard.now, std::chrono::microseconds(1'464'375));
}

TEST_F(RadioLineTest, BytesHandedOverOneByOneAreTheSameSession) {
    const Bytes commands = Joined({Text("PROGRAM"), {0x02}, {0x06}, {0x57, 0x00, 0x10, 0x02, 0xA1, 0xA2}, {0x45}});
    for (const std::uint8_t byte : commands) {
        (void)Ask({byte});
    }
    EXPECT_EQ(heard.commands,
              (std::vector<Bytes>{Text("PROGRAM"), {0x02}, {0x06}, {0x57, 0x00, 0x10, 0x02, 0xA1, 0xA2}, {0x45}}));
    EXPECT_TRUE(heard.skipped.empty());
    EXPECT_EQ(memory.At(0x011), 0xA2);
}

TEST_F(RadioLineTest, SkippedBytesAreToldApartFromTheCommand) {
    (void)Ask(Joined({Text("ATI1\r"), Text("PROGRAM")}));
    EXPECT_EQ(heard.skipped, std::vector<Bytes>{Text("ATI1\r")});
    EXPECT_EQ(heard.commands, std::vector<Bytes>{Text("PROGRAM")});
}

TEST_F(RadioLineTest, EndlessNoiseDoesNotPileUp) {
    Send(Bytes(5000, 0xEE));
    Run(std::chrono::seconds(10));
    std::size_t told = 0;
    for (const Bytes& bytes : heard.skipped) {
        EXPECT_LE(bytes.size(), 1024U);
        told += bytes.size();
    }
    EXPECT_EQ(told, 5000U);
}

TEST_F(RadioLineTest, ABrokenCommandIsForgottenAfterHalfASecond) {
    (void)Ask(Joined({Text("PROGRAM"), {0x02}, {0x06}}));
    EXPECT_EQ(Ask({0x57, 0x00, 0x10, 0x10, 0x22}), Bytes{});
    Pass(milliseconds(499));
    EXPECT_TRUE(heard.skipped.empty());
    Pass(milliseconds(2));
    EXPECT_EQ(heard.skipped, (std::vector<Bytes>{{0x57, 0x00, 0x10, 0x10, 0x22}}));
    EXPECT_EQ(Ask(Text("PROGRAM")), Bytes{0x06});
}

TEST_F(RadioLineTest, ADroppedReplyLeavesTheRadioInItsSession) {
    faults.Add({FaultKind::Drop, 0, 2});
    (void)Ask(Text("PROGRAM"));
    EXPECT_EQ(Ask({0x02}), Bytes{});
    EXPECT_EQ(heard.fired, (std::vector<Fault>{{FaultKind::Drop, 0, 2}}));
    EXPECT_EQ(Ask({0x06}), Bytes{0x06});
}

TEST_F(RadioLineTest, ACorruptReplyAndACutOneGoOutAsTheyAre) {
    faults.Add({FaultKind::Corrupt, 0, 1});
    faults.Add({FaultKind::Cut, 5, 2});
    EXPECT_EQ(Ask(Text("PROGRAM")), Bytes{0xF9});
    EXPECT_EQ(Ask({0x02}).size(), 5U);
    EXPECT_EQ(heard.replies[0], Bytes{0xF9});
    EXPECT_EQ(heard.replies[1].size(), 5U);
}

TEST_F(RadioLineTest, ADelayedReplyComesThatMuchLater) {
    faults.Add({FaultKind::Delay, 300, 1});
    EXPECT_EQ(Ask(Text("PROGRAM")), Bytes{0x06});
    EXPECT_EQ(heard.delivered[0].time, 8 * OneByte + milliseconds(300));
}

TEST_F(RadioLineTest, AfterAHangOnlyEntryIsAnswered) {
    faults.Add({FaultKind::Hang, 0, 2});
    (void)Ask(Text("PROGRAM"));
    EXPECT_EQ(Ask({0x02}), Bytes{});
    EXPECT_EQ(Ask({0x02}), Bytes{});
    EXPECT_EQ(Ask({0x06}), Bytes{});
    EXPECT_EQ(Ask(Text("PROGRAM")), Bytes{0x06});
    EXPECT_EQ(Ask({0x02}).size(), 8U);
    EXPECT_EQ(heard.fired.size(), 1U);
}

TEST_F(RadioLineTest, AnUnplugTakesAllThatIsUnderWay) {
    faults.Add({FaultKind::Unplug, 0, 2});
    (void)Ask(Text("PROGRAM"));
    EXPECT_EQ(Ask(Joined({{0x02}, {0x06}, {0x06}})), Bytes{});
    EXPECT_EQ(heard.unplugged, 1);
    EXPECT_FALSE(line.NextDeadline());
    EXPECT_EQ(Ask(Text("PROGRAM")), Bytes{0x06});
}

TEST_F(RadioLineTest, AnUnplugLeavesTheRadioInItsSession) {
    faults.Add({FaultKind::Unplug, 0, 2});
    (void)Ask(Text("PROGRAM"));
    EXPECT_EQ(Ask({0x02}), Bytes{});
    EXPECT_EQ(heard.unplugged, 1);
    EXPECT_EQ(Ask({0x06}), Bytes{0x06});
}

TEST_F(RadioLineTest, UnansweredCommandsAreNoReplies) {
    faults.Add({FaultKind::Drop, 0, 2});
    (void)Ask(Text("PROGRAM"));
    EXPECT_EQ(Ask({0x45}), Bytes{});
    EXPECT_TRUE(heard.fired.empty());
    EXPECT_EQ(Ask(Text("PROGRAM")), Bytes{});
    EXPECT_EQ(heard.fired.size(), 1U);
}

} // namespace
} // namespace zelvor::test
