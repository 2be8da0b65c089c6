// velara-decode EXTENSION: started by the editor and the batch program, one run a file; see DecodeProtocol.h.
#include "fileio/decode/Cage.h"
#include "fileio/decode/answer.h"
#include <cstdio>
#include <string_view>
#include <sys/wait.h>
#include <unistd.h>

using namespace velara;
using namespace velara::decode;

namespace {

/// The layers that hold here, found out by a process of its own: inside, nothing can be written to a file any more.
int printCage()
{
    const pid_t inside = fork();
    if (inside == 0) _exit(static_cast<int>(enterCage(Needs::Nothing)));
    int status = 0;
    const bool ended = waitpid(inside, &status, 0) == inside && WIFEXITED(status);
    std::fputs(describeCage(ended ? static_cast<unsigned>(WEXITSTATUS(status)) : 0).c_str(), stdout);
    return ended ? 0 : 1;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc == 2 && std::string_view(argv[1]) == "--cage") return printCage();
    if (argc == 2) answer(QString::fromUtf8(argv[1]));
    std::fprintf(stderr, "velara-decode is started by velara-studio and velara-batch to read one picture file.\n");
    return 2;
}
