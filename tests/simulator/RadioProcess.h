#pragma once

#include <chrono>
#include <filesystem>
#include <string>
#include <vector>

#include <sys/types.h>

namespace zelvor::test {

/// A running zelvor-radio with a configuration directory of its own. Ended with the object, so that it takes its link
/// away, and killed where it does not end.
class RadioProcess {
public:
    RadioProcess(const std::filesystem::path& configDirectory, const std::vector<std::string>& arguments);
    RadioProcess(const RadioProcess&) = delete;
    RadioProcess& operator=(const RadioProcess&) = delete;
    ~RadioProcess();

    /// What the process has printed so far.
    [[nodiscard]] std::string Out();
    [[nodiscard]] std::string Err();

    /// Waits until the text has been printed; false where it does not come within some seconds.
    [[nodiscard]] bool WaitForOut(const std::string& text) { return WaitFor(outPath_, text); }
    [[nodiscard]] bool WaitForErr(const std::string& text) { return WaitFor(errPath_, text); }

    /// Where what it prints to standard output is kept.
    [[nodiscard]] const std::filesystem::path& OutPath() const { return outPath_; }

    void Signal(int signal) const;

    /// Waits for the end; the exit code, or -1 where it does not end by itself within some seconds.
    [[nodiscard]] int ExitCode();

private:
    static bool WaitFor(const std::filesystem::path& path, const std::string& text);

    std::filesystem::path outPath_;
    std::filesystem::path errPath_;
    pid_t process_ = -1; // -1 once it has ended
};

/// Tries the condition again and again until it holds; false after some seconds.
template<typename Condition>
[[nodiscard]] bool Eventually(const Condition& condition);

void ShortPause();

inline constexpr std::chrono::seconds Patience{10};

template<typename Condition>
bool Eventually(const Condition& condition) {
    const auto end = std::chrono::steady_clock::now() + Patience;
    while (!condition()) {
        if (std::chrono::steady_clock::now() > end) {
            return false;
        }
        ShortPause();
    }
    return true;
}

} // namespace zelvor::test
