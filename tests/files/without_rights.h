// SPDX-License-Identifier: GPL-3.0-or-later
// Running a piece of a test as a user whom file permissions bind.
#pragma once

#include <sys/wait.h>
#include <unistd.h>

namespace kervol {

/// The user without rights.
inline constexpr uid_t kNobody = 65534;

/// What `Without_Rights` returns where the rights cannot be given up.
inline constexpr int kNotPossible = 255;

/// Runs the body, which returns 0 to 254, in a process of its own that has no superuser's rights.
template <class Body>
int Without_Rights(const Body& body) {
    const pid_t child = fork();
    if (child < 0) return kNotPossible;
    if (child == 0) {
        const bool bound = geteuid() != 0 || (setresgid(kNobody, kNobody, kNobody) == 0 &&
                                              setresuid(kNobody, kNobody, kNobody) == 0);
        _exit(bound ? static_cast<int>(body()) : kNotPossible);
    }
    int status = 0;
    if (waitpid(child, &status, 0) != child || !WIFEXITED(status)) return kNotPossible - 1;
    return WEXITSTATUS(status);
}

}  // namespace kervol
