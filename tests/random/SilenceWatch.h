#pragma once

#include <QTimer>
#include <atomic>
#include <string>
#include <thread>

#include <pthread.h>

namespace zelvor::random {

/// Exit status of a process whose window thread was silent for too long.
inline constexpr int SilentExit = 97;

/// Looks from a thread of its own whether the window thread still serves its timers. After two seconds in which it
/// does not, the stacks are kept and the process ends. What counts is the time that the window thread computes or
/// sleeps, not that in which a busy machine lets it wait for a processor or a disk.
class SilenceWatch {
public:
    /// For the window thread, with its event loop about to begin.
    explicit SilenceWatch(std::string stacksFile);
    SilenceWatch(const SilenceWatch&) = delete;
    SilenceWatch& operator=(const SilenceWatch&) = delete;
    ~SilenceWatch();

private:
    void Watch();
    /// Milliseconds of processor time that the window thread has had.
    [[nodiscard]] double Computed() const;

    const std::string stacksFile_;
    const pthread_t windowThread_ = ::pthread_self();
    QTimer beat_;
    std::atomic<unsigned> beats_ = 0;
    std::atomic<bool> isOver_ = false;
    std::thread thread_;
};

} // namespace zelvor::random
