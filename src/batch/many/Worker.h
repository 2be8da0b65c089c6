// The work of a worker process.
#pragma once
#include "batch/CommandLine.h"
#include "batch/many/Plan.h"

namespace velara {

/// Reads, changes and writes the pictures of the plan that it is told to through the socket (messages.h), until that
/// ends. The next picture is read while one is worked on. The steps' own pictures have been read.
[[noreturn]] void work(const CommandLine& line, const Plan& plan, int socket);

} // namespace velara
