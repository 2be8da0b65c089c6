#include "fileio/decode/cage/seccompFilter.h"
#include "fileio/load/DecodeProtocol.h"
#include <cerrno>
#include <fcntl.h>
#include <linux/futex.h>
#include <memory>
#include <sched.h>
#include <seccomp.h>
#include <sys/mman.h>
#include <sys/prctl.h>

namespace velara::decode {

namespace {

// clang-format off
/// Memory, clocks, and the C library's own needs.
constexpr int kAlways[] = {
    SCMP_SYS(brk), SCMP_SYS(munmap), SCMP_SYS(mremap), SCMP_SYS(sysinfo), SCMP_SYS(sched_yield),
    SCMP_SYS(getrandom), SCMP_SYS(clock_gettime), SCMP_SYS(gettimeofday),
    SCMP_SYS(nanosleep), SCMP_SYS(clock_nanosleep), SCMP_SYS(rt_sigreturn), SCMP_SYS(restart_syscall),
    SCMP_SYS(exit), SCMP_SYS(exit_group),
};

/// On the open descriptors, which are fonts.
constexpr int kForFonts[] = {
    SCMP_SYS(read), SCMP_SYS(pread64), SCMP_SYS(lseek), SCMP_SYS(close), SCMP_SYS(fstat), SCMP_SYS(fstatfs),
    SCMP_SYS(fadvise64), SCMP_SYS(getuid), SCMP_SYS(geteuid), SCMP_SYS(getpid), SCMP_SYS(gettid),
    SCMP_SYS(rt_sigprocmask),
};

/// What a thread does at its beginning and its end.
constexpr int kForThreads[] = {SCMP_SYS(rseq), SCMP_SYS(set_robust_list), SCMP_SYS(rt_sigprocmask), SCMP_SYS(gettid)};
/// How the C library starts one: it shares everything with the others, so that it is no new process.
constexpr unsigned kThread = CLONE_VM | CLONE_FS | CLONE_FILES | CLONE_SYSVSEM | CLONE_SIGHAND | CLONE_THREAD |
                             CLONE_SETTLS | CLONE_PARENT_SETTID | CLONE_CHILD_CLEARTID;

/// Calls by path, answered by OpenFonts.
constexpr int kAnswered[] = {
    SCMP_SYS(open), SCMP_SYS(openat), SCMP_SYS(stat), SCMP_SYS(lstat), SCMP_SYS(newfstatat), SCMP_SYS(access),
    SCMP_SYS(faccessat), SCMP_SYS(readlink), SCMP_SYS(readlinkat), SCMP_SYS(statfs), SCMP_SYS(chmod), SCMP_SYS(mkdir),
    SCMP_SYS(unlink), SCMP_SYS(rename), SCMP_SYS(link),
};
// clang-format on

/// Freeing memory and asking for huge pages; the other advices change how memory is shared, locked or poisoned.
constexpr unsigned kAdvices[] = {MADV_DONTNEED, MADV_FREE, MADV_HUGEPAGE};
/// Waiting and waking. Requeueing and priority inheritance have been used to attack kernels.
constexpr unsigned kWaits[] = {FUTEX_WAIT, FUTEX_WAKE, FUTEX_WAIT_BITSET, FUTEX_WAKE_BITSET};
constexpr unsigned kHowToWait = FUTEX_PRIVATE_FLAG | FUTEX_CLOCK_REALTIME;
constexpr unsigned kOfDescriptors[] = {F_DUPFD_CLOEXEC, F_GETFD, F_SETFD, F_GETFL};

using Filter = std::unique_ptr<void, decltype(&seccomp_release)>;

/// Forbids executable memory.
bool allowPlainMemory(scmp_filter_ctx filter)
{
    const auto notCode = SCMP_A2(SCMP_CMP_MASKED_EQ, PROT_EXEC, 0);
    return seccomp_rule_add(filter, SCMP_ACT_ALLOW, SCMP_SYS(mmap), 1, notCode) == 0 &&
           seccomp_rule_add(filter, SCMP_ACT_ALLOW, SCMP_SYS(mprotect), 1, notCode) == 0;
}

/// The socket to the parent, and messages of libraries on the standard descriptors.
bool allowTalk(scmp_filter_ctx filter)
{
    const auto onSocket = SCMP_A0(SCMP_CMP_EQ, kSocket);
    const auto onStandard = SCMP_A0(SCMP_CMP_LE, 2);
    // No destination address: only to the other end.
    return seccomp_rule_add(filter, SCMP_ACT_ALLOW, SCMP_SYS(sendto), 2, onSocket, SCMP_A4(SCMP_CMP_EQ, 0)) == 0 &&
           seccomp_rule_add(filter, SCMP_ACT_ALLOW, SCMP_SYS(recvfrom), 1, onSocket) == 0 &&
           seccomp_rule_add(filter, SCMP_ACT_ALLOW, SCMP_SYS(write), 1, onStandard) == 0 &&
           seccomp_rule_add(filter, SCMP_ACT_ALLOW, SCMP_SYS(writev), 1, onStandard) == 0;
}

bool allowWords(scmp_filter_ctx filter)
{
    bool ok = true;
    for (const unsigned advice : kAdvices)
        ok &= seccomp_rule_add(filter, SCMP_ACT_ALLOW, SCMP_SYS(madvise), 1, SCMP_A2(SCMP_CMP_EQ, advice)) == 0;
    for (const unsigned wait : kWaits)
        ok &= seccomp_rule_add(filter, SCMP_ACT_ALLOW, SCMP_SYS(futex), 1,
                               SCMP_A1(SCMP_CMP_MASKED_EQ, ~kHowToWait, wait)) == 0;
    return ok;
}

bool allowFonts(scmp_filter_ctx filter)
{
    bool ok = true;
    for (const int call : kForFonts) ok &= seccomp_rule_add(filter, SCMP_ACT_ALLOW, call, 0) == 0;
    for (const int call : kAnswered) ok &= seccomp_rule_add(filter, SCMP_ACT_TRAP, call, 0) == 0;
    for (const unsigned command : kOfDescriptors)
        ok &= seccomp_rule_add(filter, SCMP_ACT_ALLOW, SCMP_SYS(fcntl), 1, SCMP_A1(SCMP_CMP_EQ, command)) == 0;
    return ok;
}

bool allowThreads(scmp_filter_ctx filter)
{
    // The C library's memory of several threads asks the system for the number of processors, by a path; it does
    // without.
    bool ok = seccomp_rule_add(filter, SCMP_ACT_ERRNO(EACCES), SCMP_SYS(openat), 0) == 0;
    // clone3 has its flags in memory, where no filter sees them; the C library then takes the older call.
    ok &= seccomp_rule_add(filter, SCMP_ACT_ERRNO(ENOSYS), SCMP_SYS(clone3), 0) == 0 &&
          seccomp_rule_add(filter, SCMP_ACT_ALLOW, SCMP_SYS(clone), 1, SCMP_A0(SCMP_CMP_EQ, kThread)) == 0 &&
          seccomp_rule_add(filter, SCMP_ACT_ALLOW, SCMP_SYS(prctl), 1, SCMP_A0(SCMP_CMP_EQ, PR_SET_NAME)) == 0;
    for (const int call : kForThreads) ok &= seccomp_rule_add(filter, SCMP_ACT_ALLOW, call, 0) == 0;
    return ok;
}

} // namespace

bool filterSystemCalls(Needs needs)
{
    const Filter filter(seccomp_init(SCMP_ACT_KILL_PROCESS), &seccomp_release);
    if (!filter) return false;
    bool ok = seccomp_attr_set(filter.get(), SCMP_FLTATR_CTL_TSYNC, 1) == 0 && allowPlainMemory(filter.get()) &&
              allowTalk(filter.get()) && allowWords(filter.get());
    for (const int call : kAlways) ok &= seccomp_rule_add(filter.get(), SCMP_ACT_ALLOW, call, 0) == 0;
    if (include(needs, Needs::Fonts)) ok &= allowFonts(filter.get());
    if (include(needs, Needs::Encoding)) ok &= allowThreads(filter.get());
    const unsigned processors = include(needs, Needs::Solitude) ? SCMP_ACT_ERRNO(EPERM) : SCMP_ACT_ALLOW;
    ok &= seccomp_rule_add(filter.get(), processors, SCMP_SYS(sched_getaffinity), 0) == 0;
    return ok && seccomp_load(filter.get()) == 0;
}

} // namespace velara::decode
