// Runs a part of a test with the threads of a reader.
#pragma once
#include "fileio/decode/cage/Helpers.h"
#include <functional>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

namespace velara::decode {

/// In a process of its own, as the helpers live as long as that; on any number of processors.
inline void withHelpers(const std::function<void()>& part)
{
    const pid_t inside = fork();
    if (inside == 0) {
        startHelpers(3);
        part();
        _exit(::testing::Test::HasFailure() ? 1 : 0);
    }
    int status = 0;
    waitpid(inside, &status, 0);
    EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0) << status;
}

} // namespace velara::decode
