// Permissions of a file: owner, group, mode, access lists and the other extended attributes.
#pragma once
#include <QByteArray>
#include <sys/stat.h>

namespace velara {

/// Gives an open new file all rights of the one at path (old: its status), except attributes that belong to its
/// contents (capabilities, integrity hashes). False when any can't be given: then the new file is accessible to the
/// user only.
bool giveRights(int file, const QByteArray& path, const struct stat& old);

} // namespace velara
