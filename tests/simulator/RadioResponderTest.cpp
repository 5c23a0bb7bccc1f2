// Both modes behind one line: which entry is found where, and the request that silence completes.

#include "simulator/RadioResponder.h"

#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "ServiceMemory.h"

namespace zelvor::test {
namespace {

class RadioResponderTest : public ::testing::Test {
protected:
    /// Brings the radio to a session that has asked for the manufacturing record.
    void EnterInformation() {
        Enter(radio);
        ASSERT_EQ(Feed(radio, Text("NRK")).size(), 34U);
    }

    DataImage memory = ServiceMemory();
    RadioResponder radio{memory};
};

/// Bytes that bring a fresh radio to each of its states.
const std::vector<Bytes> WaysToAllStates{
    {},
    Text("PROGRAM"),
    Joined({Text("PROGRAM"), {0x02}}),
    Joined({Text("PROGRAM"), {0x02, 0x06}}),
    Joined({Text("PROGRAM"), {0x02, 0x06}, Text("NRK")}),
    Joined({Text("PROGRAM"), {0x02, 0x06}, Text("NRKP")}),
    Joined({Text("PROGRAM"), {0x02, 0x06}, Text("NR")}),
    Joined({Text("PROGRAM"), {0x02, 0x06, 0x52, 0x00}}),
    Joined({Text("PROGRAM"), {0x02, 0x06, 0x45}}),
    Text("PROGR"),
    Text("PROG"),
    Text("TUNIN"),
    Text("TUNING "),
    Joined({Text("TUNING "), {0x02, 0x06, 0x05, 0x06}}),
    Joined({Text("TUNING "), {0x10}}),
    Joined({Text("TUNING "), {48}}),
    Joined({Text("TUNING "), {48, 0x20}}),
    Joined({Text("TUNING "), Text("G")}),
    Joined({Text("TUNING "), {0x45}}),
    Text("TUNING PROG"),
};

TEST_F(RadioResponderTest, ProgramStartsACloneSessionInEveryState) {
    for (const Bytes& way : WaysToAllStates) {
        radio.Restart();
        (void)Feed(radio, way);
        const Bytes replies = Feed(radio, Text("PROGRAM"));
        ASSERT_FALSE(replies.empty()) << way.size() << " bytes before";
        EXPECT_EQ(replies.back(), 0x06);
        EXPECT_EQ(radio.Clone().State(), CloneState::Entered) << way.size() << " bytes before";
        EXPECT_FALSE(radio.Service().IsActive());
        EXPECT_EQ(Feed(radio, {0x05, 'F', 0x02}).size(), 8U) << "tuning mode is over";
    }
}

TEST_F(RadioResponderTest, TuningStartsATuningSessionInEveryState) {
    for (const Bytes& way : WaysToAllStates) {
        radio.Restart();
        (void)Feed(radio, way);
        const Bytes replies = Feed(radio, Text("TUNING "));
        ASSERT_FALSE(replies.empty()) << way.size() << " bytes before";
        EXPECT_EQ(replies.back(), 0x06);
        EXPECT_TRUE(radio.Service().IsActive()) << way.size() << " bytes before";
        EXPECT_EQ(radio.Clone().State(), CloneState::Idle);
        EXPECT_EQ(Feed(radio, {0x05}), ServiceTuningRecord());
    }
}

TEST_F(RadioResponderTest, EitherEntryInsideTheDataOfAWriteIsData) {
    Enter(radio);
    const Bytes both = Text("PROGRAMTUNING ");
    EXPECT_EQ(Feed(radio, Joined({{0x57, 0x03, 0x00, 0x0E}, both})), Acknowledged);
    EXPECT_EQ(radio.Clone().State(), CloneState::Ready);
    for (int i = 0; i < 14; ++i) {
        EXPECT_EQ(memory.At(0x300 + i), both[static_cast<std::size_t>(i)]) << i;
    }
}

TEST_F(RadioResponderTest, AnEntryThatBeginsInTheDataOfAWriteIsNone) {
    Enter(radio);
    EXPECT_EQ(Feed(radio, Joined({{0x57, 0x03, 0x00, 0x03}, Text("TUN"), Text("ING ")})), Acknowledged);
    EXPECT_FALSE(radio.Service().IsActive());
    EXPECT_EQ(memory.At(0x302), 'N');
}

TEST_F(RadioResponderTest, TheLettersOfAnEntryAreNoCommandsOfTuningMode) {
    (void)Feed(radio, Text("TUNING "));
    EXPECT_EQ(Feed(radio, Text("PROG")), Silence) << "'G' is Narrow elsewhere";
    EXPECT_EQ(Feed(radio, {0x06}), Acknowledged);
    EXPECT_EQ(Feed(radio, Text("TUNING")), Silence);
    EXPECT_EQ(Feed(radio, {24, 0x0D, 0x07}), (Bytes{0x06, 24, 0x4D, 0, 0, 0, 0})) << "the radio is still wide";
    EXPECT_EQ(Feed(radio, Text("G")), Acknowledged);
}

TEST_F(RadioResponderTest, EitherEntryIsFoundBehindABeginningOfItself) {
    EXPECT_EQ(Feed(radio, Text("PPROGPROGRAM")), Acknowledged);
    EXPECT_EQ(Feed(radio, Text("TTUNINTUNING ")), Acknowledged);
    EXPECT_TRUE(radio.Service().IsActive());
}

TEST_F(RadioResponderTest, ASilenceInAnEntryBreaksIt) {
    (void)Feed(radio, Text("TUNI"));
    EXPECT_FALSE(radio.LineSilent());
    EXPECT_EQ(Feed(radio, Text("NG ")), Silence);
    EXPECT_EQ(Feed(radio, Text("TUNING ")), Acknowledged);
}

TEST_F(RadioResponderTest, TheManufacturingRecordHoldsTheSerialNumber) {
    Enter(radio);
    const Bytes record = Feed(radio, Text("NRK"));
    ASSERT_EQ(record.size(), 34U);
    EXPECT_EQ(record[13], 'A');
    EXPECT_EQ(std::string(record.begin() + 17, record.begin() + 25), "10024618");
    EXPECT_EQ(record[12], 12);
    EXPECT_EQ(record[33], 33);
    EXPECT_EQ(radio.Clone().State(), CloneState::Informing);
}

TEST_F(RadioResponderTest, TheManufacturingRecordIsOnlyGivenBehindTheIdentityExchange) {
    EXPECT_EQ(Feed(radio, Text("NRK")), Silence);
    (void)Feed(radio, Text("PROGRAM"));
    EXPECT_EQ(Feed(radio, Text("NRK")), Silence);
    (void)Feed(radio, {0x02});
    EXPECT_EQ(Feed(radio, Text("NRK")), Silence);
    (void)Feed(radio, {0x06});
    EXPECT_EQ(Feed(radio, Text("NRX")), Silence);
    EXPECT_EQ(Feed(radio, Text("NNRK")).size(), 34U);
}

TEST_F(RadioResponderTest, ABarePIsAnsweredInSilenceOnly) {
    EnterInformation();
    EXPECT_EQ(Feed(radio, {0x50}), Silence);
    EXPECT_EQ(radio.Patience(), std::chrono::milliseconds(5));
    const auto reaction = radio.LineSilent();
    ASSERT_TRUE(reaction);
    EXPECT_EQ(reaction->reply, (Bytes{0, 1, 2, 3, 4, 5, 6, 7, 8, 9}));
    EXPECT_EQ(reaction->commandLength, 1U);
    EXPECT_EQ(reaction->description, "Read unused record");
    EXPECT_FALSE(radio.Patience());
    EXPECT_FALSE(radio.LineSilent()) << "it is answered once";
    EXPECT_EQ(Feed(radio, {0x06}), Acknowledged);
}

TEST_F(RadioResponderTest, ABarePOutsideAnInformationSessionIsNoCommand) {
    const std::vector<Bytes> ways{{}, Text("PROGRAM"), Joined({Text("PROGRAM"), {0x02, 0x06}}), Text("TUNING ")};
    for (const Bytes& way : ways) {
        radio.Restart();
        (void)Feed(radio, way);
        EXPECT_EQ(Feed(radio, {0x50}), Silence);
        EXPECT_FALSE(radio.Patience());
        EXPECT_FALSE(radio.LineSilent());
    }
}

TEST_F(RadioResponderTest, APThatIsFollowedByAnythingIsSkipped) {
    EnterInformation();
    EXPECT_EQ(Feed(radio, {0x50, 0x06}), Acknowledged);
    EXPECT_FALSE(radio.Patience());
    EXPECT_EQ(Feed(radio, {0x50, 0x52, 0x01, 0x85, 0x01}), (Bytes{0x57, 0x01, 0x85, 0x01, 0x45}));
}

TEST_F(RadioResponderTest, AReadBehindAnAnsweredPIsARead) {
    EnterInformation();
    (void)Feed(radio, {0x50});
    ASSERT_TRUE(radio.LineSilent());
    EXPECT_EQ(Feed(radio, {0x52, 0x01, 0x85, 0x01}), (Bytes{0x57, 0x01, 0x85, 0x01, 0x45}));
}

TEST_F(RadioResponderTest, EndIsAnsweredInAnInformationSessionAndNotInACloneSession) {
    EnterInformation();
    const auto reaction = radio.Take(0x45);
    ASSERT_TRUE(reaction);
    EXPECT_EQ(reaction->reply, Acknowledged);
    EXPECT_EQ(reaction->session, SessionEvent::Ended);
    EXPECT_EQ(radio.Clone().State(), CloneState::Idle);
    Enter(radio);
    EXPECT_EQ(Feed(radio, {0x45}), Silence) << "the next session is one of its own";
}

TEST_F(RadioResponderTest, OnlyCommandsOfTheServiceProtocolAreNamed) {
    const auto lastDescription = [this](const Bytes& bytes) {
        std::string description;
        for (const std::uint8_t byte : bytes) {
            if (const auto reaction = radio.Take(byte)) {
                description = reaction->description;
            }
        }
        return description;
    };
    EXPECT_EQ(lastDescription(Text("PROGRAM")), "");
    EXPECT_EQ(lastDescription({0x02}), "");
    EXPECT_EQ(lastDescription({0x06}), "");
    EXPECT_EQ(lastDescription({0x52, 0x00, 0x00, 0x40}), "");
    EXPECT_EQ(lastDescription({0x57, 0x00, 0x10, 0x01, 0x11}), "");
    EXPECT_EQ(lastDescription(Text("NRK")), "Read manufacturing record");
    EXPECT_EQ(lastDescription({0x06}), "Acknowledge");
    EXPECT_EQ(lastDescription({0x45}), "End");
    Enter(radio);
    EXPECT_EQ(lastDescription({0x45}), "");
}

TEST_F(RadioResponderTest, GarbageInTuningModeWithoutAStoreLeavesTheMemoryAlone) {
    constexpr unsigned Seed = 20260117;
    std::mt19937 random(Seed);
    std::size_t answered = 0;
    for (int i = 0; i < 200'000; ++i) {
        if (i % 97 == 0) {
            (void)Feed(radio, Text("TUNING "));
        }
        auto byte = static_cast<std::uint8_t>(random());
        byte = byte == 0x0E ? 0x0D : byte;
        answered += radio.Take(byte) ? 1 : 0;
    }
    EXPECT_EQ(memory, ServiceMemory()) << "seed " << Seed;
    EXPECT_GT(answered, 0U) << "the garbage never met a command; seed " << Seed;
}

} // namespace
} // namespace zelvor::test
