#include "tools/monkey/confine.h"
#include <cstdint>
#include <fcntl.h>
#include <linux/landlock.h>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace velara::monkey {

namespace {

constexpr std::uint64_t kTruncate = 1 << 14; // since version 3
constexpr std::uint64_t kWriting = LANDLOCK_ACCESS_FS_WRITE_FILE | LANDLOCK_ACCESS_FS_REMOVE_DIR |
                                   LANDLOCK_ACCESS_FS_REMOVE_FILE | LANDLOCK_ACCESS_FS_MAKE_CHAR |
                                   LANDLOCK_ACCESS_FS_MAKE_DIR | LANDLOCK_ACCESS_FS_MAKE_REG |
                                   LANDLOCK_ACCESS_FS_MAKE_SOCK | LANDLOCK_ACCESS_FS_MAKE_FIFO |
                                   LANDLOCK_ACCESS_FS_MAKE_BLOCK | LANDLOCK_ACCESS_FS_MAKE_SYM;

bool allow(int ruleset, const char* path, std::uint64_t rights)
{
    landlock_path_beneath_attr rule{};
    rule.allowed_access = rights;
    rule.parent_fd = open(path, O_PATH | O_CLOEXEC);
    if (rule.parent_fd < 0) return false;
    const bool added = syscall(SYS_landlock_add_rule, ruleset, LANDLOCK_RULE_PATH_BENEATH, &rule, 0) == 0;
    close(rule.parent_fd);
    return added;
}

} // namespace

bool writeOnlyBelow(const char* folder)
{
    const long version = syscall(SYS_landlock_create_ruleset, nullptr, 0, LANDLOCK_CREATE_RULESET_VERSION);
    if (version < 1) return false;
    const std::uint64_t truncate = version >= 3 ? kTruncate : 0, moving = version >= 2 ? LANDLOCK_ACCESS_FS_REFER : 0;
    const std::uint64_t rights = kWriting | truncate | moving;
    const int ruleset = static_cast<int>(syscall(SYS_landlock_create_ruleset, &rights, sizeof rights, 0));
    if (ruleset < 0) return false;
    allow(ruleset, "/dev/null", LANDLOCK_ACCESS_FS_WRITE_FILE | truncate);
    const bool holds = allow(ruleset, folder, rights) && prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0 &&
                       syscall(SYS_landlock_restrict_self, ruleset, 0) == 0;
    close(ruleset);
    return holds;
}

} // namespace velara::monkey
