#include "RadioProcess.h"

#include <csignal>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <thread>

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace zelvor::test {
namespace {

std::string Contents(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

void Redirect(const std::filesystem::path& path, int descriptor) {
    const int file = ::open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
    ::dup2(file, descriptor);
}

} // namespace

RadioProcess::RadioProcess(const std::filesystem::path& configDirectory, const std::vector<std::string>& arguments) {
    static int count = 0;
    const std::string number = std::to_string(++count);
    outPath_ = configDirectory / ("out" + number);
    errPath_ = configDirectory / ("err" + number);
    process_ = ::fork();
    if (process_ == 0) {
        Redirect(outPath_, STDOUT_FILENO);
        Redirect(errPath_, STDERR_FILENO);
        ::setenv("XDG_CONFIG_HOME", configDirectory.c_str(), 1);
        std::vector<std::string> texts{ZELVOR_RADIO_PROGRAM};
        texts.insert(texts.end(), arguments.begin(), arguments.end());
        std::vector<char*> pointers;
        for (std::string& text : texts) {
            pointers.push_back(text.data());
        }
        pointers.push_back(nullptr);
        ::execv(pointers.front(), pointers.data());
        ::_exit(127);
    }
}

RadioProcess::~RadioProcess() {
    Signal(SIGTERM);
    if (ExitCode() < 0 && process_ > 0) {
        ::kill(process_, SIGKILL);
        ::waitpid(process_, nullptr, 0);
    }
}

std::string RadioProcess::Out() {
    return Contents(outPath_);
}

std::string RadioProcess::Err() {
    return Contents(errPath_);
}

bool RadioProcess::WaitFor(const std::filesystem::path& path, const std::string& text) {
    return Eventually([&] { return Contents(path).find(text) != std::string::npos; });
}

void RadioProcess::Signal(int signal) const {
    if (process_ > 0) {
        ::kill(process_, signal);
    }
}

int RadioProcess::ExitCode() {
    int status = 0;
    if (process_ <= 0 || !Eventually([&] { return ::waitpid(process_, &status, WNOHANG) == process_; })) {
        return -1;
    }
    process_ = -1;
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

void ShortPause() {
    std::this_thread::sleep_for(std::chrono::milliseconds(2));
}

} // namespace zelvor::test
