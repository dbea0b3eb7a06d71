// Parts of a test that need a process of their own.
#pragma once

#include <sys/wait.h>
#include <unistd.h>

#include <functional>

namespace trameli {

/// Starts a child that runs `work` and ends with its answer as exit code.
inline pid_t StartChild(const std::function<int()>& work) {
    const pid_t child = fork();
    if (child == 0) {
        _exit(work());
    }
    return child;
}

/// The exit code of a child, -1 if it ended in another way.
inline int ExitOf(pid_t child) {
    int status = 0;
    waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

inline int RunInChild(const std::function<int()>& work) {
    return ExitOf(StartChild(work));
}

/// Gives up the rights of root, to whom no file is read-only.
inline bool BecomeNobody() {
    constexpr uid_t nobody = 65534;
    return geteuid() != 0 || (setgid(nobody) == 0 && setuid(nobody) == 0);
}

}  // namespace trameli
