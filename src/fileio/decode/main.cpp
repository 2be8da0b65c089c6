// velara-decode EXTENSION: started by the editor and the batch program, one run per file; see DecodeProtocol.h.
// Starting a program that needs few libraries takes a third of the time, so velara-decode has the readers of the common
// formats alone, and becomes velara-decode-all for a file of any other.
#include "fileio/decode/answer.h"
#include "fileio/decode/cage/Cage.h"
#include "fileio/decode/decode.h"
#include "fileio/decode/warm.h"
#include "fileio/load/DecodeProtocol.h"
#include "fileio/marks.h"
#include <algorithm>
#include <array>
#include <cstdio>
#include <filesystem>
#include <new>
#include <span>
#include <string_view>
#include <sys/mman.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace velara;
using namespace velara::decode;

namespace {

/// Prints the active layers, determined in a child process: inside the cage nothing can be written to a file. 1: one is
/// missing.
int printCage()
{
    void* shared = mmap(nullptr, sizeof(CageState), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    if (shared == MAP_FAILED) return 1;
    auto* state = new (shared) CageState;
    const pid_t inside = fork();
    if (inside == 0) {
        *state = enterCage(Needs::Nothing);
        _exit(0);
    }
    waitpid(inside, nullptr, 0);
    std::fputs(describeCage(*state).c_str(), stdout);
    return state->holding == kAllLayers ? 0 : 1;
}

/// A program that wants a picture read is at the other end of the socket.
bool isCalled()
{
    int kind = 0;
    socklen_t size = sizeof kind;
    return getsockopt(kSocket, SOL_SOCKET, SO_TYPE, &kind, &size) == 0 && kind == SOCK_SEQPACKET;
}

#ifdef VELARA_COMMON_READERS
/// Goes on as velara-decode-all where a reader is missing here, or may be; returns when there is no such program.
void becomeAllReaders(char** argv)
{
    const bool mayReadAny = argv[2] && std::string_view(argv[2]) == kWarmWish;
    std::array<std::uint8_t, kMarkedBytes> head{};
    const ssize_t count = pread(kPicture, head.data(), head.size(), 0);
    const auto bytes = std::span(head).first(static_cast<std::size_t>(std::max<ssize_t>(count, 0)));
    if (!mayReadAny && readsHere(argv[1], bytes)) return;
    std::error_code failed;
    const auto self = std::filesystem::read_symlink("/proc/self/exe", failed);
    execv((self.parent_path() / "velara-decode-all").c_str(), argv);
}
#else
void becomeAllReaders(char**) {}
#endif

} // namespace

int main(int argc, char** argv)
{
    if (argc >= 2 && isCalled()) { // "--cage" is an extension here
        becomeAllReaders(argv);
        QStringList wishes;
        for (int i = 2; i < argc; ++i) wishes << QString::fromUtf8(argv[i]);
        if (wishes.contains(kWarmWish)) serveForks();
        answer(QString::fromUtf8(argv[1]), wishes);
    }
    if (argc == 2 && std::string_view(argv[1]) == "--cage") return printCage();
    std::fprintf(stderr, "velara-decode is started by velara-studio and velara-batch to read one picture file.\n"
                         "velara-decode --cage tells which layers of its cage hold on this machine.\n");
    return 2;
}
