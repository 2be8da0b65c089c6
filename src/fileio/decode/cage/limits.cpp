#include "fileio/decode/cage/limits.h"
#include "fileio/decode/cage/OpenFonts.h"
#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <linux/capability.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace velara::decode {

namespace {

bool limit(__rlimit_resource resource, rlim_t most)
{
    rlimit value{};
    if (getrlimit(resource, &value) != 0) return false;
    value.rlim_max = std::min(value.rlim_max, most);
    value.rlim_cur = std::min(value.rlim_cur, value.rlim_max);
    return setrlimit(resource, &value) == 0;
}

/// The number after the word in a file of /proc; 0 when it is missing.
unsigned long long numberIn(const char* path, const char* word)
{
    std::array<char, 4096> text{};
    const int file = open(path, O_RDONLY | O_CLOEXEC);
    if (file < 0) return 0;
    const ssize_t size = read(file, text.data(), text.size() - 1);
    close(file);
    const char* found = size > 0 ? std::strstr(text.data(), word) : nullptr;
    return found ? std::strtoull(found + std::strlen(word), nullptr, 10) : 0;
}

} // namespace

unsigned long long settleDown(Needs needs)
{
    if (chdir("/") != 0) return 0;
    const int file = open("/proc/self/oom_score_adj", O_WRONLY | O_CLOEXEC);
    [[maybe_unused]] const ssize_t done = write(file, "1000", 4); // best effort: not part of the protection
    close(file);
    constexpr unsigned long long kLeast = 256ULL << 10; // KB: enough for most pictures
    const auto free = numberIn("/proc/meminfo", "MemAvailable:"), taken = numberIn("/proc/self/status", "VmSize:");
    constexpr unsigned long long kOfThreads = 4ULL << 30; // address space set aside for them and not used
    const bool encodes = include(needs, Needs::Encoding);
    const unsigned long long most = encodes ? RLIM_INFINITY : kMostMemory;
    return free == 0 ? most : std::min(most, ((taken + std::max(free, kLeast)) << 10) + (encodes ? kOfThreads : 0));
}

bool limitResources(Needs needs, unsigned long long memory)
{
    const int next = dup(0); // there may be gaps between the fonts
    if (next >= 0) close(next);
    constexpr int kFontsAtATime = 16;
    const auto descriptors =
        include(needs, Needs::Fonts) ? static_cast<rlim_t>(std::max(next, highestFont() + 1) + kFontsAtATime) : 0;
    const bool encodes = include(needs, Needs::Encoding);
    return limit(RLIMIT_AS, memory) && limit(RLIMIT_CORE, 0) && limit(RLIMIT_FSIZE, 0) &&
           limit(RLIMIT_NOFILE, descriptors) &&
           (encodes || (limit(RLIMIT_CPU, kMostProcessorTime) && limit(RLIMIT_NPROC, 0)));
}

bool dropCapabilities()
{
    for (int i = 0; prctl(PR_CAPBSET_READ, i, 0, 0, 0) >= 0; ++i)
        if (prctl(PR_CAPBSET_DROP, i, 0, 0, 0) != 0 && errno != EPERM) return false; // EPERM: it can't gain any either
    __user_cap_header_struct header{_LINUX_CAPABILITY_VERSION_3, 0};
    const std::array<__user_cap_data_struct, _LINUX_CAPABILITY_U32S_3> none{};
    return syscall(SYS_capset, &header, none.data()) == 0;
}

} // namespace velara::decode
