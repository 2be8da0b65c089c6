#include "fileio/decode/seccompFilter.h"
#include "fileio/load/DecodeProtocol.h"
#include <cerrno>
#include <fcntl.h>
#include <memory>
#include <sched.h>
#include <seccomp.h>
#include <sys/mman.h>

namespace velara::decode {

namespace {

// clang-format off
/// Memory, clocks, and what the C library does by itself.
constexpr int kAlways[] = {
    SCMP_SYS(brk), SCMP_SYS(munmap), SCMP_SYS(mremap), SCMP_SYS(madvise), SCMP_SYS(futex), SCMP_SYS(sysinfo),
    SCMP_SYS(sched_yield), SCMP_SYS(sched_getaffinity), SCMP_SYS(getrandom), SCMP_SYS(clock_gettime),
    SCMP_SYS(gettimeofday), SCMP_SYS(nanosleep), SCMP_SYS(clock_nanosleep), SCMP_SYS(rt_sigreturn),
    SCMP_SYS(restart_syscall), SCMP_SYS(exit), SCMP_SYS(exit_group),
};

/// Reading fonts: which files, Landlock says.
constexpr int kForFonts[] = {
    SCMP_SYS(read), SCMP_SYS(pread64), SCMP_SYS(lseek), SCMP_SYS(close), SCMP_SYS(fstat), SCMP_SYS(newfstatat),
    SCMP_SYS(stat), SCMP_SYS(lstat), SCMP_SYS(statx), SCMP_SYS(statfs), SCMP_SYS(fstatfs), SCMP_SYS(access),
    SCMP_SYS(faccessat), SCMP_SYS(faccessat2), SCMP_SYS(readlink), SCMP_SYS(readlinkat), SCMP_SYS(getdents64),
    SCMP_SYS(getcwd), SCMP_SYS(getuid), SCMP_SYS(geteuid), SCMP_SYS(getpid), SCMP_SYS(gettid), SCMP_SYS(uname),
    SCMP_SYS(set_robust_list), SCMP_SYS(rseq), SCMP_SYS(rt_sigprocmask), SCMP_SYS(fadvise64),
};

/// What fontconfig tries on its cache and does without, and what would only start threads of another kind.
constexpr struct { int call, error; } kRefusedForFonts[] = {
    {SCMP_SYS(chmod), EPERM}, {SCMP_SYS(fchmod), EPERM}, {SCMP_SYS(fchmodat), EPERM}, {SCMP_SYS(mkdir), EACCES},
    {SCMP_SYS(mkdirat), EACCES}, {SCMP_SYS(unlink), EACCES}, {SCMP_SYS(unlinkat), EACCES},
    {SCMP_SYS(rename), EACCES}, {SCMP_SYS(link), EACCES}, {SCMP_SYS(linkat), EACCES}, {SCMP_SYS(utimensat), EACCES},
    {SCMP_SYS(prctl), EPERM}, {SCMP_SYS(clone3), ENOSYS}, // the C library falls back to clone
};
// clang-format on

using Filter = std::unique_ptr<void, decltype(&seccomp_release)>;

/// Nothing that would make memory run as code.
bool allowPlainMemory(scmp_filter_ctx filter)
{
    const auto notCode = SCMP_A2(SCMP_CMP_MASKED_EQ, PROT_EXEC, 0);
    return seccomp_rule_add(filter, SCMP_ACT_ALLOW, SCMP_SYS(mmap), 1, notCode) == 0 &&
           seccomp_rule_add(filter, SCMP_ACT_ALLOW, SCMP_SYS(mprotect), 1, notCode) == 0;
}

/// The line to the parent, and the chatter of libraries on the standard descriptors.
bool allowTalk(scmp_filter_ctx filter)
{
    const auto onSocket = SCMP_A0(SCMP_CMP_EQ, kSocket);
    const auto onStandard = SCMP_A0(SCMP_CMP_LE, 2);
    // No destination: only to the other end.
    return seccomp_rule_add(filter, SCMP_ACT_ALLOW, SCMP_SYS(sendto), 2, onSocket, SCMP_A4(SCMP_CMP_EQ, 0)) == 0 &&
           seccomp_rule_add(filter, SCMP_ACT_ALLOW, SCMP_SYS(recvfrom), 1, onSocket) == 0 &&
           seccomp_rule_add(filter, SCMP_ACT_ALLOW, SCMP_SYS(write), 1, onStandard) == 0 &&
           seccomp_rule_add(filter, SCMP_ACT_ALLOW, SCMP_SYS(writev), 1, onStandard) == 0;
}

bool allowFonts(scmp_filter_ctx filter)
{
    bool ok = true;
    for (const int call : kForFonts) ok &= seccomp_rule_add(filter, SCMP_ACT_ALLOW, call, 0) == 0;
    for (const auto& row : kRefusedForFonts)
        ok &= seccomp_rule_add(filter, SCMP_ACT_ERRNO(static_cast<unsigned>(row.error)), row.call, 0) == 0;
    constexpr unsigned kWriting = O_WRONLY | O_RDWR | O_CREAT | O_TRUNC;
    for (const unsigned flag : {O_WRONLY, O_RDWR, O_CREAT, O_TRUNC})
        ok &= seccomp_rule_add(filter, SCMP_ACT_ERRNO(EACCES), SCMP_SYS(openat), 1,
                               SCMP_A2(SCMP_CMP_MASKED_EQ, flag, flag)) == 0;
    ok &= seccomp_rule_add(filter, SCMP_ACT_ALLOW, SCMP_SYS(openat), 1, SCMP_A2(SCMP_CMP_MASKED_EQ, kWriting, 0)) == 0;
    ok &= seccomp_rule_add(filter, SCMP_ACT_ALLOW, SCMP_SYS(clone), 1,
                           SCMP_A0(SCMP_CMP_MASKED_EQ, CLONE_THREAD, CLONE_THREAD)) == 0;
    for (const int command : {F_GETFD, F_SETFD, F_GETFL})
        ok &= seccomp_rule_add(filter, SCMP_ACT_ALLOW, SCMP_SYS(fcntl), 1,
                               SCMP_A1(SCMP_CMP_EQ, static_cast<scmp_datum_t>(command))) == 0;
    return ok;
}

} // namespace

bool filterSystemCalls(Needs needs)
{
    const Filter filter(seccomp_init(SCMP_ACT_KILL_PROCESS), &seccomp_release);
    if (!filter) return false;
    bool ok = seccomp_attr_set(filter.get(), SCMP_FLTATR_CTL_TSYNC, 1) == 0 && allowPlainMemory(filter.get()) &&
              allowTalk(filter.get());
    for (const int call : kAlways) ok &= seccomp_rule_add(filter.get(), SCMP_ACT_ALLOW, call, 0) == 0;
    if (needs == Needs::Fonts) ok &= allowFonts(filter.get());
    return ok && seccomp_load(filter.get()) == 0;
}

} // namespace velara::decode
