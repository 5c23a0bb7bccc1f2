#include <gtest/gtest.h>

#include "platform/PortNumbering.h"

namespace zelvor {
namespace {

using Devices = std::map<int, std::string>;

MachinePort BuiltIn(const std::string& name) {
    return {name, {"/dev/" + name, "Built-in " + name}, false};
}

MachinePort Usb(const std::string& name) {
    return {name, {"/dev/" + name, "Adapter " + name}, true};
}

Devices DevicesOf(const PortNumbers& numbers) {
    Devices devices;
    for (const auto& [number, description] : numbers) {
        devices[number] = description.devicePath;
    }
    return devices;
}

Devices DevicesOf(const PortNumbering& numbering) {
    Devices devices;
    for (int number = 1; number <= 20; ++number) {
        if (const PortDescription device = numbering.DeviceOf(number); !device.devicePath.empty()) {
            devices[number] = device.devicePath;
        }
    }
    return devices;
}

Devices Assign(const std::vector<PortLink>& links, const std::vector<MachinePort>& ports) {
    PortNumbering numbering;
    numbering.NumberAnew(links, ports);
    return DevicesOf(numbering);
}

TEST(PortNumbers, AMachineWithoutPortsHasNone) {
    EXPECT_EQ(Assign({}, {}), Devices{});
}

TEST(PortNumbers, OneCablePluggedInIsPort1WithNothingConfigured) {
    EXPECT_EQ(Assign({}, {BuiltIn("ttyS0"), Usb("ttyUSB0")}), (Devices{{1, "/dev/ttyUSB0"}, {2, "/dev/ttyS0"}}));
}

TEST(PortNumbers, UsbAdaptersComeFirstThenBuiltInPortsEachInNameOrder) {
    EXPECT_EQ(
        Assign({}, {BuiltIn("ttyS1"), Usb("ttyUSB1"), BuiltIn("ttyS0"), Usb("ttyACM0"), Usb("ttyUSB0")}),
        (Devices{{1, "/dev/ttyACM0"}, {2, "/dev/ttyUSB0"}, {3, "/dev/ttyUSB1"}, {4, "/dev/ttyS0"}, {5, "/dev/ttyS1"}}));
}

TEST(PortNumbers, NameOrderReadsDigitsAsNumbers) {
    EXPECT_EQ(Assign({}, {BuiltIn("ttyS10"), BuiltIn("ttyS9"), BuiltIn("ttyS2")}),
              (Devices{{1, "/dev/ttyS2"}, {2, "/dev/ttyS9"}, {3, "/dev/ttyS10"}}));
}

TEST(PortNumbers, ALinkWinsItsNumberAndTheOthersFillTheGaps) {
    EXPECT_EQ(Assign({{1, "/dev/pts/5"}, {3, "/dev/pts/6"}}, {Usb("ttyUSB0"), BuiltIn("ttyS0")}),
              (Devices{{1, "/dev/pts/5"}, {2, "/dev/ttyUSB0"}, {3, "/dev/pts/6"}, {4, "/dev/ttyS0"}}));
}

TEST(PortNumbers, ALinkedPortHasNoSecondNumber) {
    EXPECT_EQ(Assign({{2, "/dev/ttyUSB0"}}, {Usb("ttyUSB0"), BuiltIn("ttyS0")}),
              (Devices{{1, "/dev/ttyS0"}, {2, "/dev/ttyUSB0"}}));
}

TEST(PortNumbers, ALinkToNothingStillHoldsItsNumber) {
    EXPECT_EQ(Assign({{1, "/dev/unplugged"}}, {Usb("ttyUSB0")}), (Devices{{1, "/dev/unplugged"}, {2, "/dev/ttyUSB0"}}));
}

TEST(PortNumbers, ALinkedPortKeepsTheDescriptionOfTheMachine) {
    const std::vector<PortLink> links{{7, "/dev/ttyUSB0"}, {8, "/dev/pts/3"}};
    const std::vector<MachinePort> ports{Usb("ttyUSB0")};
    PortNumbering numbering;
    numbering.NumberAnew(links, ports);
    EXPECT_EQ(numbering.DeviceOf(7).description, "Adapter ttyUSB0");
    EXPECT_EQ(numbering.DeviceOf(8).description, "");
}

TEST(PortNumbers, EndAt20) {
    std::vector<MachinePort> ports;
    for (int port = 0; port < 25; ++port) {
        ports.push_back(BuiltIn("ttyS" + std::to_string(port)));
    }
    const Devices devices = Assign({}, ports);
    EXPECT_EQ(devices.size(), 20U);
    EXPECT_EQ(devices.at(20), "/dev/ttyS19");
}

MachinePort Cable(const std::string& name, const std::string& serialNumber, int product = 0x6001) {
    MachinePort port = Usb(name);
    port.identity = {.vendor = 0x0403, .product = product, .serialNumber = serialNumber};
    return port;
}

/// A machine whose ports and links come and go after they were numbered.
class KeptPortNumbers : public testing::Test {
protected:
    void Begin(std::vector<PortLink> links, const std::vector<MachinePort>& ports) {
        numbering.NumberAnew(links, ports);
    }
    Devices Then(const std::vector<PortLink>& links, const std::vector<MachinePort>& ports) {
        numbering.Follow(links, ports);
        return DevicesOf(numbering);
    }

