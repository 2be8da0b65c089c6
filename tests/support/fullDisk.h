// A full disk, as far as this process can tell.
#pragma once
#include <csignal>
#include <sys/resource.h>

namespace velara {

/// While it lives no file grows beyond so many bytes: the disk is full.
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
