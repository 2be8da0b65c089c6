// Starts a velara-decode with its three descriptors, an environment without information, and nothing else of ours.
#pragma once
#include <QStringList>
#include <sys/types.h>

namespace velara {

struct ReaderStart {
    QString decoder, extension;
    int socket, memory, file; // become decode::kSocket, kMemory, kPicture; all must be above those numbers
    QStringList wishes = {};  // further arguments; see DecodeProtocol.h
};

/// The process, a child of this one and leader of its own group; -1 when none can be started. Replaceable by programs
/// that read very many pictures.
extern pid_t (*startReader)(const ReaderStart& start);

} // namespace velara
