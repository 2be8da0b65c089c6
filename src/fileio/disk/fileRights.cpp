#include "fileio/disk/fileRights.h"
#include <QByteArrayList>
#include <algorithm>
#include <array>
#include <cerrno>
#include <sys/xattr.h>
#include <unistd.h>

namespace velara {

namespace {

constexpr const char* kAccessList = "system.posix_acl_access";
constexpr std::array kOfTheBytes = {"security.capability", "security.ima", "security.evm"};

bool isUnknownHere(int error) { return error == ENOTSUP || error == ENOSYS; }

/// The result of a system call that reads attributes, whatever its length. False on an error.
template <class Call> bool readWhole(QByteArray& value, Call call)
{
    const ssize_t size = call(nullptr, 0);
    if (size < 0) return false;
    value.resize(size);
    return size == 0 || call(value.data(), static_cast<std::size_t>(size)) == size;
}

bool giveAttributes(int file, const char* path)
{
    QByteArray names;
    if (!readWhole(names, [path](char* to, std::size_t size) { return llistxattr(path, to, size); }))
        return isUnknownHere(errno);
    QByteArrayList list = names.split('\0');
    list.removeAll({});
    // A list that the folder gives to its new files was not the old file's.
    if (!list.contains(kAccessList) && fremovexattr(file, kAccessList) != 0 && errno != ENODATA &&
        !isUnknownHere(errno))
        return false;
    return std::ranges::all_of(list, [&](const QByteArray& name) {
        if (std::ranges::any_of(kOfTheBytes, [&](const char* other) { return name == other; })) return true;
        const auto read = [&](char* to, std::size_t size) { return lgetxattr(path, name.constData(), to, size); };
        QByteArray value;
        return readWhole(value, read) &&
               fsetxattr(file, name.constData(), value.constData(), static_cast<std::size_t>(value.size()), 0) == 0;
    });
}

} // namespace

bool giveRights(int file, const QByteArray& path, const struct stat& old)
{
    // The mode last: a change of owner clears the set-id bits, and nobody may read the file before it has its owner.
    if (fchown(file, old.st_uid, old.st_gid) == 0 && giveAttributes(file, path.constData()) &&
        fchmod(file, old.st_mode & 07777) == 0)
        return true;
    fchmod(file, 0600);
    return false;
}

} // namespace velara
