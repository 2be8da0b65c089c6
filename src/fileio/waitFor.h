// The end of a child process.
#pragma once
#include <cerrno>
#include <sys/wait.h>

namespace velara {

/// Waits until the child ends, whatever signals come meanwhile. Returns its status as of waitpid; -1 when there is no
/// such child.
inline int waitFor(pid_t pid)
{
    int status = -1;
    while (waitpid(pid, &status, 0) < 0)
        if (errno != EINTR) return -1;
    return status;
}

} // namespace velara
