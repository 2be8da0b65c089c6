#include "fileio/load/WarmReaders.h"
#include "fileio/load/DecodeProtocol.h"
#include "fileio/load/Descriptor.h"
#include "fileio/load/PictureLoader.h"
#include "fileio/waitFor.h"
#include <array>
#include <cstring>
#include <fcntl.h>
#include <mutex>
#include <sys/socket.h>

namespace velara {

namespace {

constexpr int kFirstFree = 10; // above the numbers that a reader uses
std::mutex guard;              // of the line: a question and its answer belong together
Descriptor line;
pid_t (*cold)(const ReaderStart& start) = nullptr;

/// The extension and the wishes, each with a zero at its end.
std::string orderOf(const ReaderStart& start)
{
    std::string order = start.extension.toStdString() + '\0';
    for (const QString& wish : start.wishes) order += wish.toStdString() + '\0';
    return order;
}

pid_t askForAFork(const ReaderStart& start)
{
    std::string order = orderOf(start);
    if (order.size() > decode::kMostInOrder) return -1;
    const std::array<int, 3> descriptors{start.socket, start.memory, start.file};
    alignas(cmsghdr) std::array<char, CMSG_SPACE(sizeof descriptors)> control{};
    iovec block{order.data(), order.size()};
    msghdr message{};
    message.msg_iov = &block;
    message.msg_iovlen = 1;
    message.msg_control = control.data();
    message.msg_controllen = control.size();
    cmsghdr* head = CMSG_FIRSTHDR(&message);
    head->cmsg_level = SOL_SOCKET;
    head->cmsg_type = SCM_RIGHTS;
    head->cmsg_len = CMSG_LEN(sizeof descriptors);
    std::memcpy(CMSG_DATA(head), descriptors.data(), sizeof descriptors);
    pid_t pid = -1;
    const std::lock_guard lock(guard);
    const bool asked = sendmsg(line.get(), &message, MSG_NOSIGNAL) >= 0;
    return asked && recv(line.get(), &pid, sizeof pid, 0) == sizeof pid ? pid : -1;
}

pid_t startWarm(const ReaderStart& start)
{
    const pid_t pid = askForAFork(start);
    return pid > 0 ? pid : cold(start);
}

Descriptor movedUp(int fd)
{
    const Descriptor low(fd);
    return Descriptor(fcntl(fd, F_DUPFD_CLOEXEC, kFirstFree));
}

} // namespace

WarmReaders::WarmReaders(const QStringList& extensions)
{
    std::array<int, 2> ends{};
    if (socketpair(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0, ends.data()) != 0) return;
    const Descriptor theirs = movedUp(ends[0]), nothing = movedUp(open("/dev/null", O_RDWR | O_CLOEXEC));
    line = movedUp(ends[1]);
    pid_ = startReader({findDecoder(),
                        extensions.join(u','),
                        theirs.get(),
                        nothing.get(),
                        nothing.get(),
                        {QLatin1String(decode::kWarmWish)}});
    if (started()) cold = std::exchange(startReader, startWarm);
}

WarmReaders::~WarmReaders()
{
    line.close();
    if (!started()) return;
    startReader = cold;
    waitFor(pid_);
}

} // namespace velara
