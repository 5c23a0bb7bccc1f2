// The service protocol with the timing and the faults of the line, on virtual time.

#include <chrono>
#include <gtest/gtest.h>

#include "RadioLineRig.h"

namespace zelvor::test {
namespace {

using std::chrono::milliseconds;

/// A radio that has been asked for its manufacturing record, whose next byte may be a bare 'P'.
class BareRequestTest : public RadioLineTest {
protected:
    BareRequestTest() {
        (void)Ask(Joined({Text("PROGRAM"), {0x02}, {0x06}}));
        EXPECT_EQ(Ask(Text("NRK")).size(), 34U);
        heard.commands.clear();
        heard.commandTimes.clear();
        heard.delivered.clear();
    }
};

TEST_F(BareRequestTest, IsAnsweredAfterFiveMillisecondsOfSilence) {
    const LineTime asked = heard.now;
    EXPECT_EQ(Ask({0x50}), (Bytes{0, 1, 2, 3, 4, 5, 6, 7, 8, 9}));
    EXPECT_EQ(heard.commands, (std::vector<Bytes>{{0x50}}));
    EXPECT_EQ(heard.commandTimes, std::vector<LineTime>{asked + OneByte + milliseconds(5)});
    EXPECT_EQ(heard.delivered[0].time, asked + 2 * OneByte + milliseconds(5));
    EXPECT_TRUE(heard.skipped.empty());
    EXPECT_EQ(Ask({0x06}), Bytes{0x06});
}

TEST_F(BareRequestTest, IsNotAnsweredBeforeItsSilenceIsOver) {
    Send({0x50});
    Pass(OneByte + milliseconds(5) - LineTime(1));
    EXPECT_TRUE(heard.commands.empty());
    Pass(LineTime(1));
    EXPECT_EQ(heard.commands, (std::vector<Bytes>{{0x50}}));
}

TEST_F(BareRequestTest, IsNoneAtTheHeadOfEntry) {
    EXPECT_EQ(Ask(Text("PROGRAM")), Bytes{0x06});
    EXPECT_EQ(heard.commands, std::vector<Bytes>{Text("PROGRAM")});
    EXPECT_TRUE(heard.skipped.empty());
}

TEST_F(BareRequestTest, IsNoneAtTheHeadOfAnEntryWhoseLettersComeFourMillisecondsApart) {
    for (const std::uint8_t letter : Text("PROGRAM")) {
        Send({letter});
        Pass(milliseconds(4));
    }
    Run();
    EXPECT_EQ(heard.commands, std::vector<Bytes>{Text("PROGRAM")});
    ASSERT_EQ(heard.delivered.size(), 1U);
    EXPECT_EQ(heard.delivered[0].byte, 0x06);
}

TEST_F(BareRequestTest, IsNoneWhereTheNextByteIsUnderWayWhenItsTimeIsUp) {
    Send({0x50});
    Pass(OneByte + milliseconds(5) - LineTime(1));
    EXPECT_EQ(Ask(Text("ROGRAM")), Bytes{0x06});
    EXPECT_EQ(heard.commands, std::vector<Bytes>{Text("PROGRAM")});
}

TEST_F(BareRequestTest, IsAnsweredInTimeToALateCaller) {
    Send({0x50});
    Pass(milliseconds(40)); // the caller was busy all the while
    EXPECT_EQ(heard.delivered.size(), 10U);
}

TEST_F(BareRequestTest, MayBeSpoiltLikeAnyReply) {
    faults.Add({FaultKind::Cut, 4, 5});
    EXPECT_EQ(Ask({0x50}), (Bytes{0, 1, 2, 3}));
    EXPECT_EQ(heard.fired, (std::vector<Fault>{{FaultKind::Cut, 4, 5}}));
}

class ServiceLineTest : public RadioLineTest {};

TEST_F(ServiceLineTest, CommandsAreTakenWithTheirNames) {
    (void)Ask(Text("TUNING "));
    (void)Ask({0x10, 0x03});
    (void)Ask({0x12, 0x20, 0x64});
    EXPECT_EQ(heard.commands, (std::vector<Bytes>{Text("TUNING "), {0x10, 0x03}, {0x12, 0x20, 0x64}}));
    EXPECT_EQ(heard.descriptions,
              (std::vector<std::string>{"Tuning entry", "Set channel 3", "Set item 1 Test to 100"}));
    EXPECT_EQ(heard.started, 1);
    EXPECT_EQ(Ask({0x45}), Bytes{0x06});
    EXPECT_EQ(heard.ended, 1);
}

TEST_F(ServiceLineTest, SkippedBytesAreToldApartFromTheCommand) {
    (void)Ask(Text("TUNING "));
    (void)Ask({0xEE, 0x10, 0x00, 0x06});
    EXPECT_EQ(heard.skipped, (std::vector<Bytes>{{0xEE, 0x10, 0x00}}));
    EXPECT_EQ(heard.commands.back(), Bytes{0x06});
}

TEST_F(ServiceLineTest, EveryFaultSpoilsAServiceReplyLikeACloneReply) {
    faults.Add({FaultKind::Corrupt, 0, 1});
    faults.Add({FaultKind::Drop, 0, 2});
    faults.Add({FaultKind::Cut, 33, 3});
    faults.Add({FaultKind::Delay, 300, 4});
    EXPECT_EQ(Ask(Text("TUNING ")), Bytes{0xF9});
    EXPECT_EQ(Ask({0x02}), Bytes{});
    EXPECT_EQ(Ask({0x05}).size(), 33U);
    const LineTime asked = heard.now;
    EXPECT_EQ(Ask({0x06}), Bytes{0x06});
    EXPECT_EQ(heard.delivered.back().time, asked + 2 * OneByte + milliseconds(300));
    EXPECT_EQ(heard.fired.size(), 4U);
}

TEST_F(ServiceLineTest, AfterAHangOnlyAnEntryIsAnswered) {
    faults.Add({FaultKind::Hang, 0, 2});
    (void)Ask(Text("TUNING "));
    EXPECT_EQ(Ask({0x06}), Bytes{});
    EXPECT_EQ(Ask({0x06}), Bytes{});
    EXPECT_EQ(Ask(Text("TUNING ")), Bytes{0x06});
}

TEST_F(ServiceLineTest, AnUnplugLeavesTheRadioInTuningMode) {
    faults.Add({FaultKind::Unplug, 0, 2});
    (void)Ask(Text("TUNING "));
    EXPECT_EQ(Ask({0x12, 0x20, 0x64}), Bytes{});
    EXPECT_EQ(heard.unplugged, 1);
    EXPECT_EQ(Ask({0x12, 0x20, 0x64}), Bytes{0x06});
}

} // namespace
} // namespace zelvor::test
