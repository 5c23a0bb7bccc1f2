#include "simulator/program/PseudoTerminal.h"

#include <array>
#include <cstdlib>
#include <utility>

#include <fcntl.h>
#include <termios.h>
#include <unistd.h>

namespace zelvor {
namespace {

int BaudOf(speed_t speed) {
    constexpr std::array<std::pair<speed_t, int>, 11> Rates{{
        {B300, 300},
        {B600, 600},
        {B1200, 1200},
        {B2400, 2400},
        {B4800, 4800},
        {B9600, 9600},
        {B19200, 19200},
        {B38400, 38400},
        {B57600, 57600},
        {B115200, 115200},
        {B230400, 230400},
    }};
    for (const auto& [code, baud] : Rates) {
        if (code == speed) {
            return baud;
        }
    }
    return 0;
}

int DataBitsOf(tcflag_t flags) {
    switch (flags & CSIZE) {
    case CS5:
        return 5;
    case CS6:
        return 6;
    case CS7:
        return 7;
    default:
        return 8;
    }
}

char ParityOf(tcflag_t flags) {
    if ((flags & PARENB) == 0) {
        return 'N';
    }
    return (flags & PARODD) == 0 ? 'E' : 'O';
}

void CloseDescriptor(int& descriptor) {
    if (descriptor >= 0) {
        ::close(descriptor);
    }
    descriptor = -1;
}

} // namespace

std::optional<PseudoTerminal> PseudoTerminal::Open() {
    PseudoTerminal terminal;
    terminal.master_ = ::posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC | O_NONBLOCK);
    std::array<char, 128> name{};
    if (terminal.master_ < 0 || ::grantpt(terminal.master_) != 0 || ::unlockpt(terminal.master_) != 0 ||
        ::ptsname_r(terminal.master_, name.data(), name.size()) != 0) {
        return std::nullopt;
    }
    terminal.portPath_ = name.data();
    terminal.port_ = ::open(name.data(), O_RDWR | O_NOCTTY | O_CLOEXEC);
    termios settings{};
    if (terminal.port_ < 0 || ::tcgetattr(terminal.port_, &settings) != 0) {
        return std::nullopt;
    }
    ::cfmakeraw(&settings);
    if (::tcsetattr(terminal.port_, TCSANOW, &settings) != 0) {
        return std::nullopt;
    }
    return terminal;
}

PseudoTerminal::PseudoTerminal(PseudoTerminal&& other) noexcept
    : master_(std::exchange(other.master_, -1)), port_(std::exchange(other.port_, -1)),
      portPath_(std::move(other.portPath_)) {}

PseudoTerminal& PseudoTerminal::operator=(PseudoTerminal&& other) noexcept {
    std::swap(master_, other.master_);
    std::swap(port_, other.port_);
    std::swap(portPath_, other.portPath_);
    return *this;
}

PseudoTerminal::~PseudoTerminal() {
    CloseDescriptor(port_);
    CloseDescriptor(master_);
}

std::size_t PseudoTerminal::Read(std::span<std::uint8_t> buffer) {
    const ssize_t count = ::read(master_, buffer.data(), buffer.size());
    return count > 0 ? static_cast<std::size_t>(count) : 0;
}

void PseudoTerminal::Write(std::uint8_t byte) {
    [[maybe_unused]] const ssize_t count = ::write(master_, &byte, 1);
}

void PseudoTerminal::DropSent() {
    ::tcflush(port_, TCIFLUSH);
}

LineSettings PseudoTerminal::Settings() const {
    termios settings{};
    if (::tcgetattr(master_, &settings) != 0) {
        return {};
    }
    return {BaudOf(::cfgetospeed(&settings)), ParityOf(settings.c_cflag), DataBitsOf(settings.c_cflag),
            (settings.c_cflag & CSTOPB) != 0 ? 2 : 1};
}

} // namespace zelvor
