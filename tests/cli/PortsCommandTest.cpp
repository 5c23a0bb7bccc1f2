#include "cli/PortsCommand.h"

#include <gtest/gtest.h>

#include <sstream>

#include "platform/SerialPort.h"

namespace zelvor::cli {
namespace {

class TwoPorts : public SerialPorts {
public:
    std::unique_ptr<SerialPort> Make(std::string_view /*objectName*/) override { return nullptr; }
    PortDescription Describe(int number) override {
        if (number == 1) {
            return {"/dev/ttyUSB0", "FT232R\nUSB UART"};
        }
        return number == 20 ? PortDescription{"/dev/ttyS0", ""} : PortDescription{};
    }
    void NumberAnew() override {}
};

TEST(PortsCommand, ListsAllNumbersWithDeviceAndDescription) {
    TwoPorts ports;
    std::ostringstream out;
    std::ostringstream err;
    EXPECT_EQ(ListPorts(ports, {out, err, Language::English}), ExitStatus::Done);
    EXPECT_EQ(out.str(),
              "1\t/dev/ttyUSB0\tFT232R␊USB UART\n2\n3\n4\n5\n6\n7\n8\n9\n10\n11\n12\n13\n14\n15\n16\n17\n18\n19\n"
              "20\t/dev/ttyS0\n");
    EXPECT_EQ(err.str(), "");
}

} // namespace
} // namespace zelvor::cli
