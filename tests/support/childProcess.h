// Runs parts of a test in a process of its own: as another user, or with a failing system call.
#pragma once
#include <cstddef>
#include <grp.h>
#include <gtest/gtest.h>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace velara {

constexpr uid_t kNobody = 65534;

/// Failures are printed in the child, and count as one failure here.
template <class Body> void inAChild(const std::string& what, Body body)
{
    const pid_t child = fork();
    if (child == 0) {
        body();
        _exit(::testing::Test::HasFailure());
    }
    int status = 0;
    waitpid(child, &status, 0);
    EXPECT_EQ(status, 0) << what;
}

/// As an ordinary user; as the user who runs the tests if that isn't root.
template <class Body> void asAnOrdinaryUser(Body body)
{
    inAChild("as an ordinary user", [&body] {
        if (geteuid() == 0 && (setgroups(0, nullptr) != 0 || setgid(kNobody) != 0 || setuid(kNobody) != 0)) _exit(2);
        body();
    });
}

/// From now on the system call fails permanently, in this process and its children.
inline void refuseCall(long call, unsigned error)
{
    sock_filter rules[] = {BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr)),
                           BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, static_cast<unsigned>(call), 0, 1),
                           BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ERRNO | error),
                           BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW)};
    const sock_fprog program{std::size(rules), rules};
    prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0);
    ASSERT_EQ(0, prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &program));
}

} // namespace velara
