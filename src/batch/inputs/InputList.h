// The pictures among the INPUTs: files, and what is in folders.
#pragma once
#include "batch/inputs/InputFiles.h"
#include <QStringList>

namespace velara {

struct InputList {
    InputFiles files;
    QStringList notices; // folders that were left out, and why
};

/// The files among the INPUTs in their order, each once, and the pictures in the folders, by name; in folders below
/// only with recursive. A folder is looked through once, however many links lead to it, and `into` not at all. Names
/// that begin with a dot are left out, as are files that no reader knows by their ending.
InputList findInputs(const QStringList& inputs, bool recursive, const QString& into);

} // namespace velara
