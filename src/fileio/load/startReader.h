// How a velara-decode comes to life: with its three descriptors, an environment that tells nothing, and no other thing
// of ours.
#pragma once
#include <QString>
#include <sys/types.h>

namespace velara {

struct ReaderStart {
    QString decoder, extension;
    int socket, memory, file; // become decode::kSocket, kMemory, kPicture; all above those numbers
};

/// The process, a child of this one and a group of its own; -1 when none can be started. Who reads very many pictures
/// may put another way in.
extern pid_t (*startReader)(const ReaderStart& start);

} // namespace velara
