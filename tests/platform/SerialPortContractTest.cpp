#include <chrono>
#include <gtest/gtest.h>
#include <numeric>
#include <thread>

#include "PortBench.h"

namespace zelvor {
namespace {

struct Maker {
    const char* name;
    std::unique_ptr<PortBench> (*make)();
};

class SerialPortContract : public testing::TestWithParam<Maker> {
protected:
    void SetUp() override {
        if (!bench_) {
            GTEST_SKIP() << "ZELVOR_NULL_MODEM names no two ports";
        }
    }
    bool ArriveAtFarEnd(const Bytes& bytes) {
        return bench_->WaitFor([&] { return bench_->FarEndReceived() == bytes; });
    }
    /// Counts the events of data received.
    void Count(SerialPort& port) {
        port.OnReceive = [this](ReceiveReason reason) {
            reason == ReceiveReason::DataReceived ? ++events_ : ++errors_;
        };
    }

    std::unique_ptr<PortBench> bench_ = GetParam().make();
    int events_ = 0;
    int errors_ = 0;
};

std::vector<Maker> PortsToUnplug() {
#ifdef Q_OS_UNIX
    return {{"Fake", MakeFakePortBench}, {"Real", MakeTerminalPortBench}};
#else
    return {{"Fake", MakeFakePortBench}};
#endif
}

/// Where a cable is the only real thing, its absence is worth a line of every run.
std::vector<Maker> AllPorts() {
    std::vector<Maker> makers = PortsToUnplug();
    if (makers.size() == 1 || HasNullModem()) {
        makers.push_back({"NullModem", MakeNullModemBench});
    }
    return makers;
}

INSTANTIATE_TEST_SUITE_P(Ports, SerialPortContract, testing::ValuesIn(AllPorts()),
                         [](const auto& test) { return test.param.name; });

/// Of ports whose cable a test can pull out.
class UnpluggedPortContract : public SerialPortContract {};

INSTANTIATE_TEST_SUITE_P(Ports, UnpluggedPortContract, testing::ValuesIn(PortsToUnplug()),
                         [](const auto& test) { return test.param.name; });

TEST_P(SerialPortContract, OpensAndCloses) {
    const auto port = bench_->Ports().Make("MSComm1");
    port->SetNumber(bench_->Number());
    port->SetSettings(RadioPortSettings);
    EXPECT_FALSE(port->IsOpen());
    EXPECT_TRUE(port->Open());
    EXPECT_TRUE(port->IsOpen());
    EXPECT_TRUE(port->Open());
    port->Close();
    EXPECT_FALSE(port->IsOpen());
    port->Close();
    EXPECT_TRUE(port->Open());
}

TEST_P(SerialPortContract, DoesNotOpenAMissingPort) {
    const auto port = bench_->Ports().Make("MSComm1");
    port->SetNumber(bench_->MissingNumber());
    port->SetSettings(ProbePortSettings);
    EXPECT_FALSE(port->Open());
    EXPECT_FALSE(port->IsOpen());
    EXPECT_EQ(port->Failure().fault, PortFault::Missing);
    port->SetNumber(bench_->Number());
    EXPECT_TRUE(port->Open());
    EXPECT_EQ(port->Failure().fault, PortFault::None);
}

TEST_P(SerialPortContract, DoesNotOpenAPortThatAnotherProgramHolds) {
    bench_->HoldElsewhere();
    const auto port = bench_->Ports().Make("MSComm1");
    port->SetNumber(bench_->Number());
    port->SetSettings(RadioPortSettings);
    EXPECT_FALSE(port->Open());
    EXPECT_FALSE(port->IsOpen());
    EXPECT_EQ(port->Failure().fault, PortFault::InUse);
    EXPECT_EQ(port->Failure().devicePath, bench_->Ports().Describe(bench_->Number()).devicePath);
    bench_->ReleaseElsewhere();
    EXPECT_TRUE(port->Open());
    EXPECT_EQ(port->Failure().fault, PortFault::None);
}

TEST_P(SerialPortContract, LetsOnlyOneObjectHaveThePortAtATime) {
    const auto first = bench_->OpenPort();
    const auto second = bench_->Ports().Make("MSComm2");
    second->SetNumber(bench_->Number());
    second->SetSettings(RadioPortSettings);
    EXPECT_FALSE(second->Open());
    EXPECT_TRUE(first->IsOpen());
    first->Close();
    EXPECT_TRUE(second->Open());
}

TEST_P(SerialPortContract, SendsEveryByteValueInOrder) {
    const auto port = bench_->OpenPort();
    Bytes all(256);
    std::iota(all.begin(), all.end(), std::uint8_t{0});
    port->Send(all);
    EXPECT_TRUE(ArriveAtFarEnd(all));
}

TEST_P(SerialPortContract, SendsAtOnceWithoutTheEventLoop) {
    const auto port = bench_->OpenPort();
    port->Send(Bytes{0x02});
    port->Send(Bytes{0x50, 0x52});
    // No event loop runs here, so what was not sent by now would never come.
    const Bytes sent{0x02, 0x50, 0x52};
    for (int looks = 0; looks < 1000 && bench_->FarEndReceived() != sent; ++looks) {
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
    EXPECT_EQ(bench_->FarEndReceived(), sent);
}

TEST_P(SerialPortContract, SendsNothingWhileClosed) {
    const auto port = bench_->OpenPort();
    port->Close();
    port->Send(Bytes{1, 2, 3});
    ASSERT_TRUE(port->Open());
    port->Send(Bytes{4});
    EXPECT_TRUE(ArriveAtFarEnd({4}));
}

TEST_P(SerialPortContract, ReceivesEveryByteValueInOrder) {
    const auto port = bench_->OpenPort();
    Bytes all(256);
    std::iota(all.begin(), all.end(), std::uint8_t{0});
    bench_->FarEndSends(all);
    EXPECT_TRUE(bench_->WaitFor([&] { return port->WaitingBytes() == 256; }));
    EXPECT_EQ(port->Read(), all);
}

TEST_P(SerialPortContract, ReadsNothingWhereNothingWaits) {
    const auto port = bench_->OpenPort();
    EXPECT_EQ(port->WaitingBytes(), 0);
    EXPECT_EQ(port->Read(), Bytes{});
    port->Close();
    EXPECT_EQ(port->Read(), Bytes{});
}

TEST_P(SerialPortContract, ReadsAtMostTheReadLengthAndAllWithZero) {
    const auto port = bench_->OpenPort();
    bench_->FarEndSends({1, 2, 3, 4, 5, 6});
    ASSERT_TRUE(bench_->WaitFor([&] { return port->WaitingBytes() == 6; }));
    port->SetReadLength(2);
    EXPECT_EQ(port->Read(), (Bytes{1, 2}));
    EXPECT_EQ(port->Read(), (Bytes{3, 4}));
    port->SetReadLength(0);
    EXPECT_EQ(port->Read(), (Bytes{5, 6}));
    EXPECT_EQ(port->WaitingBytes(), 0);
}

TEST_P(SerialPortContract, CountsBytesThatCameWhileTheEventLoopStoodStill) {
    const auto port = bench_->OpenPort();
    bench_->FarEndSends({1, 2, 3});
    std::this_thread::sleep_for(bench_->Transit());
    EXPECT_EQ(port->WaitingBytes(), 3);
    EXPECT_EQ(port->Read(), (Bytes{1, 2, 3}));
}

TEST_P(SerialPortContract, RaisesTheEventWhenTheThresholdIsReached) {
    const auto port = bench_->OpenPort();
    Count(*port);
    port->SetReceiveThreshold(5);
    bench_->FarEndSends({1, 2, 3, 4});
    bench_->Settle();
    EXPECT_EQ(events_, 0);
    bench_->FarEndSends({5});
    EXPECT_TRUE(bench_->WaitFor([&] { return events_ == 1; }));
    EXPECT_EQ(port->WaitingBytes(), 5);
    EXPECT_EQ(errors_, 0);
}

TEST_P(SerialPortContract, RaisesNoEventWithThresholdZero) {
    const auto port = bench_->OpenPort();
    Count(*port);
    bench_->FarEndSends({1});
    bench_->Settle();
    port->SetReceiveThreshold(1);
    port->SetReceiveThreshold(0);
    bench_->FarEndSends({2});
    bench_->Settle();
    EXPECT_EQ(events_, 0);
    EXPECT_EQ(port->Read(), (Bytes{1, 2}));
}

TEST_P(SerialPortContract, RaisesNoEventForWhatAReadLeftUntilMoreArrives) {
    const auto port = bench_->OpenPort();
    Count(*port);
    port->SetReceiveThreshold(2);
    port->SetReadLength(1);
    bench_->FarEndSends({1, 2, 3, 4});
    ASSERT_TRUE(bench_->WaitFor([&] { return events_ == 1; }));
    EXPECT_EQ(port->Read(), (Bytes{1}));
    bench_->Settle();
    EXPECT_EQ(events_, 1);
    bench_->FarEndSends({5});
    EXPECT_TRUE(bench_->WaitFor([&] { return events_ == 2; }));
    EXPECT_EQ(port->WaitingBytes(), 4);
}

TEST_P(SerialPortContract, RaisesNoEventForALowerThresholdAlone) {
    const auto port = bench_->OpenPort();
    Count(*port);
    port->SetReceiveThreshold(68);
    bench_->FarEndSends({1, 2});
    ASSERT_TRUE(bench_->WaitFor([&] { return port->WaitingBytes() == 2; }));
    bench_->Settle();
    port->SetReceiveThreshold(1);
    bench_->Settle();
    EXPECT_EQ(events_, 0);
    bench_->FarEndSends({3});
    EXPECT_TRUE(bench_->WaitFor([&] { return events_ == 1; }));
}

TEST_P(SerialPortContract, DiscardsWhatWaitsOnClearInput) {
    const auto port = bench_->OpenPort();
    bench_->FarEndSends({1, 2, 3});
    ASSERT_TRUE(bench_->WaitFor([&] { return port->WaitingBytes() == 3; }));
    port->ClearInput();
    port->ClearOutput();
    EXPECT_EQ(port->WaitingBytes(), 0);
    bench_->FarEndSends({4});
    EXPECT_TRUE(bench_->WaitFor([&] { return port->WaitingBytes() == 1; }));
    EXPECT_EQ(port->Read(), Bytes{4});
}

TEST_P(SerialPortContract, DiscardsWhatWaitsOnClose) {
    const auto port = bench_->OpenPort();
    bench_->FarEndSends({1, 2, 3});
    ASSERT_TRUE(bench_->WaitFor([&] { return port->WaitingBytes() == 3; }));
    port->Close();
    EXPECT_EQ(port->WaitingBytes(), 0);
    ASSERT_TRUE(port->Open());
    EXPECT_EQ(port->Read(), Bytes{});
}

TEST_P(SerialPortContract, LetsTheHandlerSendAndRead) {
    const auto port = bench_->OpenPort();
    Bytes received;
    port->SetReceiveThreshold(1);
    port->OnReceive = [&](ReceiveReason) {
        const Bytes bytes = port->Read();
        received.insert(received.end(), bytes.begin(), bytes.end());
        port->Send(Bytes{0x06});
    };
    bench_->FarEndSends({7, 8});
    EXPECT_TRUE(bench_->WaitFor([&] { return received == Bytes{7, 8}; }));
    EXPECT_TRUE(ArriveAtFarEnd({0x06}));
}

TEST_P(SerialPortContract, LetsTheHandlerCloseThePort) {
    const auto port = bench_->OpenPort();
    port->SetReceiveThreshold(1);
    port->OnReceive = [&](ReceiveReason) { port->Close(); };
    bench_->FarEndSends({1});
    EXPECT_TRUE(bench_->WaitFor([&] { return !port->IsOpen(); }));
    bench_->Settle();
    EXPECT_TRUE(port->Open());
}

TEST_P(SerialPortContract, LetsTheHandlerDestroyThePort) {
    auto port = bench_->OpenPort();
    port->SetReceiveThreshold(1);
    port->OnReceive = [&](ReceiveReason) { port.reset(); };
    bench_->FarEndSends({1});
    EXPECT_TRUE(bench_->WaitFor([&] { return port == nullptr; }));
    bench_->Settle();
}

TEST_P(UnpluggedPortContract, TellsOnceThatTheDeviceVanishedAndIsClosedThen) {
    const auto port = bench_->OpenPort();
    Count(*port);
    port->SetReceiveThreshold(1);
    bench_->Unplug();
    EXPECT_TRUE(bench_->WaitFor([&] { return errors_ == 1; }));
    EXPECT_FALSE(port->IsOpen());
    bench_->Settle();
    EXPECT_EQ(errors_, 1);
    EXPECT_EQ(events_, 0);
    port->Send(Bytes{1});
    EXPECT_EQ(port->Read(), Bytes{});
    EXPECT_FALSE(port->Open());
    EXPECT_EQ(port->Failure().fault, PortFault::Missing);
}

TEST_P(UnpluggedPortContract, TellsThatTheDeviceVanishedAlsoWhereAnotherHasItsNumberAndOpensThatOne) {
    const auto port = bench_->OpenPort();
    Count(*port);
    port->SetReceiveThreshold(1);
    bench_->Unplug();
    bench_->PlugInAnother();
    EXPECT_TRUE(bench_->WaitFor([&] { return errors_ == 1; }));
    EXPECT_FALSE(port->IsOpen());
    ASSERT_TRUE(port->Open());
    bench_->FarEndSends({1, 2});
    EXPECT_TRUE(bench_->WaitFor([&] { return port->WaitingBytes() == 2; }));
    EXPECT_EQ(port->Read(), (Bytes{1, 2}));
    EXPECT_EQ(errors_, 1);
}

TEST_P(UnpluggedPortContract, LetsTheHandlerDestroyAPortWhoseDeviceVanished) {
    auto port = bench_->OpenPort();
    port->OnReceive = [&](ReceiveReason) { port.reset(); };
    bench_->Unplug();
    EXPECT_TRUE(bench_->WaitFor([&] { return port == nullptr; }));
    bench_->Settle();
}

TEST_P(SerialPortContract, KnowsADeviceBehindTheNumber) {
    EXPECT_NE(bench_->Ports().Describe(bench_->Number()).devicePath, "");
}

} // namespace
} // namespace zelvor
