#include "PseudoTerminal.h"

#include <array>
#include <cstdlib>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>
#include <utility>

namespace zelvor {

PseudoTerminal::PseudoTerminal() : farEnd_(posix_openpt(O_RDWR | O_NOCTTY)) {
    EXPECT_GE(farEnd_, 0);
    EXPECT_EQ(grantpt(farEnd_), 0);
    EXPECT_EQ(unlockpt(farEnd_), 0);
    devicePath_ = ptsname(farEnd_);
    device_ = open(devicePath_.c_str(), O_RDWR | O_NOCTTY);
    EXPECT_GE(device_, 0);
    termios raw{};
    tcgetattr(device_, &raw);
    cfmakeraw(&raw);
    tcsetattr(device_, TCSANOW, &raw);
    fcntl(farEnd_, F_SETFL, O_NONBLOCK);
}

PseudoTerminal::~PseudoTerminal() {
    Unplug();
}

void PseudoTerminal::Write(const std::vector<std::uint8_t>& bytes) const {
    EXPECT_EQ(write(farEnd_, bytes.data(), bytes.size()), static_cast<ssize_t>(bytes.size()));
}

std::vector<std::uint8_t> PseudoTerminal::Read() const {
    std::array<std::uint8_t, 256> buffer{};
    const ssize_t count = read(farEnd_, buffer.data(), buffer.size());
    return count > 0 ? std::vector(buffer.begin(), buffer.begin() + count) : std::vector<std::uint8_t>();
}

termios PseudoTerminal::Settings() const {
    termios settings{};
    EXPECT_EQ(tcgetattr(device_, &settings), 0);
    return settings;
}

void PseudoTerminal::Unplug() {
    for (int* descriptor : {&device_, &farEnd_}) {
        if (const int open = std::exchange(*descriptor, -1); open >= 0) {
            close(open);
        }
    }
}

} // namespace zelvor
