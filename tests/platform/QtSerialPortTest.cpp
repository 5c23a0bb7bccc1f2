#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <atomic>
#include <grp.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include "PseudoTerminal.h"
#include "UserPorts.h"
#include "platform/PortAccess.h"
#include "platform/QtSerialPort.h"
#include "platform/QtSerialPorts.h"

namespace zelvor {
namespace {

class QtSerialPortsOfTheUser : public testing::Test {
protected:
    termios SettingsAfterOpening(std::string_view settings) {
        user_.Link("COM3", terminal_.DevicePath());
        const auto port = ports_.Make("MSComm1");
        port->SetNumber(3);
        port->SetSettings(settings);
        EXPECT_TRUE(port->Open());
        return terminal_.Settings();
    }

    PseudoTerminal terminal_;
    UserPorts user_;
    QtSerialPorts ports_;
};

TEST_F(QtSerialPortsOfTheUser, OpenForRadioWorkAt9600BaudWith8DataBitsAnd2StopBits) {
    const termios settings = SettingsAfterOpening("9600,N,8,2");
    EXPECT_EQ(cfgetospeed(&settings), static_cast<speed_t>(B9600));
    EXPECT_EQ(cfgetispeed(&settings), static_cast<speed_t>(B9600));
    EXPECT_EQ(settings.c_cflag & CSIZE, static_cast<tcflag_t>(CS8));
    EXPECT_NE(settings.c_cflag & CSTOPB, 0U);
    EXPECT_EQ(settings.c_cflag & PARENB, 0U);
}

TEST_F(QtSerialPortsOfTheUser, OpenForTheProbeAt19200BaudWith8DataBitsAnd1StopBit) {
    const termios settings = SettingsAfterOpening("19200,N,8,1");
    EXPECT_EQ(cfgetospeed(&settings), static_cast<speed_t>(B19200));
    EXPECT_EQ(settings.c_cflag & CSIZE, static_cast<tcflag_t>(CS8));
    EXPECT_EQ(settings.c_cflag & CSTOPB, 0U);
    EXPECT_EQ(settings.c_cflag & PARENB, 0U);
}

TEST_F(QtSerialPortsOfTheUser, ShowTheDeviceThatALinkPointsTo) {
    user_.Link("COM20", terminal_.DevicePath());
    user_.Link("COM19", "/dev/pulled out");
    user_.Link("COM21", "/dev/null");
    user_.Link("backup of COM18", "/dev/null");
    EXPECT_EQ(ports_.Describe(20).devicePath, terminal_.DevicePath());
    EXPECT_EQ(ports_.Describe(19).devicePath, "/dev/pulled out");
    EXPECT_EQ(ports_.Describe(21).devicePath, "");
    EXPECT_EQ(ports_.Describe(0).devicePath, "");
}

TEST_F(QtSerialPortsOfTheUser, FollowALinkThatIsMadeWhileTheProgramRuns) {
    const auto port = ports_.Make("MSComm1");
    user_.Link("COM20", "/dev/pulled out");
    port->SetNumber(20);
    port->SetSettings(RadioPortSettings);
    EXPECT_FALSE(port->Open());
    UserPorts anew;
    QFile::remove(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
                  QStringLiteral("/Zelvor/ports/COM20"));
    anew.Link("COM20", terminal_.DevicePath());
    EXPECT_TRUE(port->Open());
}

TEST_F(QtSerialPortsOfTheUser, TellThatADeviceIsNoSerialPort) {
    user_.Link("COM3", "/dev/null");
    const auto port = ports_.Make("MSComm1");
    port->SetNumber(3);
    port->SetSettings(RadioPortSettings);
    EXPECT_FALSE(port->Open());
    EXPECT_EQ(port->Failure().fault, PortFault::Unusable);
    EXPECT_EQ(port->Failure().devicePath, "/dev/null");
}

/// A file in place of a device, as an ordinary user finds it.
class PortAccess : public testing::Test {
protected:
    void SetUp() override {
        if (geteuid() != 0) {
            GTEST_SKIP() << "only root can make what others may not open";
        }
        ASSERT_EQ(chmod(directory_.path().toLocal8Bit(), 0755), 0);
        QFile file(QString::fromStdString(path_));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    }
    void ExpectForAnotherUser(PortFault fault, const std::string& group) const {
        constexpr uid_t nobody = 65534;
        const pid_t child = fork();
        if (child == 0) {
            const bool changed = setgroups(0, nullptr) == 0 && setgid(nobody) == 0 && setuid(nobody) == 0;
            const PortFailure failure = AccessFailure(path_);
            _exit(changed && failure.fault == fault && failure.group == group ? 0 : 1);
        }
        int status = -1;
        ASSERT_EQ(waitpid(child, &status, 0), child);
        EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0);
    }

