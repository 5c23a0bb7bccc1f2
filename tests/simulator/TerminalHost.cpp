#include "TerminalHost.h"

#include <algorithm>
#include <array>

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

namespace zelvor::test {

TerminalHost::TerminalHost(const std::filesystem::path& port, speed_t speed, bool twoStopBits)
    : port_(::open(port.c_str(), O_RDWR | O_NOCTTY | O_CLOEXEC | O_NONBLOCK)) {
    termios settings{};
    if (port_ < 0 || ::tcgetattr(port_, &settings) != 0) {
        return;
    }
    ::cfmakeraw(&settings);
    ::cfsetispeed(&settings, speed);
    ::cfsetospeed(&settings, speed);
    settings.c_cflag |= CLOCAL | CREAD;
    settings.c_cflag = twoStopBits ? settings.c_cflag | CSTOPB : settings.c_cflag & ~static_cast<tcflag_t>(CSTOPB);
    ::tcsetattr(port_, TCSANOW, &settings);
    ::tcflush(port_, TCIOFLUSH);
}

TerminalHost::~TerminalHost() {
    if (port_ >= 0) {
        ::close(port_);
    }
}

void TerminalHost::Send(const Bytes& bytes) const {
    [[maybe_unused]] const ssize_t count = ::write(port_, bytes.data(), bytes.size());
}

TerminalHost::Bytes TerminalHost::Receive(std::size_t count, int patienceMs) const {
    Bytes received;
    std::array<std::uint8_t, 256> buffer{};
    pollfd port{port_, POLLIN, 0};
    while (received.size() < count && ::poll(&port, 1, patienceMs) > 0) {
        const ssize_t read = ::read(port_, buffer.data(), std::min(buffer.size(), count - received.size()));
        if (read <= 0) {
            break;
        }
        received.insert(received.end(), buffer.begin(), buffer.begin() + read);
    }
    return received;
}

bool TerminalHost::SeesHangUp() const {
    pollfd port{port_, 0, 0};
    return ::poll(&port, 1, 5000) > 0 && (port.revents & POLLHUP) != 0;
}

} // namespace zelvor::test
