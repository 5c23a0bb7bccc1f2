#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include "fakes/FakeSerialPort.h"

namespace zelvor {
namespace {

using Bytes = std::vector<std::uint8_t>;

TEST(FakeSerialPort, LogsWhatItIsAskedInWords) {
    FakeSerialPorts ports;
    const auto port = ports.Make("MSComm1");
    port->SetNumber(1);
    port->SetSettings(RadioPortSettings);
    port->SetBufferSizes(1024, 512);
    port->SetBinaryInput();
    ASSERT_TRUE(port->Open());
    port->ClearInput();
    port->ClearOutput();
    port->SetReceiveThreshold(68);
    port->SetReadLength(8);
    port->Send(Bytes{0x50, 0x52, 0x0A});
    port->Close();
    EXPECT_EQ(ports.Port("MSComm1")->Log(),
              (std::vector<std::string>{"number 1", "settings 9600,N,8,2", "buffers 1024 512", "binary", "open",
                                        "clear input", "clear output", "threshold 68", "read length 8", "send 50 52 0A",
                                        "close"}));
    EXPECT_EQ(ports.Port("MSComm1")->Sent(), (Bytes{0x50, 0x52, 0x0A}));
}

TEST(FakeSerialPort, KeepsItsRecordAfterItIsGone) {
    FakeSerialPorts ports;
    auto port = ports.Make("MSComm1");
    port->SetNumber(4);
    ports.Missing(4);
    EXPECT_FALSE(port->Open());
    port.reset();
    EXPECT_EQ(ports.Port("MSComm1"), nullptr);
    EXPECT_EQ(ports.Record("MSComm1").log, (std::vector<std::string>{"number 4", "open failed"}));
    EXPECT_EQ(ports.Record("another").log, std::vector<std::string>{});
}

TEST(FakeSerialPort, RemembersThatSomethingWasSentWhileClosed) {
    FakeSerialPorts ports;
    const auto port = ports.Make("MSComm1");
    EXPECT_FALSE(ports.Port("MSComm1")->SentWhileClosed());
    port->Send(Bytes{1});
    EXPECT_TRUE(ports.Port("MSComm1")->SentWhileClosed());
    EXPECT_EQ(ports.Port("MSComm1")->Sent(), Bytes{});
}

TEST(FakeSerialPort, ShowsWhatIsSentToTheFarEnd) {
    FakeSerialPorts ports;
    Bytes seen;
    ports.OnMake = [&](FakeSerialPort& made) {
        made.OnSend = [&](std::span<const std::uint8_t> bytes) {
            seen.assign(bytes.begin(), bytes.end());
            made.Deliver({0x06});
        };
    };
    const auto port = ports.Make("MSComm1");
    ASSERT_TRUE(port->Open());
    port->Send(Bytes{0x02, 0x50});
    EXPECT_EQ(seen, (Bytes{0x02, 0x50}));
    EXPECT_EQ(port->Read(), Bytes{0x06});
}

TEST(FakeSerialPort, FailsWhereAnOpenPortIsSetUpAnew) {
    FakeSerialPorts ports;
    const auto port = ports.Make("MSComm1");
    ASSERT_TRUE(port->Open());
    EXPECT_NONFATAL_FAILURE(port->SetNumber(2), "The number of the open port MSComm1");
    EXPECT_NONFATAL_FAILURE(port->SetSettings(ProbePortSettings), "The settings of the open port MSComm1");
    port->Close();
}

TEST(FakeSerialPorts, AreAllThereUnlessToldOtherwise) {
    FakeSerialPorts ports;
    EXPECT_EQ(ports.Describe(1).devicePath, "/dev/fake1");
    EXPECT_EQ(ports.Describe(20).description, "Fake port 20");
    ports.SetDescription(2, {"/dev/ttyUSB0", "Cable"});
    EXPECT_EQ(ports.Describe(2).devicePath, "/dev/ttyUSB0");
    ports.AllMissing();
    EXPECT_EQ(ports.Describe(1).devicePath, "");
    EXPECT_EQ(ports.Describe(2).devicePath, "");
    EXPECT_EQ(ports.Describe(20).devicePath, "");
    ports.Present(2);
    EXPECT_EQ(ports.Describe(2).description, "Cable");
}

} // namespace
} // namespace zelvor