    QTemporaryDir directory_;
    std::string path_ = directory_.filePath("tty").toStdString();
};

TEST_F(PortAccess, OfAGroupIsRefusedToOthersAndNamesTheGroup) {
    constexpr gid_t tty = 5;
    ASSERT_EQ(chown(path_.c_str(), 0, tty), 0);
    ASSERT_EQ(chmod(path_.c_str(), 0660), 0);
    ExpectForAnotherUser(PortFault::NotPermitted, getgrgid(tty)->gr_name);
}

TEST_F(PortAccess, OfRootAloneIsRefusedToOthersWithoutARemedy) {
    ASSERT_EQ(chmod(path_.c_str(), 0600), 0);
    ExpectForAnotherUser(PortFault::NotPermitted, "");
}

TEST_F(PortAccess, OfEverybodyIsNotRefused) {
    ASSERT_EQ(chmod(path_.c_str(), 0666), 0);
    ExpectForAnotherUser(PortFault::None, "");
}

TEST_F(PortAccess, OfAFileThatIsNotThereIsMissing) {
    ASSERT_TRUE(QFile::remove(QString::fromStdString(path_)));
    ExpectForAnotherUser(PortFault::Missing, "");
}

/// One device, under a name of its own.
class NamedDevice : public SerialPorts {
public:
    explicit NamedDevice(std::string path) : path_(std::move(path)) {}
    std::unique_ptr<SerialPort> Make(std::string_view objectName) override {
        return std::make_unique<QtSerialPort>(*this, objectName);
    }
    PortDescription Describe(int /*number*/) override { return {path_, {}}; }
    void NumberAnew() override {}

private:
    std::string path_;
};

TEST(QtSerialPort, NoticesThatItsDeviceIsGoneWhereAnotherHasTakenItsName) {
    const QTemporaryDir directory;
    const QString name = directory.filePath("tty");
    PseudoTerminal terminal;
    const PseudoTerminal another;
    ASSERT_TRUE(QFile::link(QString::fromStdString(terminal.DevicePath()), name));
    NamedDevice ports(name.toStdString());
    const auto port = ports.Make("MSComm1");
    port->SetSettings(RadioPortSettings);
    ASSERT_TRUE(port->Open());
    ASSERT_TRUE(QFile::remove(name));
    ASSERT_TRUE(QFile::link(QString::fromStdString(another.DevicePath()), name));
    terminal.Unplug();
    EXPECT_TRUE(QTest::qWaitFor([&] { return !port->IsOpen(); }, 2000));
}

QStringList complaints;

TEST(QtSerialPort, IsAskedForBytesInTheMomentItsDeviceGoesWithoutAComplaint) {
    PseudoTerminal terminal;
    NamedDevice ports(terminal.DevicePath());
    const auto port = ports.Make("MSComm1");
    port->SetSettings(RadioPortSettings);
    ASSERT_TRUE(port->Open());
    complaints.clear();
    const auto usualHandler = qInstallMessageHandler(
        [](QtMsgType, const QMessageLogContext&, const QString& text) { complaints.append(text); });
    terminal.Unplug();
    EXPECT_EQ(port->WaitingBytes(), 0);
    EXPECT_TRUE(port->Read().empty());
    EXPECT_TRUE(QTest::qWaitFor([&] { return !port->IsOpen(); }, 2000));
    qInstallMessageHandler(usualHandler);
    EXPECT_EQ(complaints, QStringList());
}

/// A machine with a cable and a built-in port, numbered with both in their places.
class QtSerialPortsOfAMachine : public testing::Test {
protected:
    void SetUp() override {
        ports_.BeginNumbering();
        ASSERT_TRUE(QTest::qWaitFor([&] { return timesAsked_ == 1; }, 2000));
    }
    /// Opens port 1 as an exchange with the radio does.
    bool Open() {
        port_->SetNumber(1);
        port_->SetSettings(RadioPortSettings);
        return port_->Open();
    }
    void PullCable() {
        machine_.erase(machine_.begin());
        cable_.Unplug();
    }
    void WaitUntilAskedAgain() { QTest::qWait(600); }

