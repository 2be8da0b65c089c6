// A compromised reader: it tries what the file says, and reports as the reason whether it worked. It replaces the
// readers in a build of velara-decode that only the tests have.
//
// The file: the name of an attempt, a line end, its target. The extension selects the cage: "plain", "fonts", or
// "nofilter" for the second without the filter of system calls, so that the other layers are tested.
#include "fileio/decode/decode.h"
#include "fileio/load/DecodeProtocol.h"
#include <arpa/inet.h>
#include <cerrno>
#include <csignal>
#include <cstddef>
#include <cstring>
#include <fcntl.h>
#include <linux/futex.h>
#include <sched.h>
#include <string>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/ptrace.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/uio.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>

namespace velara::decode {

void (*sizeFound)(std::int64_t width, std::int64_t height, int bits) = [](std::int64_t, std::int64_t, int) {};
int wantedPage = 0;

namespace {

// Each returns 0 or more when it worked, else -1 with errno.
using Attempt = long (*)(const char* on);

long writeParent(const char* on)
{
    const int memory = open(("/proc/" + std::to_string(getppid()) + "/mem").c_str(), O_RDWR);
    return memory < 0 ? -1 : pwrite(memory, "x", 1, std::stoll(on, nullptr, 16));
}

long writeParentDirectly(const char* on)
{
    char byte = 'x';
    const iovec from{&byte, 1}, to{reinterpret_cast<void*>(std::stoull(on, nullptr, 16)), 1};
    return process_vm_writev(getppid(), &from, 1, &to, 1, 0);
}

long throughSharedMapping(const char* on)
{
    const int file = open(on, O_RDWR);
    if (file < 0) return -1;
    void* mapped = mmap(nullptr, 1, PROT_READ | PROT_WRITE, MAP_SHARED, file, 0);
    if (mapped == MAP_FAILED) return -1;
    *static_cast<char*>(mapped) = 'x';
    return 0;
}

/// Whether connecting is possible: no answer is needed.
template <class Address> long reach(const Address& address, std::size_t size)
{
    const int line = socket(reinterpret_cast<const sockaddr&>(address).sa_family, SOCK_STREAM, 0);
    if (line < 0) return -1;
    const int done = connect(line, reinterpret_cast<const sockaddr*>(&address), socklen_t(size));
    return done < 0 && errno == ECONNREFUSED ? 0 : done;
}

long reachDisplay(const char*)
{
    return reach(sockaddr_un{AF_UNIX, "\0/tmp/.X11-unix/X0"}, offsetof(sockaddr_un, sun_path) + 18);
}

long connectTo(const char* port)
{
    const auto number = htons(static_cast<std::uint16_t>(std::stoi(port)));
    return reach(sockaddr_in{AF_INET, number, {htonl(INADDR_LOOPBACK)}, {}}, sizeof(sockaddr_in));
}

long outlive(const char* on)
{
    const pid_t child = fork();
    if (child != 0) return child;
    setsid();
    prctl(PR_SET_PDEATHSIG, 0);
    usleep(500000);
    _exit(creat(on, 0600));
}

long trace(const char*)
{
    if (ptrace(PTRACE_ATTACH, getppid(), nullptr, nullptr) != 0) return -1;
    waitpid(getppid(), nullptr, __WALL);
    return ptrace(PTRACE_DETACH, getppid(), nullptr, nullptr);
}

constexpr int kThread = CLONE_VM | CLONE_FS | CLONE_FILES | CLONE_SIGHAND | CLONE_THREAD | CLONE_SYSVSEM;
alignas(4096) char aside[2 * 4096];

constexpr struct {
    const char* name;
    Attempt attempt;
} kAttempts[] = {
    {"read", [](const char* on) -> long { return open(on, O_RDONLY); }},
    {"create", [](const char* on) -> long { return open((std::string(on) + ".new").c_str(), O_CREAT | O_RDWR, 0600); }},
    {"write", [](const char* on) -> long { return open(on, O_WRONLY); }},
    {"truncate", [](const char* on) -> long { return truncate(on, 0); }},
    {"link", [](const char* on) -> long { return link(on, (std::string(on) + ".link").c_str()); }},
    {"unlink", [](const char* on) -> long { return unlink(on); }},
    {"list", [](const char*) -> long { return open("/", O_RDONLY | O_DIRECTORY); }},
    {"map", throughSharedMapping},
    {"shell",
     [](const char* on) -> long { return execl("/bin/sh", "sh", "-c", ("rm " + std::string(on)).c_str(), nullptr); }},
    {"outlive", outlive},
    {"connect", connectTo},
    {"display", reachDisplay},
    {"memory", writeParent},
    {"direct", writeParentDirectly},
    {"trace", trace},
    {"signal", [](const char*) -> long { return kill(getppid(), SIGURG); }},
    {"code",
     [](const char*) -> long {
         void* page = mmap(nullptr, 4096, PROT_READ | PROT_WRITE | PROT_EXEC, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
         return page == MAP_FAILED ? -1 : 0;
     }},
    {"stat",
     [](const char* on) -> long {
         struct stat status;
         return stat(on, &status);
     }},
    {"exists", [](const char* on) -> long { return access(on, F_OK); }},
    {"root", [](const char*) -> long { return chroot("/"); }},
    {"thread",
     [](const char*) -> long { return clone([](void*) { return 0; }, aside + sizeof aside, kThread, nullptr); }},
    {"requeue",
     [](const char*) -> long {
         int word = 0;
         return syscall(SYS_futex, &word, FUTEX_REQUEUE, 1, 0, &word);
     }},
    {"advice", [](const char*) -> long { return madvise(aside, 4096, MADV_DONTDUMP); }},
    {"space",
     [](const char*) -> long {
         void* much = mmap(nullptr, kMostMemory, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
         return much == MAP_FAILED ? -1 : 0;
     }},
    {"font",
     [](const char* on) -> long {
         struct stat byPath {
         }, byFile{};
         const int first = open(on, O_RDONLY), second = openat(AT_FDCWD, on, O_RDONLY);
         char a[4] = "a", b[4] = "b";
         const bool same = pread(first, a, 4, 0) == 4 && pread(second, b, 4, 0) == 4 && std::memcmp(a, b, 4) == 0;
         const bool known = stat(on, &byPath) == 0 && fstat(second, &byFile) == 0 && byPath.st_size == byFile.st_size;
         return same && known && close(first) == 0 && access(on, R_OK) == 0 ? 0 : -1;
     }},
    {"nothing", [](const char*) -> long { return 0; }}, // proves that success is reported
};

Decoded tryIt(const FileBytes& file)
{
    const std::string text(reinterpret_cast<const char*>(file.bytes().data()), file.size());
    const std::string name = text.substr(0, text.find('\n')), on = text.substr(text.find('\n') + 1);
    for (const auto& row : kAttempts)
        if (name == row.name) {
            const bool worked = row.attempt(on.c_str()) >= 0;
            return refused(worked ? QString("it worked") : QString("refused: ") + std::strerror(errno));
        }
    return refused("no such attempt");
}

} // namespace

bool readsHere(std::string_view, std::span<const std::uint8_t>) { return true; }

Needs prepareReaders(const QString& extension, std::span<const std::uint8_t> bytes)
{
    if (extension == "nofilter") {
        enterCage(Needs::Drawing, kAllLayers & ~Seccomp);
        Opening opening{kMagic, 0, 0, {}};
        const QByteArray reason = tryIt(FileBytes(std::vector(bytes.begin(), bytes.end()))).reason.toUtf8();
        std::memcpy(opening.reason, reason.constData(), static_cast<std::size_t>(reason.size()));
        send(kSocket, &opening, sizeof opening, MSG_NOSIGNAL);
        _exit(1);
    }
    return extension == "fonts" ? Needs::Drawing : Needs::Nothing;
}

Decoded decodePicture(FileBytes&& file, const QString&, Wanted) { return tryIt(file); }

} // namespace velara::decode
