#include "PortBench.h"

#include <QProcess>
#include <QSerialPort>
#include <QTest>
#include <gtest/gtest.h>

#include "fakes/FakeSerialPort.h"
#include "platform/PortNumbering.h"
#include "platform/QtSerialPorts.h"
#ifdef Q_OS_UNIX
#include "PseudoTerminal.h"
#include "UserPorts.h"
#endif

namespace zelvor {

namespace {

class FakePortBench : public PortBench {
public:
    FakePortBench() { ports_.Missing(FakePortBench::MissingNumber()); }

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
    void PlugInAnother() override { ports_.Present(Number()); }
    void HoldElsewhere() override { ports_.InUse(Number()); }
    void ReleaseElsewhere() override { ports_.Present(Number()); }

private:
    FakeSerialPorts ports_;
};

/// Another program that holds a port.
class PortHolder {
public:
    void Hold(const QString& device) {
        process_.start(PORT_HOLDER, {device});
        ASSERT_TRUE(process_.waitForReadyRead(5000)) << "The other program did not get the port";
        ASSERT_EQ(process_.readLine().trimmed(), "open");
    }
    void Release() {
        process_.closeWriteChannel();
        ASSERT_TRUE(process_.waitForFinished(5000));
    }

private:
    QProcess process_;
};

#ifdef Q_OS_UNIX

class TerminalPortBench : public PortBench {
public:
    TerminalPortBench() {
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
    void HoldElsewhere() override { holder_.Hold(QString::fromStdString(terminal_->DevicePath())); }
    void ReleaseElsewhere() override { holder_.Release(); }

private:
    std::unique_ptr<PseudoTerminal> terminal_ = std::make_unique<PseudoTerminal>();
    UserPorts user_;
    QtSerialPorts ports_;
    PortHolder holder_;
    Bytes received_;
};

#endif

QStringList NullModem() {
    return qEnvironmentVariable("ZELVOR_NULL_MODEM").split(u',', Qt::SkipEmptyParts);
}

class NullModemBench : public PortBench {
public:
    NullModemBench(const QString& nearPort, const QString& farPort) : near_(nearPort), far_(farPort) {
#ifdef Q_OS_UNIX
        user_.Link("COM3", nearPort.toStdString());
        user_.Link("COM7", "/dev/no such device");
#endif
        far_.setStopBits(QSerialPort::TwoStop);
        EXPECT_TRUE(far_.open(QIODevice::ReadWrite)) << farPort.toStdString();
        far_.clear();
    }

#ifndef Q_OS_UNIX
    [[nodiscard]] int Number() const override {
        return NumberOfPortName(near_.toStdString());
    }
    [[nodiscard]] int MissingNumber() const override {
        int number = LastPortNumber;
        while (number > FirstPortNumber && !ports_.Describe(number).devicePath.empty()) {
            --number;
        }
        return number;
    }
#endif
    [[nodiscard]] std::chrono::milliseconds Transit() const override {
        return std::chrono::milliseconds(100);
    }

    SerialPorts& Ports() override {
        return ports_;
    }
    bool WaitFor(const std::function<bool()>& condition) override {
        return QTest::qWaitFor([&] { return condition(); }, 2000);
    }
    void Settle() override {
        QTest::qWait(static_cast<int>(Transit().count()));
    }
    void FarEndSends(const Bytes& bytes) override {
        far_.write(reinterpret_cast<const char*>(bytes.data()), static_cast<qint64>(bytes.size()));
        EXPECT_TRUE(far_.waitForBytesWritten(2000));
    }
    Bytes FarEndReceived() override {
        far_.waitForReadyRead(0);
        const QByteArray bytes = far_.readAll();
        received_.insert(received_.end(), bytes.begin(), bytes.end());
        return received_;
    }
    void Unplug() override {
        ADD_FAILURE() << "Nobody pulls the cable";
    }
    void PlugInAnother() override {
        ADD_FAILURE() << "Nobody plugs a cable in";
    }
    void HoldElsewhere() override {
        holder_.Hold(near_);
    }
    void ReleaseElsewhere() override {
        holder_.Release();
    }

private:
    QString near_;
#ifdef Q_OS_UNIX
    UserPorts user_;
#endif
    mutable QtSerialPorts ports_;
    QSerialPort far_;
    PortHolder holder_;
    Bytes received_;
};

} // namespace

std::unique_ptr<SerialPort> PortBench::OpenPort() {
    auto port = Ports().Make("MSComm1");
    port->SetNumber(Number());
    port->SetSettings(RadioPortSettings);
    port->SetBufferSizes(RadioInputBufferSize, RadioOutputBufferSize);
    port->SetBinaryInput();
    EXPECT_TRUE(port->Open());
    return port;
}

std::unique_ptr<PortBench> MakeFakePortBench() {
    return std::make_unique<FakePortBench>();
}

#ifdef Q_OS_UNIX
std::unique_ptr<PortBench> MakeTerminalPortBench() {
    return std::make_unique<TerminalPortBench>();
}
#endif

std::unique_ptr<PortBench> MakeNullModemBench() {
    return HasNullModem() ? std::make_unique<NullModemBench>(NullModem()[0], NullModem()[1]) : nullptr;
}

bool HasNullModem() {
    return NullModem().size() == 2;
}

} // namespace zelvor
