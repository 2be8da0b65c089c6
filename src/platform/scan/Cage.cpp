#include "platform/scan/Cage.h"
#include "fileio/decode/cage/landlock.h"
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <glob.h>
#include <memory>
#include <seccomp.h>
#include <string_view>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <unistd.h>

namespace velara {

namespace {

using decode::OpenPath;

// clang-format off
/// Paths that drivers read, communicate through or write; * as in a shell. HOME stands for the user's folder.
constexpr struct { const char* path; OpenPath::Use use; } kOpen[] = {
    {"/usr", OpenPath::Reading}, {"/lib*", OpenPath::Reading}, {"/etc", OpenPath::Reading},
    {"/opt", OpenPath::Reading}, {"/var/lib", OpenPath::Reading}, {"/run/udev", OpenPath::Reading},
    {"/sys", OpenPath::Reading}, {"/proc", OpenPath::Reading}, {"/dev", OpenPath::Listing},
    {"/dev/bus/usb", OpenPath::Device}, {"/dev/usb", OpenPath::Device}, {"/dev/*scanner*", OpenPath::Device},
    {"/dev/sg*", OpenPath::Device}, {"/dev/parport*", OpenPath::Device}, {"/dev/tty[SU]*", OpenPath::Device},
    {"/dev/null", OpenPath::Device}, {"/dev/zero", OpenPath::Reading}, {"/dev/*random", OpenPath::Reading},
    {"/run/lock/sane", OpenPath::Writing}, {"HOME/.sane", OpenPath::Writing}, // locks; calibrations
};

/// The environment variables that are kept; the others reveal display, session and keys.
constexpr std::string_view kVariables[] = {"HOME=", "LANG=", "LC_", "PATH=", "TZ=", "SANE_"};

constexpr rlim_t kGigabyte = 1 << 30;
constexpr struct { __rlimit_resource resource; rlim_t most; } kLimits[] = {
#ifndef __SANITIZE_ADDRESS__ // its shadow memory alone takes terabytes of address space
    {RLIMIT_AS, 6 * kGigabyte}, // the largest picture while it grows, and a copy while it is saved
#endif
    {RLIMIT_FSIZE, kGigabyte}, {RLIMIT_CORE, 0}, {RLIMIT_NOFILE, 256}, {RLIMIT_CPU, 900},
};

/// Calls that no driver needs, and that have been used to attack kernels and other processes.
constexpr int kRefused[] = {
    SCMP_SYS(execve), SCMP_SYS(execveat), SCMP_SYS(ptrace), SCMP_SYS(process_vm_readv), SCMP_SYS(process_vm_writev),
    SCMP_SYS(pidfd_getfd), SCMP_SYS(add_key), SCMP_SYS(request_key), SCMP_SYS(keyctl), SCMP_SYS(bpf),
    SCMP_SYS(perf_event_open), SCMP_SYS(userfaultfd), SCMP_SYS(io_uring_setup), SCMP_SYS(unshare), SCMP_SYS(setns),
    SCMP_SYS(mount), SCMP_SYS(chroot), SCMP_SYS(acct), SCMP_SYS(kexec_load), SCMP_SYS(init_module),
    SCMP_SYS(finit_module), SCMP_SYS(personality), SCMP_SYS(open_by_handle_at),
};
// clang-format on

void forgetTheSession()
{
    for (char** variable = environ; *variable;) {
        const std::string_view text = *variable;
        bool stays = false;
        for (const std::string_view name : kVariables) stays |= text.starts_with(name);
        if (stays)
            ++variable;
        else
            unsetenv(std::string(text.substr(0, text.find('='))).c_str()); // the next one moves to its place
    }
}

std::vector<OpenPath> openPaths()
{
    std::vector<OpenPath> paths;
    const char* home = std::getenv("HOME");
    for (const auto& row : kOpen) {
        std::string pattern = row.path;
        if (pattern.starts_with("HOME")) pattern.replace(0, 4, home ? home : "/nonexistent");
        glob_t found{};
        if (glob(pattern.c_str(), 0, nullptr, &found) == 0)
            for (std::size_t i = 0; i < found.gl_pathc; ++i) paths.push_back({found.gl_pathv[i], row.use});
        globfree(&found);
    }
    std::string_view folders = std::getenv("SANE_CONFIG_DIR") ? std::getenv("SANE_CONFIG_DIR") : "";
    while (!folders.empty()) {
        const auto end = folders.find(':');
        if (end > 0) paths.push_back({std::string(folders.substr(0, end)), OpenPath::Reading});
        folders.remove_prefix(end == folders.npos ? folders.size() : end + 1);
    }
    return paths;
}

bool limitResources()
{
    bool done = true;
    for (const auto& row : kLimits) {
        const rlimit value{row.most, row.most};
        done &= setrlimit(row.resource, &value) == 0 || errno == EPERM; // a lower limit is already set
    }
    return done;
}

bool refuseCalls()
{
    const std::unique_ptr<void, decltype(&seccomp_release)> filter(seccomp_init(SCMP_ACT_ALLOW), &seccomp_release);
    bool ok = filter != nullptr;
    for (const int call : kRefused) ok = ok && seccomp_rule_add(filter.get(), SCMP_ACT_ERRNO(EPERM), call, 0) == 0;
    return ok && seccomp_load(filter.get()) == 0;
}

} // namespace

bool enterScanCage()
{
    forgetTheSession();
    return prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0 && limitResources() &&
           decode::closePaths(openPaths(), decode::Ports::Open) != decode::Closing::Failed && refuseCalls();
}

} // namespace velara

// Drivers store pages in files without a name. This replaces the library's: in memory, since no folder is writable.
extern "C" FILE* tmpfile()
{
    const int file = memfd_create("scan", MFD_CLOEXEC);
    return file < 0 ? nullptr : fdopen(file, "w+");
}
extern "C" FILE* tmpfile64() { return tmpfile(); }
