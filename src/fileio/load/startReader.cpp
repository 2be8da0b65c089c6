#include "fileio/load/startReader.h"
#include "fileio/load/DecodeProtocol.h"
#include <QFile>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <spawn.h>
#include <string>
#include <vector>

namespace velara {

namespace {

/// The child gets no information about the session. It needs no screen, and huge pages save it page faults with large
/// pictures.
std::vector<std::string> childEnvironment()
{
    // Qt wants a runtime folder, which it makes where temporary files go: there it can't.
    std::vector<std::string> environment = {"GLIBC_TUNABLES=glibc.malloc.hugetlb=1", "QT_QPA_PLATFORM=offscreen",
                                            "TMPDIR=/proc/none", "OMP_NUM_THREADS=1"};
#ifdef __SANITIZE_ADDRESS__
    for (const char* name : {"ASAN_OPTIONS", "UBSAN_OPTIONS"})
        if (const char* value = std::getenv(name)) environment.push_back(std::string(name) + '=' + value);
#endif
    return environment;
}

std::vector<char*> pointersTo(std::vector<std::string>& texts)
{
    std::vector<char*> pointers;
    for (std::string& text : texts) pointers.push_back(text.data());
    pointers.push_back(nullptr);
    return pointers;
}

pid_t spawn(const ReaderStart& start)
{
    std::vector<std::string> arguments = {QFile::encodeName(start.decoder).toStdString(),
                                          start.extension.toStdString()};
    for (const QString& wish : start.wishes) arguments.push_back(wish.toStdString());
    std::vector<std::string> environment = childEnvironment();
    posix_spawn_file_actions_t actions;
    posix_spawnattr_t attributes;
    posix_spawn_file_actions_init(&actions);
    posix_spawnattr_init(&attributes);
    posix_spawn_file_actions_addopen(&actions, 0, "/dev/null", O_RDONLY, 0);
    posix_spawn_file_actions_addopen(&actions, 1, "/dev/null", O_WRONLY, 0);
#ifndef __SANITIZE_ADDRESS__                                                 // its reports are wanted
    posix_spawn_file_actions_addopen(&actions, 2, "/dev/null", O_WRONLY, 0); // libraries print messages about odd tags
#endif
    posix_spawn_file_actions_adddup2(&actions, start.socket, decode::kSocket);
    posix_spawn_file_actions_adddup2(&actions, start.memory, decode::kMemory);
    posix_spawn_file_actions_adddup2(&actions, start.file, decode::kPicture);
    posix_spawn_file_actions_addclosefrom_np(&actions, decode::kPicture + 1);
    sigset_t all, none;
    sigfillset(&all);
    sigemptyset(&none);
    posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSIGDEF | POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETPGROUP);
    posix_spawnattr_setsigdefault(&attributes, &all);
    posix_spawnattr_setsigmask(&attributes, &none);
    posix_spawnattr_setpgroup(&attributes, 0); // a process group of its own, to be killed as a whole
    pid_t pid = -1;
    if (posix_spawn(&pid, arguments[0].c_str(), &actions, &attributes, pointersTo(arguments).data(),
                    pointersTo(environment).data()) != 0)
        pid = -1;
    posix_spawnattr_destroy(&attributes);
    posix_spawn_file_actions_destroy(&actions);
    return pid;
}

} // namespace

pid_t (*startReader)(const ReaderStart& start) = spawn;

} // namespace velara
