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

Devices Assign(const std::vector<PortLink>& links, const std::vector<MachinePort>& ports) {
    return DevicesOf(NumbersByLinksAndOrder(links, ports));
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
    const PortNumbers numbers = NumbersByLinksAndOrder(links, ports);
    EXPECT_EQ(numbers.at(7).description, "Adapter ttyUSB0");
    EXPECT_EQ(numbers.at(8).description, "");
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

TEST(PortNumbers, ThoseOfNumberedSystemsAreTheirNames) {
    const std::vector<MachinePort> ports{{"COM3", {"\\\\.\\COM3", "Cable"}, true},
                                         {"COM12", {"\\\\.\\COM12", ""}, false},
                                         {"COM21", {"\\\\.\\COM21", ""}, false},
                                         {"CNCA0", {"\\\\.\\CNCA0", ""}, false}};
    EXPECT_EQ(DevicesOf(NumbersByName(ports)), (Devices{{3, "\\\\.\\COM3"}, {12, "\\\\.\\COM12"}}));
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
