#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <gtest/gtest.h>

#include "PseudoTerminal.h"
#include "UserPorts.h"
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

/// One device, under a name of its own.
class NamedDevice : public SerialPorts {
public:
    explicit NamedDevice(std::string path) : path_(std::move(path)) {}
    std::unique_ptr<SerialPort> Make(std::string_view objectName) override {
        return std::make_unique<QtSerialPort>(*this, objectName);
    }
    PortDescription Describe(int) override { return {path_, {}}; }

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
