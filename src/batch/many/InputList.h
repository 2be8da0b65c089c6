// The pictures among the INPUTs: files, and what is in folders.
#pragma once
#include <QString>
#include <QStringList>
#include <cstdint>
#include <sys/types.h>
#include <vector>

namespace velara {

/// A file by what it is, whatever names it has.
struct FileIdentity {
    dev_t device = 0;
    ino_t inode = 0;
    auto operator<=>(const FileIdentity&) const = default;
};

struct InputFile {
    QString path;
    QString dir = {};                          // the folders between the INPUT and the file
    FileIdentity identity = {};                // zeros: there is no such file
    std::int64_t seconds = 0, nanoseconds = 0; // when it was last changed
};

struct InputList {
    std::vector<InputFile> files;
    QStringList notices; // folders that were left out, and why
};

/// The files among the INPUTs in their order, each once, and the pictures in the folders, by name; in folders below
/// only with recursive. A folder is looked through once, however many links lead to it, and `into` not at all. Names
/// that begin with a dot are left out, as are files that no reader knows by their ending.
InputList findInputs(const QStringList& inputs, bool recursive, const QString& into);

} // namespace velara
