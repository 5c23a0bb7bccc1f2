#include "link/PortProbe.h"

#include <gtest/gtest.h>

#include "link/ScriptedRadio.h"

namespace zelvor {
namespace {

class PortProbe : public testing::Test {
protected:
    FakeClock clock;
    FakeSerialPorts ports;
    std::unique_ptr<SerialPort> serialPort = ports.Make("MSComm1");
    FakeSerialPort& port = static_cast<FakeSerialPort&>(*serialPort);
};

TEST_F(PortProbe, OpensAtNineteenTwoHundredSendsAtiAndClosesAfterTwoHundredMilliseconds) {
    std::int64_t sentAt = -1;
    port.OnSend = [&](std::span<const std::uint8_t>) { sentAt = clock.TickCount(); };
    EXPECT_TRUE(ProbePort(port, clock, 4));
    const std::vector<std::string> expected{"number 4", "settings 19200,N,8,1", "read length 0",
                                            "open",     "send 41 54 49 31 0D",  "close"};
    EXPECT_EQ(port.Log(), expected);
    EXPECT_EQ(sentAt, 0);
    EXPECT_EQ(clock.TickCount(), 200);
    EXPECT_FALSE(port.IsOpen());
}

TEST_F(PortProbe, BlocksWithoutTheEventLoop) {
    bool handled = false;
    clock.At(100, [&] { handled = true; });
    EXPECT_TRUE(ProbePort(port, clock, 1));
    EXPECT_FALSE(handled);
    EXPECT_EQ(clock.Sleeps(), std::vector<int>{200});
    EXPECT_TRUE(clock.Waits().empty());
}

TEST_F(PortProbe, RefusesAMissingPortAtOnce) {
    ports.Missing(2);
    EXPECT_FALSE(ProbePort(port, clock, 2));
    EXPECT_EQ(clock.TickCount(), 0);
    EXPECT_TRUE(port.Sent().empty());
    EXPECT_FALSE(port.SentWhileClosed());
}

TEST_F(PortProbe, RefusesAPortThatAnotherProgramHolds) {
    ports.InUse(3);
    EXPECT_FALSE(ProbePort(port, clock, 3));
}

TEST_F(PortProbe, RefusesAPortThatAnotherDialogHoldsOpen) {
    const std::unique_ptr<SerialPort> other = ports.Make("MSComm1");
    other->SetNumber(5);
    ASSERT_TRUE(other->Open());
    EXPECT_FALSE(ProbePort(port, clock, 5));
    EXPECT_TRUE(other->IsOpen());
}

TEST_F(PortProbe, IsNotInfluencedByWhatComesBack) {
    for (const Bytes& reply : {Bytes{}, Bytes{'O', 'K', '\r'}, Bytes(300, 0xFF)}) {
        port.OnSend = [&](std::span<const std::uint8_t>) { port.Deliver(reply); };
        EXPECT_TRUE(ProbePort(port, clock, 1));
    }
}

TEST_F(PortProbe, GoesOnWithTheNextPortAfterARefusal) {
    ports.Missing(1);
    EXPECT_FALSE(ProbePort(port, clock, 1));
    EXPECT_TRUE(ProbePort(port, clock, 2));
}

} // namespace
} // namespace zelvor
