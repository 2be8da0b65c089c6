#include "fileio/decode/cage/landlock.h"
#include <cerrno>
#include <fcntl.h>
#include <linux/landlock.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace velara::decode {

namespace {

// Constants of newer kernels that Debian 12's header lacks.
constexpr std::uint64_t kTruncate = 1ULL << 14, kDeviceCalls = 1ULL << 15; // versions 3 and 5
constexpr std::uint64_t kTcp = 3;                                          // version 4: bind and connect
constexpr std::uint64_t kScopes = 3;                                       // version 6: abstract sockets and signals

constexpr std::uint64_t kOfFiles = LANDLOCK_ACCESS_FS_READ_FILE | LANDLOCK_ACCESS_FS_WRITE_FILE | kTruncate |
                                   kDeviceCalls; // the others are rights on folders
constexpr std::uint64_t kRead = LANDLOCK_ACCESS_FS_READ_FILE | LANDLOCK_ACCESS_FS_READ_DIR;
constexpr std::uint64_t kRights[] = {
    LANDLOCK_ACCESS_FS_READ_DIR, kRead, kRead | LANDLOCK_ACCESS_FS_WRITE_FILE | kDeviceCalls,
    kRead | LANDLOCK_ACCESS_FS_WRITE_FILE | kTruncate | LANDLOCK_ACCESS_FS_MAKE_REG | LANDLOCK_ACCESS_FS_REMOVE_FILE};

struct Ruleset {
    std::uint64_t files, ports, scopes;
};

/// The rights on files known to the kernel's version.
std::uint64_t fileRights(long version)
{
    std::uint64_t rights = (LANDLOCK_ACCESS_FS_MAKE_SYM << 1) - 1; // version 1
    if (version >= 2) rights |= LANDLOCK_ACCESS_FS_REFER;
    if (version >= 3) rights |= kTruncate;
    if (version >= 5) rights |= kDeviceCalls;
    return rights;
}

bool leaveOpen(int ruleset, const OpenPath& open, std::uint64_t known)
{
    const int file = ::open(open.path.c_str(), O_PATH | O_CLOEXEC);
    if (file < 0) return true;
    struct stat status {};
    const bool isFolder = fstat(file, &status) == 0 && S_ISDIR(status.st_mode);
    landlock_path_beneath_attr rule{};
    rule.allowed_access = kRights[open.use] & known & (isFolder ? ~0ULL : kOfFiles);
    rule.parent_fd = file;
    const bool done = syscall(SYS_landlock_add_rule, ruleset, LANDLOCK_RULE_PATH_BENEATH, &rule, 0) == 0;
    close(file);
    return done;
}

} // namespace

Closing closePaths(const std::vector<OpenPath>& but, Ports ports)
{
    const long version = syscall(SYS_landlock_create_ruleset, nullptr, 0, LANDLOCK_CREATE_RULESET_VERSION);
    if (version < 1) return errno == ENOSYS || errno == EOPNOTSUPP ? Closing::Unknown : Closing::Failed;
    const std::uint64_t files = fileRights(version);
    const Ruleset rules{files, version >= 4 && ports == Ports::Shut ? kTcp : 0, version >= 6 ? kScopes : 0};
    const std::size_t size = version >= 6 ? 24 : version >= 4 ? 16 : 8; // the fields known to the version
    const int ruleset = static_cast<int>(syscall(SYS_landlock_create_ruleset, &rules, size, 0));
    if (ruleset < 0) return Closing::Failed;
    bool holds = true;
    for (const OpenPath& open : but) holds &= leaveOpen(ruleset, open, files);
    holds = holds && syscall(SYS_landlock_restrict_self, ruleset, 0) == 0;
    close(ruleset);
    return holds ? Closing::Holds : Closing::Failed;
}

} // namespace velara::decode
