// Who may do what with a file: owner, group, mode, access lists and the other extended attributes.
#pragma once
#include <QByteArray>
#include <sys/stat.h>

namespace velara {

/// Gives an open new file all that the one at path has (old: its status), but the marks that belong to its bytes
/// (capabilities, measured sums). False when any of it can't be given: then the new file is the user's alone.
bool giveRights(int file, const QByteArray& path, const struct stat& old);

} // namespace velara
