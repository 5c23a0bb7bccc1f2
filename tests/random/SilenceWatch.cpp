#include "random/SilenceWatch.h"

#include <chrono>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <string_view>
#include <utility>

#include <ctime>

#include "random/Stacks.h"

namespace zelvor::random {

namespace {

// Milliseconds.
constexpr int BeatInterval = 100;
constexpr int LookInterval = 50;
constexpr double Limit = 2000;

/// Whether the process's first thread, which is the window thread, sleeps: the letter behind its name in parentheses.
bool DoesWindowThreadSleep() {
    std::ifstream file("/proc/self/stat");
    std::string line;
    std::getline(file, line);
    const auto nameEnd = line.rfind(") ");
    return nameEnd != std::string::npos && std::string_view(line).substr(nameEnd + 2).starts_with('S');
}

} // namespace

SilenceWatch::SilenceWatch(std::string stacksFile) : stacksFile_(std::move(stacksFile)) {
    QObject::connect(&beat_, &QTimer::timeout, &beat_, [this] { ++beats_; });
    beat_.start(BeatInterval);
    thread_ = std::thread([this] { Watch(); });
}

SilenceWatch::~SilenceWatch() {
    isOver_ = true;
    thread_.join();
}

double SilenceWatch::Computed() const {
    clockid_t clock{};
    timespec time{};
    if (::pthread_getcpuclockid(windowThread_, &clock) != 0 || ::clock_gettime(clock, &time) != 0) {
        return 0;
    }
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
}

void SilenceWatch::Watch() {
    unsigned seen = beats_;
    double computed = Computed();
    double silence = 0;
    while (!isOver_) {
        std::this_thread::sleep_for(std::chrono::milliseconds(LookInterval));
        const double computedBefore = std::exchange(computed, Computed());
        silence += computed - computedBefore + (DoesWindowThreadSleep() ? LookInterval : 0);
        if (const unsigned beats = beats_; std::exchange(seen, beats) != beats) {
            silence = 0;
        }
        if (silence >= Limit) {
            KeepStacks(stacksFile_);
            std::cout << "SILENT; the stacks are in stacks.txt" << std::endl;
            std::_Exit(SilentExit);
        }
    }
}

} // namespace zelvor::random