    PortNumbering numbering;
};

TEST_F(KeptPortNumbers, ThatOfAPulledCableIsMissingAndFallsToNoOtherDevice) {
    Begin({}, {Usb("ttyUSB0"), BuiltIn("ttyS0")});
    EXPECT_EQ(Then({}, {BuiltIn("ttyS0")}), (Devices{{2, "/dev/ttyS0"}}));
    EXPECT_EQ(Then({}, {BuiltIn("ttyS0"), Usb("ttyUSB0")}), (Devices{{1, "/dev/ttyUSB0"}, {2, "/dev/ttyS0"}}));
}

TEST_F(KeptPortNumbers, ThatOfALinkThatGoesIsMissingAndFallsToNoOtherDevice) {
    Begin({{1, "/dev/pts/5"}}, {BuiltIn("ttyS0")});
    EXPECT_EQ(Then({}, {BuiltIn("ttyS0")}), (Devices{{2, "/dev/ttyS0"}}));
    EXPECT_EQ(Then({}, {BuiltIn("ttyS0"), Usb("ttyUSB0")}), (Devices{{2, "/dev/ttyS0"}, {3, "/dev/ttyUSB0"}}));
    EXPECT_EQ(Then({{1, "/dev/pts/8"}}, {BuiltIn("ttyS0")}), (Devices{{1, "/dev/pts/8"}, {2, "/dev/ttyS0"}}));
}

TEST_F(KeptPortNumbers, AreNotMovedByACableThatIsPluggedIn) {
    Begin({}, {BuiltIn("ttyS0"), BuiltIn("ttyS1")});
    EXPECT_EQ(Then({}, {BuiltIn("ttyS0"), BuiltIn("ttyS1"), Usb("ttyUSB0")}),
              (Devices{{1, "/dev/ttyS0"}, {2, "/dev/ttyS1"}, {3, "/dev/ttyUSB0"}}));
}

TEST_F(KeptPortNumbers, ANewCableGetsTheFirstThatNoDeviceHasHad) {
    Begin({{2, "/dev/pts/5"}}, {Usb("ttyUSB0"), BuiltIn("ttyS0")});
    EXPECT_EQ(Then({}, {Usb("ttyUSB7"), BuiltIn("ttyS0")}), (Devices{{3, "/dev/ttyS0"}, {4, "/dev/ttyUSB7"}}));
}

TEST_F(KeptPortNumbers, ACableInAnotherSocketIsKnownByItsSerialNumber) {
    Begin({}, {Cable("ttyUSB0", "A1"), BuiltIn("ttyS0")});
    EXPECT_EQ(Then({}, {BuiltIn("ttyS0")}), (Devices{{2, "/dev/ttyS0"}}));
    EXPECT_EQ(Then({}, {Cable("ttyUSB5", "A1"), BuiltIn("ttyS0")}), (Devices{{1, "/dev/ttyUSB5"}, {2, "/dev/ttyS0"}}));
}

TEST_F(KeptPortNumbers, ACableThatMovesWhileNobodyLooksIsKnownByItsSerialNumber) {
    Begin({}, {Cable("ttyUSB0", "A1"), Cable("ttyUSB1", "B2")});
    EXPECT_EQ(Then({}, {Cable("ttyUSB0", "B2"), Cable("ttyUSB1", "A1")}),
              (Devices{{1, "/dev/ttyUSB1"}, {2, "/dev/ttyUSB0"}}));
}

TEST_F(KeptPortNumbers, AnotherCableAtTheSamePathIsAnotherDevice) {
    Begin({}, {Cable("ttyUSB0", "A1")});
    EXPECT_EQ(Then({}, {Cable("ttyUSB0", "B2")}), (Devices{{2, "/dev/ttyUSB0"}}));
    EXPECT_EQ(Then({}, {Cable("ttyUSB0", "", 0x6015)}), (Devices{{3, "/dev/ttyUSB0"}}));
    EXPECT_EQ(Then({}, {Cable("ttyUSB0", "A1")}), (Devices{{1, "/dev/ttyUSB0"}}));
}

TEST_F(KeptPortNumbers, ASerialNumberThatTwoCablesHaveTellsNothing) {
    Begin({}, {Cable("ttyUSB0", "0001"), Cable("ttyUSB1", "0001")});
    EXPECT_EQ(Then({}, {Cable("ttyUSB1", "0001")}), (Devices{{2, "/dev/ttyUSB1"}}));
    EXPECT_EQ(Then({}, {Cable("ttyUSB1", "0001"), Cable("ttyUSB2", "0001")}),
              (Devices{{2, "/dev/ttyUSB1"}, {3, "/dev/ttyUSB2"}}));
}

TEST_F(KeptPortNumbers, ACableWithoutSerialNumberIsKnownByItsPathOnly) {
    Begin({}, {Cable("ttyUSB0", "")});
    EXPECT_EQ(Then({}, {Cable("ttyUSB1", "")}), (Devices{{2, "/dev/ttyUSB1"}}));
    EXPECT_EQ(Then({}, {Cable("ttyUSB0", "")}), (Devices{{1, "/dev/ttyUSB0"}}));
}

TEST_F(KeptPortNumbers, ACableThatTheSystemDoesNotKnowYetIsWaitedFor) {
    Begin({}, {Cable("ttyUSB0", "A1")});
    EXPECT_EQ(Then({}, {}), Devices{});
    EXPECT_EQ(Then({}, {Usb("ttyUSB0")}), Devices{});
    EXPECT_EQ(Then({}, {Cable("ttyUSB0", "A1")}), (Devices{{1, "/dev/ttyUSB0"}}));
}

TEST_F(KeptPortNumbers, ALinkTakesItsNumberAtOnce) {
    Begin({}, {BuiltIn("ttyS0")});
    EXPECT_EQ(Then({{1, "/dev/pts/5"}}, {BuiltIn("ttyS0")}), (Devices{{1, "/dev/pts/5"}, {2, "/dev/ttyS0"}}));
    EXPECT_EQ(Then({}, {BuiltIn("ttyS0")}), (Devices{{2, "/dev/ttyS0"}}));
}

TEST_F(KeptPortNumbers, ALinkIsASecondNumberForADeviceThatHasOne) {
    Begin({}, {Usb("ttyUSB0")});
    EXPECT_EQ(Then({{5, "/dev/ttyUSB0"}}, {Usb("ttyUSB0")}), (Devices{{1, "/dev/ttyUSB0"}, {5, "/dev/ttyUSB0"}}));
}

TEST_F(KeptPortNumbers, ADeviceWhoseLinkIsTakenAwayKeepsTheNumber) {
    Begin({{5, "/dev/ttyUSB0"}}, {Usb("ttyUSB0")});
    EXPECT_EQ(Then({}, {Usb("ttyUSB0")}), (Devices{{5, "/dev/ttyUSB0"}}));
}

TEST_F(KeptPortNumbers, AreForgottenWhenThePortsAreNumberedAnew) {
    Begin({}, {Usb("ttyUSB0"), BuiltIn("ttyS0")});
    EXPECT_EQ(Then({}, {BuiltIn("ttyS0")}), (Devices{{2, "/dev/ttyS0"}}));
    Begin({}, {BuiltIn("ttyS0")});
    EXPECT_EQ(Then({}, {BuiltIn("ttyS0")}), (Devices{{1, "/dev/ttyS0"}}));
}

TEST_F(KeptPortNumbers, RunOutAt20) {
    std::vector<MachinePort> ports;
    for (int port = 0; port < 20; ++port) {
        ports.push_back(BuiltIn("ttyS" + std::to_string(port)));
    }
    Begin({}, ports);
    ports.erase(ports.begin());
    ports.push_back(Usb("ttyUSB0"));
    const Devices devices = Then({}, ports);
    EXPECT_EQ(devices.size(), 19U);
    EXPECT_FALSE(devices.contains(1));
}

TEST(PortNumbers, ThoseOfNumberedSystemsAreTheirNames) {
    const std::vector<MachinePort> ports{{"COM3", {"\\\\.\\COM3", "Cable"}, true},
                                         {"COM12", {"\\\\.\\COM12", ""}, false},
                                         {"COM21", {"\\\\.\\COM21", ""}, false},
                                         {"CNCA0", {"\\\\.\\CNCA0", ""}, false}};
    EXPECT_EQ(DevicesOf(NumbersByName(ports)), (Devices{{3, "\\\\.\\COM3"}, {12, "\\\\.\\COM12"}}));
}

TEST(PortNumbers, TheDialInSideOfADeviceHasNone) {
    std::vector<std::string> names;
    for (const MachinePort& port : WithoutDialIn({{"cu.usbserial-1", {"/dev/cu.usbserial-1", ""}, true},
                                                  {"tty.usbserial-1", {"/dev/tty.usbserial-1", ""}, true},
                                                  {"tty.alone", {"/dev/tty.alone", ""}, true},
                                                  {"ttyUSB0", {"/dev/ttyUSB0", ""}, true}})) {
        names.push_back(port.name);
    }
    EXPECT_EQ(names, (std::vector<std::string>{"cu.usbserial-1", "tty.alone", "ttyUSB0"}));
}

TEST(PortNames, AreComAndANumberFrom1To20) {
    EXPECT_EQ(NumberOfPortName("COM1"), 1);
    EXPECT_EQ(NumberOfPortName("COM20"), 20);
    for (const char* name :
         {"", "COM", "COM0", "COM21", "COM01", "COM1 ", "COM-1", "com1", "XCOM1", "COM1.bak", "COM4294967297"}) {
        EXPECT_EQ(NumberOfPortName(name), 0) << name;
    }
}

} // namespace
} // namespace zelvor
