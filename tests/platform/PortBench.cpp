#include "PortBench.h"

#include <QProcess>
#include <QTest>
#include <gtest/gtest.h>

#include "PseudoTerminal.h"
#include "UserPorts.h"
#include "fakes/FakeSerialPort.h"
#include "platform/QtSerialPorts.h"

namespace zelvor {

namespace {

class FakePortBench : public PortBench {
public:
    FakePortBench() { ports_.Missing(MissingNumber); }

    SerialPorts& Ports() override { return ports_; }
    bool WaitFor(const std::function<bool()>& condition) override { return condition(); }
    void Settle() override {}
    void FarEndSends(const Bytes& bytes) override {
        if (FakeSerialPort* port = ports_.Port("MSComm1")) {
            port->Deliver(bytes);
        }
    }
    Bytes FarEndReceived() override { return ports_.Record("MSComm1").sent; }
    void Unplug() override { ports_.Port("MSComm1")->Vanish(); }
    void PlugInAnother() override { ports_.Present(Number); }
    void HoldElsewhere() override { ports_.InUse(Number); }
    void ReleaseElsewhere() override { ports_.Present(Number); }

private:
    FakeSerialPorts ports_;
};

class RealPortBench : public PortBench {
public:
    RealPortBench() {
        user_.Link("COM3", terminal_->DevicePath());
        user_.Link("COM7", "/dev/no such device");
    }

    SerialPorts& Ports() override { return ports_; }
    bool WaitFor(const std::function<bool()>& condition) override {
        return QTest::qWaitFor([&] { return condition(); }, 2000);
    }
    void Settle() override { QTest::qWait(20); }
    void FarEndSends(const Bytes& bytes) override { terminal_->Write(bytes); }
    Bytes FarEndReceived() override {
        const Bytes bytes = terminal_->Read();
        received_.insert(received_.end(), bytes.begin(), bytes.end());
        return received_;
    }
    void Unplug() override {
        // The terminal's number may go to a test that runs beside this one.
        user_.Unlink("COM3");
        user_.Link("COM3", "/dev/no such device");
        terminal_->Unplug();
    }
    void PlugInAnother() override {
        terminal_ = std::make_unique<PseudoTerminal>();
        user_.Unlink("COM3");
        user_.Link("COM3", terminal_->DevicePath());
    }
    void HoldElsewhere() override {
        holder_.start(PORT_HOLDER, {QString::fromStdString(terminal_->DevicePath())});
        ASSERT_TRUE(holder_.waitForReadyRead(5000)) << "The other program did not get the port";
        ASSERT_EQ(holder_.readLine(), "open\n");
    }
    void ReleaseElsewhere() override {
        holder_.closeWriteChannel();
        ASSERT_TRUE(holder_.waitForFinished(5000));
    }

private:
    std::unique_ptr<PseudoTerminal> terminal_ = std::make_unique<PseudoTerminal>();
    UserPorts user_;
    QtSerialPorts ports_;
    QProcess holder_;
    Bytes received_;
};

} // namespace

std::unique_ptr<SerialPort> PortBench::OpenPort() {
    auto port = Ports().Make("MSComm1");
    port->SetNumber(Number);
    port->SetSettings(RadioPortSettings);
    port->SetBufferSizes(RadioInputBufferSize, RadioOutputBufferSize);
    port->SetBinaryInput();
    EXPECT_TRUE(port->Open());
    return port;
}

std::unique_ptr<PortBench> MakeFakePortBench() {
    return std::make_unique<FakePortBench>();
}

std::unique_ptr<PortBench> MakeRealPortBench() {
    return std::make_unique<RealPortBench>();
}

} // namespace zelvor
