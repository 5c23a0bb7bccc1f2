// What every exchange with a radio asks of its port.

#include "link/RadioPort.h"

#include <gtest/gtest.h>

#include "fakes/FakeClock.h"
#include "fakes/FakeMessageBoxes.h"
#include "fakes/FakeSerialPort.h"
#include "support/RadioTesting.h"

namespace zelvor {
namespace {

class RadioPortTest : public testing::Test {
protected:
    [[nodiscard]] FakeSerialPort& Fake() { return static_cast<FakeSerialPort&>(*serialPort); }

    LinkState link;
    FakeSerialPorts ports;
    FakeMessageBoxes messages;
    std::unique_ptr<SerialPort> serialPort = ports.Make("MSComm1");
    RadioPort port{link, *serialPort};
};

TEST(LinkState, StartsAtTheFirstPortWithNothingSent) {
    const LinkState link;
    EXPECT_EQ(link.CommPortNumber, 1);
    EXPECT_EQ(link.SentState, 55);
}

TEST_F(RadioPortTest, SetsUpThePortOfTheLinkAsTheRadioWantsIt) {
    link.CommPortNumber = 7;
    EXPECT_TRUE(port.SetUp());
    EXPECT_TRUE(port.IsOpen());
    const std::vector<std::string> expected{"buffers 1024 512", "number 7",    "settings 9600,N,8,2", "open",
                                            "binary",           "clear input", "clear output"};
    EXPECT_EQ(Fake().Log(), expected);
}

TEST_F(RadioPortTest, APortThatIsMissingIsToldAndStaysClosed) {
    ports.Missing(1);
    EXPECT_FALSE(port.SetUp());
    EXPECT_FALSE(port.IsOpen());
}

TEST_F(RadioPortTest, ACommandIsKeptInTheTransmitBuffer) {
    ASSERT_TRUE(port.Open());
    port.Send({0x10, 0x0F});
    EXPECT_EQ(Hex(link.TxBuffer), "10 0F");
    EXPECT_EQ(Fake().Sent(), (std::vector<std::uint8_t>{0x10, 0x0F}));
}

TEST_F(RadioPortTest, ReadsNoMoreThanItIsAskedFor) {
    ASSERT_TRUE(port.Open());
    Fake().Deliver({1, 2, 3});
    EXPECT_EQ(port.Read(2), (std::vector<std::uint8_t>{1, 2}));
    EXPECT_EQ(port.WaitingBytes(), 1);
    port.Clear();
    EXPECT_EQ(port.WaitingBytes(), 0);
}

TEST_F(RadioPortTest, OnlyTheAcknowledgeByteAcknowledges) {
    ASSERT_TRUE(port.Open());
    EXPECT_FALSE(port.ReadsAcknowledge());
    Fake().Deliver({0x06, 0x15});
    EXPECT_TRUE(port.ReadsAcknowledge());
    EXPECT_FALSE(port.ReadsAcknowledge());
}

TEST_F(RadioPortTest, RetryLeavesALivingPortOpen) {
    ASSERT_TRUE(port.Open());
    messages.Expect(ConnectionPrompt(), MessageAnswer::Retry);
    EXPECT_TRUE(port.AsksToRetry(messages, Language::English));
    EXPECT_TRUE(port.IsOpen());
}

TEST_F(RadioPortTest, RetryLooksAnewForAPortThatWasGone) {
    ASSERT_TRUE(port.Open());
    Fake().Vanish();
    ports.Present(1);
    messages.Expect(ConnectionPrompt(), [this] {
        EXPECT_TRUE(port.IsOpen());
        return MessageAnswer::Retry;
    });
    EXPECT_TRUE(port.AsksToRetry(messages, Language::English));
    EXPECT_FALSE(port.IsOpen());
}

TEST_F(RadioPortTest, CancelLeavesThePortOpenForTheLastCommand) {
    messages.Expect(ConnectionPrompt(), MessageAnswer::Cancel);
    EXPECT_FALSE(port.AsksToRetry(messages, Language::English));
    EXPECT_TRUE(port.IsOpen());
}

TEST_F(RadioPortTest, RetryLooksAnewForAPortWhoseNumberIsAnotherDevicesByNow) {
    ASSERT_TRUE(port.Open());
    messages.Expect(ConnectionPrompt(), [this] {
        Fake().BecomeStale(); // the cable is plugged in again
        return MessageAnswer::Retry;
    });
    EXPECT_TRUE(port.AsksToRetry(messages, Language::English));
    EXPECT_FALSE(port.IsOpen());
}

} // namespace
} // namespace zelvor
