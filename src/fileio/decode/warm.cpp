#include "fileio/decode/warm.h"
#include "fileio/decode/answer.h"
#include "fileio/decode/becomeAll.h"
#include "fileio/decode/decode.h"
#include "fileio/load/DecodeProtocol.h"
#include <QStringList>
#include <array>
#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <sched.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace velara::decode {

namespace {

struct Order {
    QStringList words; // extension and wishes; empty: no more requests
    std::array<int, 3> descriptors{};
};

Order receive()
{
    std::array<char, kMostInOrder> text{};
    alignas(cmsghdr) std::array<char, CMSG_SPACE(3 * sizeof(int))> control{};
    iovec block{text.data(), text.size()};
    msghdr message{};
    message.msg_iov = &block;
    message.msg_iovlen = 1;
    message.msg_control = control.data();
    message.msg_controllen = control.size();
    const ssize_t size = recvmsg(kSocket, &message, MSG_CMSG_CLOEXEC);
    const cmsghdr* head = CMSG_FIRSTHDR(&message);
    if (size <= 0 || !head || head->cmsg_len != CMSG_LEN(3 * sizeof(int))) return {};
    Order order{QString::fromUtf8(text.data(), size - 1).split(QChar(u'\0'))};
    std::memcpy(order.descriptors.data(), CMSG_DATA(head), sizeof order.descriptors);
    return order;
}

/// For a file of another kind than its name says.
void becomeAll(const QStringList& words)
{
    std::vector<std::string> texts{"velara-decode-all"};
    for (const QString& word : words) texts.push_back(word.toStdString());
    std::vector<char*> argv;
    for (std::string& text : texts) argv.push_back(text.data());
    argv.push_back(nullptr);
    becomeAllReaders(argv.data());
}

[[noreturn]] void read(const Order& order)
{
    setpgid(0, 0);
    constexpr std::array kPlaces = {kSocket, kMemory, kPicture};
    std::array<int, 3> aside{};
    for (std::size_t i = 0; i < 3; ++i) aside[i] = fcntl(order.descriptors[i], F_DUPFD, kPicture + 1);
    for (std::size_t i = 0; i < 3; ++i) dup2(aside[i], kPlaces[i]);
    close_range(kPicture + 1, ~0U, 0);
    if (!readsFileHere(order.words.first().toStdString())) becomeAll(order.words);
    answer(order.words.first(), order.words.mid(1));
    _exit(2);
}

} // namespace

void serveForks()
{
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    for (const char* extension : {"gif", "ico"})
        prepareReaders(extension, {}); // readers of metafiles may start threads
    for (Order order = receive(); !order.words.isEmpty(); order = receive()) {
        const auto pid = static_cast<pid_t>(syscall(SYS_clone, CLONE_PARENT | SIGCHLD, 0, 0, 0, 0));
        if (pid == 0) read(order);
        for (const int descriptor : order.descriptors) close(descriptor);
        if (send(kSocket, &pid, sizeof pid, MSG_NOSIGNAL) != sizeof pid) break;
    }
    _exit(0);
}

} // namespace velara::decode
