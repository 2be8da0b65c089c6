#include "fileio/load/DecoderProcess.h"
#include "fileio/load/DecodeProtocol.h"
#include "fileio/load/startReader.h"
#include "fileio/waitFor.h"
#include <QDir>
#include <QFile>
#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <mutex>
#include <poll.h>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

namespace velara {

using namespace std::chrono_literals;

namespace {

constexpr auto kBetweenLooks = 50ms;
constexpr int kFirstFree = 10; // keeps our ends clear of the numbers that the child uses

Descriptor movedUp(int fd)
{
    if (fd < 0) return Descriptor();
    const Descriptor low(fd);
    return Descriptor(fcntl(fd, F_DUPFD_CLOEXEC, kFirstFree));
}

/// Shared memory that neither side can shrink.
Descriptor sharedMemory()
{
    Descriptor memory = movedUp(memfd_create("velara-decode", MFD_CLOEXEC | MFD_ALLOW_SEALING));
    if (memory.isOpen() && (ftruncate(memory.get(), decode::kMemoryBytes) != 0 ||
                            fcntl(memory.get(), F_ADD_SEALS, F_SEAL_SHRINK | F_SEAL_GROW | F_SEAL_SEAL) != 0))
        memory.close();
    return memory;
}

/// Its picture will use most of the shared memory, which is then had more cheaply at once than page by page.
bool isLarge(const Descriptor& file)
{
    constexpr off_t kLarge = 32 << 10;
    struct stat status {};
    return fstat(file.get(), &status) == 0 && status.st_size >= kLarge;
}

void limit(pid_t pid, __rlimit_resource resource, rlim_t soft, rlim_t hard)
{
    const rlimit value{soft, hard};
    prlimit(pid, resource, &value, nullptr);
}

void limit(pid_t pid, const DecoderLimits& limits)
{
#ifndef __SANITIZE_ADDRESS__ // its shadow memory alone takes terabytes of address space, and its reports go to files
    limit(pid, RLIMIT_AS, limits.memory, limits.memory);
    limit(pid, RLIMIT_FSIZE, 0, 0);
#endif
    limit(pid, RLIMIT_CPU, limits.cpuSeconds, limits.mostSeconds + 1); // the hard limit can't be raised after a claim
    limit(pid, RLIMIT_CORE, 0, 0);
}

std::mutex unreadableGuard; // pictures are read by several threads
int unreadables = 0, wasDumpable = 1;

} // namespace

UnreadableByOthers::UnreadableByOthers()
{
    const std::lock_guard guard(unreadableGuard);
    if (unreadables++ > 0) return;
    wasDumpable = prctl(PR_GET_DUMPABLE);
    prctl(PR_SET_DUMPABLE, 0);
}

UnreadableByOthers::~UnreadableByOthers()
{
    const std::lock_guard guard(unreadableGuard);
    if (--unreadables == 0) prctl(PR_SET_DUMPABLE, wasDumpable);
}

DecoderProcess::DecoderProcess(const QString& decoder, const Descriptor& file, const QString& extension,
                               const QStringList& wishes, const DecoderLimits& limits, const GoOn& goOn)
    : goOn_(goOn), limits_(limits), started_(std::chrono::steady_clock::now()), nextLook_(started_)
{
    std::array<int, 2> ends{};
    if (socketpair(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0, ends.data()) != 0) return;
    const Descriptor theirs = movedUp(ends[0]);
    socket_ = movedUp(ends[1]);
    const Descriptor memory = sharedMemory();
    if (!theirs.isOpen() || !socket_.isOpen() || !memory.isOpen()) return;
    const int early = isLarge(file) ? MAP_POPULATE : 0;
    void* mapped = mmap(nullptr, decode::kMemoryBytes, PROT_READ, MAP_SHARED | early, memory.get(), 0);
    if (mapped == MAP_FAILED) return;
    memory_ = static_cast<std::uint8_t*>(mapped);
    const Descriptor picture(fcntl(file.get(), F_DUPFD_CLOEXEC, kFirstFree));
    pid_ = startReader({decoder, extension, theirs.get(), memory.get(), picture.get(), wishes});
    if (started()) limit(pid_, limits);
}

DecoderProcess::~DecoderProcess()
{
    end();
    if (memory_) munmap(memory_, decode::kMemoryBytes);
}

void DecoderProcess::claim(std::int64_t pixels)
{
    limits_.cpuSeconds = std::max(limits_.cpuSeconds, std::min(secondsFor(pixels), limits_.mostSeconds));
    limit(pid_, RLIMIT_CPU, limits_.cpuSeconds, limits_.mostSeconds + 1);
}

namespace {

struct Doing {
    bool idle = false; // asleep or stopped, not just waiting for a processor or the disk
    long seconds = 0;  // of processor time
};

/// Of all its threads: while one draws, the main thread may sleep.
Doing doingOf(pid_t pid)
{
    const QString tasks = QString("/proc/%1/task").arg(pid);
    int known = 0, asleep = 0;
    long ticks = 0;
    for (const QString& task : QDir(tasks).entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        QFile file(tasks + '/' + task + "/stat");
        if (!file.open(QIODevice::ReadOnly)) continue;
        const QByteArray line = file.readAll(); // number (name) state ... user and system time, the 14th and 15th
        const QList<QByteArray> fields = line.mid(line.lastIndexOf(')') + 2).split(' ');
        if (fields.size() < 13) continue;
        ++known;
        asleep += fields[0] == "S" || fields[0] == "T" || fields[0] == "t";
        ticks += fields[11].toLong() + fields[12].toLong();
    }
    return {known > 0 && asleep == known, ticks / sysconf(_SC_CLK_TCK)};
}

} // namespace

std::optional<DecoderProcess::Wait> DecoderProcess::look(bool silent)
{
    using namespace std::chrono;
    constexpr auto kStopped = 5s; // longer than any machine is busy: this program itself was stopped meanwhile
    if (const auto late = steady_clock::now() - nextLook_; late > kStopped) started_ += late;
    const auto waited = duration_cast<milliseconds>(steady_clock::now() - started_);
    const Doing doing = waited < kBetweenLooks ? Doing() : doingOf(pid_); // most have ended before the second look
    if (doing.idle && silent) ++idleLooks_; // a child that has sent something may be waiting for us
    if (doing.seconds > limits_.cpuSeconds + 1) return Wait::TimedOut; // the child is ignoring the soft limit's signal
    if (waited >= limits_.wallClock || idleLooks_ * kBetweenLooks >= limits_.idle) return Wait::TimedOut;
    if (goOn_ && !goOn_(waited)) return Wait::Stopped;
    nextLook_ = steady_clock::now() + kBetweenLooks;
    return {};
}

DecoderProcess::Wait DecoderProcess::receive(void* message, std::size_t size)
{
    using namespace std::chrono;
    for (;;) {
        const auto left = ceil<milliseconds>(nextLook_ - steady_clock::now());
        pollfd waiting{socket_.get(), POLLIN, 0};
        const int ready = poll(&waiting, 1, static_cast<int>(std::max(left, 0ms).count()));
        if (steady_clock::now() >= nextLook_)
            if (const auto end = look(ready == 0)) return *end;
        if (ready == 0 || (ready < 0 && errno == EINTR)) continue;
        const ssize_t got = ready < 0 ? -1 : recv(socket_.get(), message, size, MSG_DONTWAIT | MSG_TRUNC);
        // A child that ended without reading all our bytes resets the connection once; its messages are still readable
        // afterwards.
        if (got < 0 && (errno == EINTR || errno == EAGAIN || errno == ECONNRESET)) continue;
        if (got <= 0) return Wait::Ended;
        return got == static_cast<ssize_t>(size) ? Wait::Message : Wait::Nonsense;
    }
}

void DecoderProcess::releaseSlot()
{
    const char token = 0;
    send(socket_.get(), &token, 1, MSG_DONTWAIT | MSG_NOSIGNAL); // a child that doesn't read hits the time limit
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
    kill(-pid, SIGKILL);
    kill(pid, SIGKILL);
    return waitFor(pid);
}

} // namespace velara
