#pragma once

#include <grp.h>
#include <sys/wait.h>
#include <unistd.h>

#include <functional>

#include <gtest/gtest.h>

namespace zelvor::testing {

/// What a child process answers about a write.
inline constexpr int Refused = 0;
inline constexpr int Written = 1;
inline constexpr int NoFault = 2; // the fault was not there, so the answer means nothing

inline constexpr uid_t Nobody = 65534;

/// Starts a process that does the work and ends with its answer.
inline pid_t Fork(const std::function<int()>& work) {
    const pid_t child = fork();
    if (child == 0) {
        _exit(work());
    }
    return child;
}

/// Waits for the process to end, and returns waitpid's status.
inline int EndOf(pid_t child) {
    int status = -1;
    EXPECT_EQ(waitpid(child, &status, 0), child);
    return status;
}

/// The answer of a process; -1, and a failure, where a signal has ended it.
inline int AnswerOf(pid_t child) {
    const int status = EndOf(child);
    EXPECT_TRUE(WIFEXITED(status));
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

inline int AnswerOfChild(const std::function<int()>& work) {
    return AnswerOf(Fork(work));
}

/// Gives up the rights of an administrator, who may read and write everything. In a child process.
inline bool BecomeNobody() {
    return geteuid() != 0 || (setgroups(0, nullptr) == 0 && setgid(Nobody) == 0 && setuid(Nobody) == 0);
}

} // namespace zelvor::testing
