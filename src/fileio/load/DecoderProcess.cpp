#include "fileio/load/DecoderProcess.h"
#include "fileio/load/DecodeProtocol.h"
#include <QFile>
#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <string>
#include <string_view>
#include <sys/mman.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <vector>

namespace velara {

using namespace std::chrono_literals;

namespace {

constexpr int kFirstFree = 10; // our ends stay clear of the numbers that the child expects

Descriptor movedUp(int fd)
{
    if (fd < 0) return Descriptor();
    const Descriptor low(fd);
    return Descriptor(fcntl(fd, F_DUPFD_CLOEXEC, kFirstFree));
}

/// Shared memory that neither side can shrink under the other.
Descriptor sharedMemory()
{
    Descriptor memory = movedUp(memfd_create("velara-decode", MFD_CLOEXEC | MFD_ALLOW_SEALING));
    if (memory.isOpen() && (ftruncate(memory.get(), decode::kMemoryBytes) != 0 ||
                            fcntl(memory.get(), F_ADD_SEALS, F_SEAL_SHRINK | F_SEAL_GROW | F_SEAL_SEAL) != 0))
        memory.close();
    return memory;
}

/// The child needs no screen, and big pictures cost it fewer page faults in huge pages.
std::vector<std::string> childEnvironment()
{
    static constexpr std::string_view kOurs[] = {"GLIBC_TUNABLES=glibc.malloc.hugetlb=1", "QT_QPA_PLATFORM=offscreen"};
    std::vector<std::string> environment(std::begin(kOurs), std::end(kOurs));
    for (char** entry = environ; *entry; ++entry) {
        const std::string_view text(*entry);
        const bool replaced = std::any_of(std::begin(kOurs), std::end(kOurs), [text](std::string_view ours) {
            return text.starts_with(ours.substr(0, ours.find('=') + 1));
        });
        if (!replaced) environment.emplace_back(text);
    }
    return environment;
}

std::vector<char*> pointersTo(std::vector<std::string>& texts)
{
    std::vector<char*> pointers;
    for (std::string& text : texts) pointers.push_back(text.data());
    pointers.push_back(nullptr);
    return pointers;
}

void limit(pid_t pid, __rlimit_resource resource, rlim_t soft, rlim_t hard)
{
    const rlimit value{soft, hard};
    prlimit(pid, resource, &value, nullptr);
}

void limit(pid_t pid, const DecoderLimits& limits)
{
#ifndef __SANITIZE_ADDRESS__ // its shadow memory alone takes terabytes of address space
    limit(pid, RLIMIT_AS, limits.memory, limits.memory);
#endif
    limit(pid, RLIMIT_CPU, limits.cpuSeconds, limits.cpuSeconds + 1);
    limit(pid, RLIMIT_FSIZE, 0, 0);
    limit(pid, RLIMIT_CORE, 0, 0);
}

} // namespace

void Descriptor::close()
{
    if (fd_ >= 0) ::close(fd_);
    fd_ = -1;
}

DecoderProcess::DecoderProcess(const QString& decoder, const QString& path, const QString& extension,
                               const DecoderLimits& limits)
    : deadline_(std::chrono::steady_clock::now() + limits.wallClock)
{
    std::array<int, 2> ends{};
    if (socketpair(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0, ends.data()) != 0) return;
    const Descriptor theirs = movedUp(ends[0]);
    socket_ = movedUp(ends[1]);
    const Descriptor memory = sharedMemory();
    if (!theirs.isOpen() || !socket_.isOpen() || !memory.isOpen()) return;
    void* mapped = mmap(nullptr, decode::kMemoryBytes, PROT_READ, MAP_SHARED | MAP_POPULATE, memory.get(), 0);
    if (mapped == MAP_FAILED) return;
    memory_ = static_cast<std::uint8_t*>(mapped);
    spawn(decoder, path, extension, theirs.get(), memory.get());
    if (started()) limit(pid_, limits);
}

void DecoderProcess::spawn(const QString& decoder, const QString& path, const QString& extension, int socket,
                           int memory)
{
    std::vector<std::string> arguments = {QFile::encodeName(decoder).toStdString(),
                                          QFile::encodeName(path).toStdString(), extension.toStdString()};
    std::vector<std::string> environment = childEnvironment();
    posix_spawn_file_actions_t actions;
    posix_spawnattr_t attributes;
    posix_spawn_file_actions_init(&actions);
    posix_spawnattr_init(&attributes);
    posix_spawn_file_actions_addopen(&actions, 0, "/dev/null", O_RDONLY, 0);
    posix_spawn_file_actions_addopen(&actions, 1, "/dev/null", O_WRONLY, 0);
    posix_spawn_file_actions_addopen(&actions, 2, "/dev/null", O_WRONLY, 0); // libraries chatter about odd tags
    posix_spawn_file_actions_adddup2(&actions, socket, decode::kSocket);
    posix_spawn_file_actions_adddup2(&actions, memory, decode::kMemory);
    posix_spawn_file_actions_addclosefrom_np(&actions, decode::kMemory + 1);
    sigset_t all, none;
    sigfillset(&all);
    sigemptyset(&none);
    posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSIGDEF | POSIX_SPAWN_SETSIGMASK);
    posix_spawnattr_setsigdefault(&attributes, &all);
    posix_spawnattr_setsigmask(&attributes, &none);
    if (posix_spawn(&pid_, arguments[0].c_str(), &actions, &attributes, pointersTo(arguments).data(),
                    pointersTo(environment).data()) != 0)
        pid_ = -1;
    posix_spawnattr_destroy(&attributes);
    posix_spawn_file_actions_destroy(&actions);
}

DecoderProcess::~DecoderProcess()
{
    end();
    if (memory_) munmap(memory_, decode::kMemoryBytes);
}

DecoderProcess::Wait DecoderProcess::receive(void* message, std::size_t size)
{
    using namespace std::chrono;
    for (;;) {
        const auto left = ceil<milliseconds>(deadline_ - steady_clock::now()).count();
        if (left <= 0) return Wait::TimedOut;
        pollfd waiting{socket_.get(), POLLIN, 0};
        const int ready = poll(&waiting, 1, static_cast<int>(left));
        if (ready == 0) return Wait::TimedOut;
        if (ready < 0 && errno == EINTR) continue;
        const ssize_t got = ready < 0 ? -1 : recv(socket_.get(), message, size, MSG_DONTWAIT | MSG_TRUNC);
        // A child that ended without reading all our bytes resets the line once; its messages still wait behind that.
        if (got < 0 && (errno == EINTR || errno == EAGAIN || errno == ECONNRESET)) continue;
        if (got <= 0) return Wait::Ended;
        return got == static_cast<ssize_t>(size) ? Wait::Message : Wait::Nonsense;
    }
}

void DecoderProcess::releaseSlot()
{
    const char token = 0;
    send(socket_.get(), &token, 1, MSG_DONTWAIT | MSG_NOSIGNAL); // a child that doesn't listen ends in the time limit
}

int DecoderProcess::end(std::chrono::milliseconds patience)
{
    if (!started()) return -1;
    const pid_t pid = std::exchange(pid_, -1);
    int status = -1;
    for (auto waited = 0ms; waited < patience; waited += 1ms) {
        const pid_t ended = waitpid(pid, &status, WNOHANG);
        if (ended != 0) return ended > 0 ? status : -1;
        std::this_thread::sleep_for(1ms);
    }
    kill(pid, SIGKILL);
    while (waitpid(pid, &status, 0) < 0)
        if (errno != EINTR) return -1;
    return status;
}

} // namespace velara
