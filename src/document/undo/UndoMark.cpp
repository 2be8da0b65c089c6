#include "document/undo/UndoMark.h"
#include <QFile>
#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace velara {

namespace {

/// Whether the path still refers to the open file.
bool isAt(int file, const QByteArray& path)
{
    struct stat open {
    }, named{};
    return fstat(file, &open) == 0 && lstat(path.constData(), &named) == 0 && open.st_dev == named.st_dev &&
           open.st_ino == named.st_ino;
}

/// A file system without locks is taken to have one user: counts as locked, but isLock is false then.
bool lockFile(int file, bool& isLock)
{
    isLock = flock(file, LOCK_EX | LOCK_NB) == 0;
    return isLock || errno != EWOULDBLOCK;
}

} // namespace

bool makePrivateFolder(const QString& folder)
{
    const QByteArray path = QFile::encodeName(folder);
    if (mkdir(path.constData(), 0700) == 0) return true;
    struct stat status {};
    if (stat(path.constData(), &status) != 0 || !S_ISDIR(status.st_mode)) return false;
    if (status.st_uid == geteuid() && (status.st_mode & 0077) != 0) chmod(path.constData(), 0700);
    return true;
}

UndoMark::Answer UndoMark::take(const QString& folder, int number)
{
    release();
    const QByteArray path =
        QFile::encodeName(folder + QStringLiteral("/b") + QString::number(number).rightJustified(4, u'0') + ".lock");
    for (int tries = 0; tries < 100; ++tries) {
        const int file = open(path.constData(), O_RDWR | O_CREAT | O_NOFOLLOW | O_CLOEXEC | O_NONBLOCK, 0600);
        if (file < 0) return Answer::Impossible;
        if (!lockFile(file, isLock_)) {
            close(file);
            return Answer::Taken;
        }
        if (isAt(file, path)) {
            file_ = file;
            path_ = path;
            return Answer::Ours;
        }
        close(file); // its owner removed it between the two calls
    }
    return Answer::Taken;
}

UndoMark& UndoMark::operator=(UndoMark&& other) noexcept
{
    if (this == &other) return *this;
    release();
    path_ = std::move(other.path_);
    file_ = std::exchange(other.file_, -1);
    isLock_ = other.isLock_;
    return *this;
}

bool UndoMark::stands() const { return file_ >= 0 && isAt(file_, path_); }

void UndoMark::release()
{
    if (stands()) unlink(path_.constData());
    leave();
}

void UndoMark::leave()
{
    if (file_ >= 0) close(std::exchange(file_, -1));
}

} // namespace velara
