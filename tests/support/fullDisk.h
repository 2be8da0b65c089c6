// Simulates a full disk for this process.
#pragma once
#include <csignal>
#include <sys/resource.h>

namespace velara {

/// While it lives, no file can grow beyond the given bytes.
struct FullDisk {
    rlimit before{};
    explicit FullDisk(rlim_t bytes)
    {
        std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &before);
        const rlimit full{bytes, before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &full);
    }
    ~FullDisk() { setrlimit(RLIMIT_FSIZE, &before); }
};

} // namespace velara
