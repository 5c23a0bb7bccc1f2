#include "random/Stacks.h"

#include <array>
#include <csignal>
#include <cstdio>
#include <cstring>

#include <fcntl.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace zelvor::random {

namespace {

constexpr std::size_t PathLength = 512;
constexpr std::size_t HandlerStack = 1 << 16;

// Ready beforehand: in a process that has crashed there is no memory to be had.
std::array<char, PathLength> crashFile{};
std::array<char, HandlerStack> handlerStack{};

/// Only what a signal handler may call.
void RunDebugger(const char* file) {
    std::array<char, 16> process{};
    static_cast<void>(std::snprintf(process.data(), process.size(), "%d", static_cast<int>(::getpid())));
    ::prctl(PR_SET_PTRACER, PR_SET_PTRACER_ANY);
    const pid_t child = ::fork();
    if (child == 0) {
        const int output = ::open(file, O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
        ::dup2(output, STDOUT_FILENO);
        ::dup2(output, STDERR_FILENO);
        ::execlp("gdb", "gdb", "-nx", "-batch", "-iex", "set debuginfod enabled off", "-p", process.data(), "-ex",
                 "thread apply all backtrace 80", nullptr);
        ::_exit(127);
    }
    if (child > 0) {
        int status = 0;
        ::waitpid(child, &status, 0);
    }
}

void OnCrash(int signal) {
    RunDebugger(crashFile.data());
    static_cast<void>(::raise(signal)); // the handler is the usual one again
}

} // namespace

void KeepStacks(const std::string& file) {
    RunDebugger(file.c_str());
}

void KeepStacksOfCrashes([[maybe_unused]] const std::string& file) {
#ifndef __SANITIZE_ADDRESS__
    std::strncpy(crashFile.data(), file.c_str(), crashFile.size() - 1);
    stack_t stack{};
    stack.ss_sp = handlerStack.data();
    stack.ss_size = handlerStack.size();
    ::sigaltstack(&stack, nullptr); // for a stack that has run over
    struct sigaction action {};
    action.sa_handler = OnCrash;
    action.sa_flags = SA_RESETHAND | SA_ONSTACK;
    for (const int signal : {SIGSEGV, SIGABRT, SIGBUS, SIGFPE, SIGILL}) {
        ::sigaction(signal, &action, nullptr);
    }
#endif
}

} // namespace zelvor::random
