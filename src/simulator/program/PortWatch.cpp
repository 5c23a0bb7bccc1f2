#include "simulator/program/PortWatch.h"

#include <array>
#include <cstring>
#include <span>

#include <sys/inotify.h>
#include <unistd.h>

namespace zelvor {

PortWatch::PortWatch() : events_(::inotify_init1(IN_NONBLOCK | IN_CLOEXEC)) {}

PortWatch::~PortWatch() {
    if (events_ >= 0) {
        ::close(events_);
    }
}

bool PortWatch::Watch(const std::filesystem::path& port) {
    Forget();
    port_ = ::inotify_add_watch(events_, port.c_str(), IN_OPEN | IN_CLOSE);
    return port_ >= 0;
}

void PortWatch::Forget() {
    if (port_ >= 0) {
        ::inotify_rm_watch(events_, port_);
    }
    port_ = -1;
    users_ = 0;
}

bool PortWatch::TakeRelease() {
    constexpr std::size_t EventSize = sizeof(inotify_event); // a watched file that is no folder has no name in it
    alignas(inotify_event) std::array<char, 64 * EventSize> buffer{};
    bool isReleased = false;
    for (;;) {
        const ssize_t count = ::read(events_, buffer.data(), buffer.size());
        if (count <= 0) {
            return isReleased;
        }
        for (std::size_t place = 0; place < static_cast<std::size_t>(count); place += EventSize) {
            inotify_event event{};
            std::memcpy(&event, &buffer.at(place), EventSize);
            isReleased = (event.wd == port_ && Take(event.mask)) || isReleased;
        }
    }
}

/// Returns whether nobody has the port open any more.
bool PortWatch::Take(std::uint32_t mask) {
    if ((mask & IN_OPEN) != 0) {
        ++users_;
    } else if ((mask & IN_CLOSE) != 0 && users_ > 0) {
        --users_;
        return users_ == 0;
    }
    return false;
}

} // namespace zelvor
