// Tuning mode command by command.

#include <string>

#include <gtest/gtest.h>

#include "ServiceMemory.h"
#include "simulator/RadioResponder.h"

namespace zelvor::test {
namespace {

class ServiceResponderTest : public ::testing::Test {
protected:
    ServiceResponderTest() { (void)Feed(radio, Text("TUNING ")); }

    /// The description of the command that the bytes complete.
    std::string DescriptionOf(const Bytes& bytes) {
        std::string description;
        for (const std::uint8_t byte : bytes) {
            if (const auto reaction = radio.Take(byte)) {
                description = reaction->description;
            }
        }
        return description;
    }

    DataImage memory = ServiceMemory();
    RadioResponder radio{memory};
};

TEST_F(ServiceResponderTest, TuningEntryIsAcknowledgedAndEntersTuningMode) {
    RadioResponder fresh(memory);
    EXPECT_FALSE(fresh.Service().IsActive());
    EXPECT_EQ(Feed(fresh, Text("TUNING")), Silence);
    const auto reaction = fresh.Take(' ');
    ASSERT_TRUE(reaction);
    EXPECT_EQ(reaction->reply, Acknowledged);
    EXPECT_EQ(reaction->commandLength, 7U);
    EXPECT_EQ(reaction->session, SessionEvent::Started);
    EXPECT_TRUE(fresh.Service().IsActive());
}

TEST_F(ServiceResponderTest, OutsideTuningModeNoCommandOfItIsAnswered) {
    RadioResponder fresh(memory);
    EXPECT_EQ(Feed(fresh, {0x02, 0x06, 0x05, 0x10, 0x01, 0x11, 0x01, 0x08, 0x0D, 'F', 'G', 0x12, 0x0D, 0x07, 0x45}),
              Silence);
    EXPECT_EQ(Feed(fresh, {0x12, 0x20, 0x99, 0x12, 0x0E}), Silence);
    EXPECT_EQ(memory, ServiceMemory());
}

TEST_F(ServiceResponderTest, TheIdentityIsEightBytesOfTheMemory) {
    EXPECT_EQ(Feed(radio, {0x02}), (Bytes{0x50, 0x34, 0x36, 0x31, 0x38, 0x01, 0xF8, 0xFF}));
}

TEST_F(ServiceResponderTest, AnAcknowledgementIsAcknowledged) {
    EXPECT_EQ(Feed(radio, {0x06}), Acknowledged);
    EXPECT_EQ(Feed(radio, {0x06}), Acknowledged);
}

TEST_F(ServiceResponderTest, TheTuningRecordIsSixtyTwoBytesInTheOrderOfTheItems) {
    const Bytes record = Feed(radio, {0x05});
    EXPECT_EQ(record.size(), 62U);
    EXPECT_EQ(record, ServiceTuningRecord());
}

TEST_F(ServiceResponderTest, EveryChannelIsAnsweredByItsRecord) {
    for (int n = 1; n <= 16; ++n) {
        Bytes record;
        for (int i = 0; i < 8; ++i) {
            record.push_back(static_cast<std::uint8_t>(8 * (n - 1) + i));
        }
        EXPECT_EQ(Feed(radio, {0x10, static_cast<std::uint8_t>(n)}), record) << "channel " << n;
    }
}

TEST_F(ServiceResponderTest, ChannelsAndSignallingsThatThereAreNotAreSkipped) {
    EXPECT_EQ(Feed(radio, {0x10, 0x00}), Silence);
    EXPECT_EQ(Feed(radio, {0x10, 0x11}), Silence);
    EXPECT_EQ(Feed(radio, {0x10, 0x46}), Silence) << "the number is no command of its own";
    EXPECT_EQ(Feed(radio, {0x11, 0x00}), Silence);
    EXPECT_EQ(Feed(radio, {0x11, 0x0A}), Silence);
    EXPECT_EQ(Feed(radio, {0x06}), Acknowledged);
}

TEST_F(ServiceResponderTest, EverySignallingIsAcknowledged) {
    for (int n = 1; n <= 9; ++n) {
        EXPECT_EQ(Feed(radio, {0x11, static_cast<std::uint8_t>(n)}), Acknowledged) << "signalling " << n;
    }
}

TEST_F(ServiceResponderTest, PttOnAndOffAreAcknowledgedAndNothingElseOfThem) {
    EXPECT_EQ(Feed(radio, {0x08, 0x0D}), Acknowledged);
    EXPECT_EQ(Feed(radio, {0x08, 0x0E}), Acknowledged);
    EXPECT_EQ(Feed(radio, {0x08, 0x06}), Silence);
}

TEST_F(ServiceResponderTest, WideAndNarrowAreAcknowledged) {
    EXPECT_EQ(Feed(radio, {'F'}), Acknowledged);
    EXPECT_EQ(Feed(radio, {'G'}), Acknowledged);
}

TEST_F(ServiceResponderTest, ReadPointIsSixBytesThatBeginWithTheSelectedCodeAndItsValue) {
    EXPECT_EQ(Feed(radio, {0x07}), (Bytes{0, 0, 0, 0, 0, 0}));
    EXPECT_EQ(Feed(radio, {48, 0x0D}), Acknowledged);
    EXPECT_EQ(Feed(radio, {0x07}), (Bytes{48, 0x45, 0, 0, 0, 0}));
    EXPECT_EQ(Feed(radio, {18, 0x0D}), Acknowledged);
    EXPECT_EQ(Feed(radio, {18, 0x20, 0x99}), Acknowledged);
    EXPECT_EQ(Feed(radio, {0x07}), (Bytes{18, 0x99, 0, 0, 0, 0}));
}

TEST_F(ServiceResponderTest, EveryCodeIsSelectedSetAndStored) {
    for (const std::uint8_t code :
         {18,  48, 51,  49,  52,  50, 20, 96, 99, 97, 100, 98,  24,  101, 102, 103, 23,  36,  37, 38, 25, 106, 107,
          108, 26, 111, 112, 113, 29, 31, 53, 54, 55, 13,  117, 118, 119, 12,  114, 115, 116, 27, 28, 33, 35,  34}) {
        EXPECT_EQ(Feed(radio, {code, 0x0D}), Acknowledged) << "select " << int(code);
        EXPECT_EQ(Feed(radio, {code, 0x20, 0x06}), Acknowledged) << "set " << int(code);
        EXPECT_EQ(Feed(radio, {code, 0x0E}), Acknowledged) << "store " << int(code);
    }
}

TEST_F(ServiceResponderTest, ASetIsThreeBytesLongWhateverItsValue) {
    for (int value = 0; value <= 255; ++value) {
        ASSERT_EQ(Feed(radio, {48, 0x20, static_cast<std::uint8_t>(value)}), Acknowledged) << "value " << value;
        ASSERT_EQ(Feed(radio, {48, 0x0D, 0x07}), (Bytes{0x06, 48, static_cast<std::uint8_t>(value), 0, 0, 0, 0}));
    }
}

TEST_F(ServiceResponderTest, AMeasuredValueChangesByOneAReading) {
    for (const std::uint8_t code : {28, 33, 35, 34}) {
        const Bytes first = Feed(radio, {code, 0x0A});
        const Bytes second = Feed(radio, {code, 0x0A});
        ASSERT_EQ(first.size(), 1U) << int(code);
        ASSERT_EQ(second.size(), 1U) << int(code);
        EXPECT_EQ(second[0], first[0] + 1) << int(code);
    }
}

TEST_F(ServiceResponderTest, TheMeasuredValueGoesUpAndDownBetweenOneHundredAndOneHundredAndTwenty) {
    Bytes readings;
    for (int i = 0; i < 42; ++i) {
        readings = Joined({readings, Feed(radio, {28, 0x0A})});
    }
    ASSERT_EQ(readings.size(), 42U);
    EXPECT_EQ(readings[0], 100);
    EXPECT_EQ(readings[1], 101);
    EXPECT_EQ(readings[20], 120);
    EXPECT_EQ(readings[21], 119);
    EXPECT_EQ(readings[40], 100);
    EXPECT_EQ(readings[41], 101);
}

TEST_F(ServiceResponderTest, OnlyTheFourMeasuredItemsAreMeasured) {
    EXPECT_EQ(Feed(radio, {18, 0x0A}), Silence);
    EXPECT_EQ(Feed(radio, {29, 0x0A}), Silence);
    EXPECT_EQ(Feed(radio, {0x06}), Acknowledged);
}

TEST_F(ServiceResponderTest, BytesThatBeginNoCommandAreSkippedOneByOne) {
    EXPECT_EQ(Feed(radio, {0x00, 0x01, 0x03, 0x0E, 0x0F, 0x20, 0x7F, 0xFF, 0x06}), Acknowledged);
    EXPECT_EQ(Feed(radio, {48, 0x0B, 0x06}), Acknowledged) << "a code with an unknown second byte";
}

TEST_F(ServiceResponderTest, EndIsAcknowledgedAndLeavesTuningMode) {
    const auto reaction = radio.Take(0x45);
    ASSERT_TRUE(reaction);
    EXPECT_EQ(reaction->reply, Acknowledged);
    EXPECT_EQ(reaction->session, SessionEvent::Ended);
    EXPECT_FALSE(radio.Service().IsActive());
    EXPECT_EQ(Feed(radio, {0x06, 0x05}), Silence);
}

TEST_F(ServiceResponderTest, ABrokenCommandIsForgottenInSilenceAndTheSessionGoesOn) {
    EXPECT_EQ(Feed(radio, {48, 0x20}), Silence);
    EXPECT_FALSE(radio.LineSilent());
    EXPECT_EQ(Feed(radio, {0x06}), Acknowledged);
    EXPECT_EQ(Feed(radio, {48, 0x0D, 0x07}), (Bytes{0x06, 48, 0x45, 0, 0, 0, 0}));
}

TEST_F(ServiceResponderTest, ARestartLeavesTuningMode) {
    radio.Restart();
    EXPECT_FALSE(radio.Service().IsActive());
    EXPECT_EQ(Feed(radio, {0x06}), Silence);
}

TEST_F(ServiceResponderTest, EveryCommandIsNamed) {
    EXPECT_EQ(DescriptionOf(Text("TUNING ")), "Tuning entry");
    EXPECT_EQ(DescriptionOf({0x02}), "Identity request");
    EXPECT_EQ(DescriptionOf({0x06}), "Acknowledge");
    EXPECT_EQ(DescriptionOf({0x05}), "Read tuning data");
    EXPECT_EQ(DescriptionOf({0x10, 0x03}), "Set channel 3");
    EXPECT_EQ(DescriptionOf({0x11, 0x09}), "Set signalling 9");
    EXPECT_EQ(DescriptionOf({0x08, 0x0D}), "PTT on");
    EXPECT_EQ(DescriptionOf({0x08, 0x0E}), "PTT off");
    EXPECT_EQ(DescriptionOf({52, 0x0D}), "Select item 1 High'");
    EXPECT_EQ(DescriptionOf({0x07}), "Read point");
    EXPECT_EQ(DescriptionOf({13, 0x20, 200}), "Set item 9 Test to 200");
    EXPECT_EQ(DescriptionOf({12, 0x0E}), "Store item 10 Test");
    EXPECT_EQ(DescriptionOf({34, 0x0A}), "Read measurement of item 15 Test");
    EXPECT_EQ(DescriptionOf({'G'}), "Narrow");
    EXPECT_EQ(DescriptionOf({24, 0x20, 7}), "Set item 3 Narrow to 7");
    EXPECT_EQ(DescriptionOf({'F'}), "Wide");
    EXPECT_EQ(DescriptionOf({0x45}), "End");
}

} // namespace
} // namespace zelvor::test
