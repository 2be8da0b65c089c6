// velara-decode EXTENSION: started by the editor and the batch program, one run per file; see DecodeProtocol.h.
// Starting a program that needs few libraries takes a third of the time, so velara-decode has the readers of the common
// formats alone, and becomes velara-decode-all for a file of any other.
#include "fileio/decode/answer.h"
#include "fileio/decode/becomeAll.h"
#include "fileio/decode/cage/Cage.h"
#include "fileio/decode/decode.h"
#include "fileio/decode/warm.h"
#include "fileio/load/DecodeProtocol.h"
#include <algorithm>
#include <cstdio>
#include <new>
#include <ranges>
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
/// Whether pictures are wanted that can't be read here, or may be. A loaded program is told their extensions, with
/// commas between them; none: any.
bool needsAllReaders(const char* extension, const char* wish)
{
    if (!wish || std::string_view(wish) != kWarmWish) return !readsFileHere(extension);
    const std::string_view all = extension;
    return all.empty() || !std::ranges::all_of(std::views::split(all, ','), [](const auto& each) {
               return readsHere(std::string_view(each.begin(), each.end()), {});
           });
}
#else
bool needsAllReaders(const char*, const char*) { return false; }
#endif

} // namespace

int main(int argc, char** argv)
{
    if (argc >= 2 && isCalled()) { // "--cage" is an extension here
        if (needsAllReaders(argv[1], argc > 2 ? argv[2] : nullptr)) becomeAllReaders(argv);
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
