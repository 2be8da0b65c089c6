#include "fileio/decode/Cage.h"
#include "fileio/decode/seccompFilter.h"
#include "fileio/load/DecodeProtocol.h"
#include <fcntl.h>
#include <linux/landlock.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace velara::decode {

namespace {

// What newer kernels have and Debian 12's header lacks.
constexpr std::uint64_t kTruncate = 1ULL << 14, kDeviceCalls = 1ULL << 15; // versions 3 and 5
constexpr std::uint64_t kTcp = 3;                                          // version 4: bind and connect
constexpr std::uint64_t kScopes = 3;                                       // version 6: abstract sockets and signals

struct Ruleset {
    std::uint64_t files, ports, scopes;
};

/// Where fontconfig and the metafile readers find fonts and their lists.
constexpr const char* kFontFolders[] = {"/usr/share/fonts", "/usr/local/share/fonts", "/usr/share/fontconfig",
                                        "/etc/fonts",       "/var/cache/fontconfig",  "/usr/share/libwmf"};

bool noNewPrivileges() { return prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0; }

[[maybe_unused]] bool limitResources(Needs needs)
{
    const auto limit = [](__rlimit_resource resource, rlim_t most) {
        const rlimit value{most, most};
        return setrlimit(resource, &value) == 0;
    };
    const bool files = limit(RLIMIT_FSIZE, 0) && limit(RLIMIT_CORE, 0);
    if (needs == Needs::Fonts) return limit(RLIMIT_NOFILE, 64) && files; // drawing text may start threads
    return limit(RLIMIT_NPROC, 0) && limit(RLIMIT_NOFILE, 0) && files;
}

/// The rights over files that the kernel's version knows.
std::uint64_t fileRights(long version)
{
    std::uint64_t rights = (LANDLOCK_ACCESS_FS_MAKE_SYM << 1) - 1; // version 1
    if (version >= 2) rights |= LANDLOCK_ACCESS_FS_REFER;
    if (version >= 3) rights |= kTruncate;
    if (version >= 5) rights |= kDeviceCalls;
    return rights;
}

void allowReading(int ruleset, const char* folder)
{
    landlock_path_beneath_attr rule{};
    rule.allowed_access = LANDLOCK_ACCESS_FS_READ_FILE | LANDLOCK_ACCESS_FS_READ_DIR;
    rule.parent_fd = open(folder, O_PATH | O_CLOEXEC);
    if (rule.parent_fd < 0) return;
    syscall(SYS_landlock_add_rule, ruleset, LANDLOCK_RULE_PATH_BENEATH, &rule, 0);
    close(rule.parent_fd);
}

bool landlock(Needs needs)
{
    const long version = syscall(SYS_landlock_create_ruleset, nullptr, 0, LANDLOCK_CREATE_RULESET_VERSION);
    if (version < 1) return false;
    Ruleset rules{fileRights(version), version >= 4 ? kTcp : 0, version >= 6 ? kScopes : 0};
    const std::size_t size = version >= 6 ? 24 : version >= 4 ? 16 : 8; // the fields that the version knows
    const int ruleset = static_cast<int>(syscall(SYS_landlock_create_ruleset, &rules, size, 0));
    if (ruleset < 0) return false;
    if (needs == Needs::Fonts)
        for (const char* folder : kFontFolders) allowReading(ruleset, folder);
    const bool holds = syscall(SYS_landlock_restrict_self, ruleset, 0) == 0;
    close(ruleset);
    return holds;
}

} // namespace

unsigned enterCage(Needs needs, unsigned layers)
{
    unsigned holding = 0;
    const auto close = [&](Layer layer, auto&& holds) {
        if (layers & layer && holds()) holding |= layer;
    };
    close(NoNewPrivileges, noNewPrivileges);
    close(Landlock, [&] { return landlock(needs); });
#ifndef __SANITIZE_ADDRESS__ // the sanitizers look at memory through pipes, and report into files
    close(Limits, [&] { return limitResources(needs); });
    close(Seccomp, [&] { return filterSystemCalls(needs); });
#endif
    return holding;
}

std::string describeCage(unsigned holding)
{
    static constexpr struct {
        Layer layer;
        const char* name;
    } kLayers[] = {{NoNewPrivileges, "no new privileges"},
                   {Limits, "limits of processes, descriptors and files"},
                   {Landlock, "Landlock: no path, no port"},
                   {Seccomp, "seccomp: memory, the descriptors at hand and the end"}};
    std::string text;
    for (const auto& row : kLayers)
        text += std::string(row.name) + (holding & row.layer ? ": holds\n" : ": not on this kernel\n");
    return text;
}

} // namespace velara::decode
