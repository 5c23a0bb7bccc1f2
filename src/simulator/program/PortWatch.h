#pragma once

#include <cstdint>
#include <filesystem>

namespace zelvor {

/// Tells when other programs let go of a port. The port's own process is to have it open before it is watched, and to
/// open and close it no more.
class PortWatch {
public:
    PortWatch();
    PortWatch(const PortWatch&) = delete;
    PortWatch& operator=(const PortWatch&) = delete;
    ~PortWatch();

    /// Watches this port from now on, and no other. False where the system does not tell.
    [[nodiscard]] bool Watch(const std::filesystem::path& port);

    /// Watches no port any more.
    void Forget();

    /// For waiting: readable when there is something to take.
    [[nodiscard]] int Descriptor() const { return events_; }

    /// Whether the last program that had the port open has closed it since the last call.
    [[nodiscard]] bool TakeRelease();
    /// Whether a program has the port open, by what was taken so far.
    [[nodiscard]] bool IsInUse() const { return users_ > 0; }

private:
    [[nodiscard]] bool Take(std::uint32_t mask);

    int events_ = -1;
    int port_ = -1;
    int users_ = 0; // how many times the port is open
};

} // namespace zelvor