    PseudoTerminal cable_;
    PseudoTerminal builtIn_;
    std::vector<MachinePort> machine_{{"ttyUSB0", {cable_.DevicePath(), "Cable"}, true},
                                      {"ttyS0", {builtIn_.DevicePath(), ""}, false}};
    std::atomic<int> timesAsked_ = 0;
    UserPorts user_;
    QtSerialPorts ports_{[this] {
        std::vector<MachinePort> found = machine_;
        ++timesAsked_;
        return found;
    }};
    std::unique_ptr<SerialPort> port_ = ports_.Make("MSComm1");
};

TEST_F(QtSerialPortsOfAMachine, SendNothingToAnotherDeviceOnceTheCableIsPulled) {
    ASSERT_TRUE(Open());
    PullCable();
    ASSERT_TRUE(QTest::qWaitFor([&] { return !port_->IsOpen(); }, 2000));
    WaitUntilAskedAgain();
    EXPECT_FALSE(Open());
    EXPECT_EQ(port_->Failure().fault, PortFault::Missing);
    port_->Send(std::vector<std::uint8_t>{0x45});
    EXPECT_EQ(builtIn_.Read(), std::vector<std::uint8_t>{});
    EXPECT_EQ(ports_.Describe(2).devicePath, builtIn_.DevicePath());
}

TEST_F(QtSerialPortsOfAMachine, OpenNoOtherDeviceWhereTheCableWasPulledBeforeAnythingWasAsked) {
    PullCable();
    WaitUntilAskedAgain();
    EXPECT_FALSE(Open());
    EXPECT_EQ(ports_.Describe(1).devicePath, "");
}

TEST_F(QtSerialPortsOfAMachine, OpenNoOtherDeviceOnceALinkIsGone) {
    const PseudoTerminal radio;
    user_.Link("COM1", radio.DevicePath());
    ASSERT_TRUE(Open());
    port_->Close();
    user_.Unlink("COM1");
    EXPECT_FALSE(Open());
    user_.Link("COM1", radio.DevicePath());
    EXPECT_TRUE(Open());
}

TEST_F(QtSerialPortsOfAMachine, OpenNoOtherDeviceWhereALinkWasGoneBeforeAnythingWasAsked) {
    const PseudoTerminal radio;
    user_.Link("COM1", radio.DevicePath());
    QtSerialPorts laterPorts([this] { return machine_; });
    laterPorts.BeginNumbering();
    user_.Unlink("COM1");
    EXPECT_EQ(laterPorts.Describe(1).devicePath, "");
    EXPECT_EQ(laterPorts.Describe(2).devicePath, cable_.DevicePath());
}

TEST_F(QtSerialPortsOfAMachine, FindTheCableAgainWhenItIsBack) {
    const MachinePort cable = machine_.front();
    machine_.erase(machine_.begin());
    WaitUntilAskedAgain();
    EXPECT_FALSE(Open());
    machine_.push_back(cable);
    WaitUntilAskedAgain();
    EXPECT_TRUE(Open());
    port_->Send(std::vector<std::uint8_t>{0x02});
    EXPECT_EQ(cable_.Read(), std::vector<std::uint8_t>{0x02});
}

TEST_F(QtSerialPortsOfAMachine, NumberAnewWhatThereIs) {
    PullCable();
    ports_.NumberAnew();
    EXPECT_EQ(ports_.Describe(1).devicePath, builtIn_.DevicePath());
    EXPECT_EQ(ports_.Describe(2).devicePath, "");
}

TEST_F(QtSerialPortsOfTheUser, AnOpenPortIsStaleWhereItsNumberStandsForAnotherDevice) {
    user_.Link("COM3", terminal_.DevicePath());
    const auto port = ports_.Make("MSComm1");
    port->SetNumber(3);
    port->SetSettings(RadioPortSettings);
    EXPECT_FALSE(port->IsStale());
    ASSERT_TRUE(port->Open());
    EXPECT_FALSE(port->IsStale());
    user_.Unlink("COM3");
    const PseudoTerminal other;
    user_.Link("COM3", other.DevicePath());
    EXPECT_TRUE(port->IsStale());
    port->Close();
    EXPECT_FALSE(port->IsStale());
    ASSERT_TRUE(port->Open());
    EXPECT_FALSE(port->IsStale());
}

} // namespace
} // namespace zelvor
