#include "tools/fuzz/WarmReaders.h"
#include "fileio/load/PictureLoader.h"
#include <array>
#include <cstring>
#include <fcntl.h>
#include <sys/socket.h>
#include <sys/wait.h>

namespace velara::fuzz {

namespace {

constexpr int kFirstFree = 10;
Descriptor line;
pid_t (*cold)(const ReaderStart& start) = nullptr;

pid_t copyOfTheWarmOne(const ReaderStart& start)
{
    const std::array<int, 3> descriptors{start.socket, start.memory, start.file};
    std::string extension = start.extension.toStdString();
    alignas(cmsghdr) std::array<char, CMSG_SPACE(sizeof descriptors)> control{};
    iovec block{extension.data(), extension.size()};
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
    const bool asked = sendmsg(line.get(), &message, MSG_NOSIGNAL) >= 0;
    return asked && recv(line.get(), &pid, sizeof pid, 0) == sizeof pid ? pid : -1;
}

Descriptor movedUp(int fd)
{
    const Descriptor low(fd);
    return Descriptor(fcntl(fd, F_DUPFD_CLOEXEC, kFirstFree));
}

} // namespace

WarmReaders::WarmReaders()
{
    std::array<int, 2> ends{};
    if (socketpair(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0, ends.data()) != 0) qFatal("no line");
    const Descriptor theirs = movedUp(ends[0]), nothing = movedUp(open("/dev/null", O_RDWR | O_CLOEXEC));
    line = movedUp(ends[1]);
    pid_ = startReader({findHelper("velara-decode-warm"), "warm", theirs.get(), nothing.get(), nothing.get()});
    if (pid_ < 0) qFatal("velara-decode-warm can't be started");
    cold = std::exchange(startReader, copyOfTheWarmOne);
}

WarmReaders::~WarmReaders()
{
    startReader = cold;
    line.close();
    waitpid(pid_, nullptr, 0);
}

} // namespace velara::fuzz
