#include <gtest/gtest.h>

#include "PseudoTerminal.h"
#include "UserPorts.h"
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

} // namespace
} // namespace zelvor
