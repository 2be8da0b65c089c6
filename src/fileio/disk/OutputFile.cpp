#include "fileio/disk/OutputFile.h"
#include "fileio/disk/fileBytes.h"
#include "fileio/disk/fileRights.h"
#include "fileio/disk/nativeName.h"
#include <QFile>
#include <QFileInfo>
#include <algorithm>
#include <array>
#include <cerrno>
#include <climits>
#include <cstdio>
#include <cstring>
#include <dirent.h>
#include <fcntl.h>
#include <memory>
#include <random>
#include <sys/file.h>
#include <sys/mman.h>
#include <sys/sendfile.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace velara {

namespace {

constexpr std::size_t kBuffer = 1 << 20;    // at whole numbers of it the system takes twice as many bytes a second
constexpr std::size_t kAskEvery = 32 << 10; // bytes, whether the file is wanted

constexpr const char kPart[] = ".velara-"; // prefix of the names of incomplete files
constexpr const char kPartEnd[] = ".part";

QByteArray folderOf(const QByteArray& path)
{
    const qsizetype slash = path.lastIndexOf('/');
    return slash < 0 ? QByteArray("./") : path.left(slash + 1);
}

/// In a folder where anybody may create links (/tmp), only the user's own links and those of the folder's owner are
/// followed.
bool mayFollow(const struct stat& link, const QByteArray& folder)
{
    struct stat place {};
    if (link.st_uid == geteuid() || stat(folder.constData(), &place) != 0) return true;
    return (place.st_mode & (S_ISVTX | S_IWOTH)) != (S_ISVTX | S_IWOTH) || link.st_uid == place.st_uid;
}

/// The lock distinguishes a file being written from one left by a dead program; the system releases it.
bool isMine(int file)
{
    struct stat status {};
    return flock(file, LOCK_EX | LOCK_NB) == 0 && fstat(file, &status) == 0 && status.st_nlink > 0;
}

void removeStraysIn(const QByteArray& folder)
{
    const std::unique_ptr<DIR, int (*)(DIR*)> entries(opendir(folder.constData()), closedir);
    while (const dirent* entry = entries ? readdir(entries.get()) : nullptr) {
        const QByteArray name = entry->d_name;
        if (!name.startsWith(kPart) || !name.endsWith(kPartEnd)) continue;
        const QByteArray path = folder + name;
        const int file = open(path.constData(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK);
        if (file < 0) continue;
        struct stat status {};
        const bool ours = fstat(file, &status) == 0 && S_ISREG(status.st_mode) && status.st_uid == geteuid();
        if (ours && isMine(file)) unlink(path.constData());
        close(file);
    }
}

/// The data is on the disk, as far as the file system can tell.
bool synced(int file) { return fsync(file) == 0 || errno == EINVAL || errno == ENOSYS || errno == ENOTSUP; }

/// Reserves disk space for a file that grows to the given bytes; true where that can't be asked for.
bool hasRoom(int file, off_t size)
{
    return size == 0 || fallocate(file, FALLOC_FL_KEEP_SIZE, 0, size) == 0 || errno == EOPNOTSUPP || errno == ENOSYS;
}

/// Copies all bytes of one file over the start of another.
bool copied(int from, int to, off_t size)
{
    off_t at = 0;
    while (at < size) {
        const ssize_t n = sendfile(to, from, &at, static_cast<std::size_t>(size - at));
        if (n < 0 && errno == EINTR) continue;
        if (n <= 0) return false;
    }
    return true;
}

/// No write bit at all means "don't touch", for root, too.
bool isProtected(const QByteArray& path, mode_t mode)
{
    return (mode & (S_IWUSR | S_IWGRP | S_IWOTH)) == 0 || access(path.constData(), W_OK) != 0;
}

bool looksForStrays = true;

QByteArray descriptorPath(int file) { return "/proc/self/fd/" + QByteArray::number(file); }

QByteArray newName(const QByteArray& folder)
{
    return folder + kPart + QByteArray::number(std::random_device()(), 36) + kPartEnd;
}

constexpr int kTries = 10; // for a name that nothing has

} // namespace

void removeStrays(const QString& folder) { removeStraysIn(nativeName(folder) + '/'); }

void OutputFile::lookForStrays(bool each) { looksForStrays = each; }

QString behindLinks(const QString& path)
{
    constexpr int kMostLinks = 40;
    QByteArray name = nativeName(path);
    for (int i = 0; i < kMostLinks; ++i) {
        struct stat status {};
        if (lstat(name.constData(), &status) != 0 || !S_ISLNK(status.st_mode)) return nameFrom(name);
        const QByteArray folder = folderOf(name);
        std::array<char, PATH_MAX> to{};
        const ssize_t length = readlink(name.constData(), to.data(), to.size());
        if (length <= 0 || !mayFollow(status, folder)) return {};
        const QByteArray target(to.data(), static_cast<int>(length));
        name = target.startsWith('/') ? target : folder + target;
    }
    return {};
}

OutputFile::OutputFile(const QString& path, Links links)
    : target_(nativeName(links == Links::Follow ? behindLinks(path) : path))
{
    buffer_ = std::make_unique_for_overwrite<std::uint8_t[]>(kBuffer);
    if (target_.isEmpty()) error_ = ELOOP;
    if (error_ != 0) return;
    if (looksForStrays) removeStraysIn(folderOf(target_));
    struct stat old;
    replaces_ = links == Links::Follow && stat(target_.constData(), &old) == 0;
    lasting_ = links == Links::Follow;
    if (replaces_ && (S_ISDIR(old.st_mode) || isProtected(target_, old.st_mode))) {
        error_ = S_ISDIR(old.st_mode) ? EISDIR : EACCES;
        return;
    }
    if (!replaces_ || S_ISREG(old.st_mode)) openBeside(lasting_ && !replaces_ ? 0666 : 0600);
    inPlace_ = replaces_ && (file_ < 0 || old.st_nlink > 1 || !giveRights(file_, target_, old));
    if (file_ < 0 && replaces_) file_ = memfd_create("picture", MFD_CLOEXEC);
    if (file_ < 0) error_ = errno;
}

void OutputFile::openBeside(mode_t mode)
{
    file_ = open(folderOf(target_).constData(), O_TMPFILE | O_RDWR | O_CLOEXEC, mode);
    isUnnamed_ = file_ >= 0 && access(descriptorPath(file_).constData(), F_OK) == 0;
    if (isUnnamed_) flock(file_, LOCK_EX | LOCK_NB); // until it has its name, in case somebody looks for strays
    if (file_ >= 0 && !isUnnamed_) close(std::exchange(file_, -1));
    if (file_ < 0) openNamed(mode);
}

void OutputFile::openNamed(mode_t mode)
{
    for (int tries = 0; tries < kTries && file_ < 0; ++tries) {
        temporary_ = newName(folderOf(target_));
        file_ = open(temporary_.constData(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC | O_NOFOLLOW, mode);
        if (file_ < 0 && errno != EEXIST) break;
        struct stat status {};
        errno = 0;
        if (file_ >= 0 && !isMine(file_) &&
            (errno == EWOULDBLOCK || (fstat(file_, &status) == 0 && status.st_nlink == 0)))
            close(std::exchange(file_, -1)); // between the two calls another program took it for a stray
    }
    if (file_ < 0) temporary_.clear();
}

/// A complete file gets a temporary name, by which it can be moved over another one.
bool OutputFile::giveName()
{
    if (!isUnnamed_) return true;
    const QByteArray itself = descriptorPath(file_);
    for (int tries = 0; tries < kTries; ++tries) {
        const QByteArray name = newName(folderOf(target_));
        if (linkat(AT_FDCWD, itself.constData(), AT_FDCWD, name.constData(), AT_SYMLINK_FOLLOW) == 0) {
            temporary_ = name;
            isUnnamed_ = false;
            return true;
        }
        if (errno != EEXIST) break;
    }
    return false;
}

OutputFile::~OutputFile()
{
    if (file_ >= 0) close(file_);
    if (!temporary_.isEmpty()) unlink(temporary_.constData());
}

/// Records errno after a failed system call.
bool OutputFile::fail()
{
    failed_ = true;
    if (error_ == 0) error_ = errno;
    return false;
}

bool OutputFile::goesOn()
{
    unasked_ = 0;
    if (!failed_ && goOn_ && !goOn_()) failed_ = true;
    return !failed_;
}

bool OutputFile::flush()
{
    if (goesOn() && used_ > 0 && !writeBlocks(file_, {buffer_.get(), used_})) fail();
    used_ = 0;
    return !failed_;
}

bool OutputFile::write(const void* bytes, std::size_t size)
{
    if (file_ < 0 || failed_) return false;
    unasked_ += size;
    if (unasked_ >= kAskEvery && !goesOn()) return false;
    ByteView rest{static_cast<const std::uint8_t*>(bytes), size};
    if (size >= kBuffer - used_) {
        const std::size_t direct = (used_ + size) / kBuffer * kBuffer - used_;
        if (!writeBlocks(file_, {buffer_.get(), used_}, rest.first(direct))) fail();
        used_ = 0;
        rest = rest.subspan(direct);
    }
    std::ranges::copy(rest, buffer_.get() + used_);
    used_ += rest.size();
    return !failed_;
}

/// Where that fails, the writes tell why.
void OutputFile::expect(std::int64_t bytes)
{
    if (bytes > 0 && !failed_) (void)fallocate(file_, FALLOC_FL_KEEP_SIZE, tell(), bytes);
}

std::size_t OutputFile::read(void* bytes, std::size_t size)
{
    if (file_ < 0 || !flush()) return 0;
    std::size_t got = 0;
    while (got < size) {
        const ssize_t n = ::read(file_, static_cast<std::uint8_t*>(bytes) + got, size - got);
        if (n < 0 && errno == EINTR) continue;
        if (n <= 0) break;
        got += static_cast<std::size_t>(n);
    }
    return got;
}

bool OutputFile::seek(std::int64_t offset, int whence)
{
    return file_ >= 0 && flush() && lseek(file_, offset, whence) >= 0;
}

std::int64_t OutputFile::tell()
{
    return file_ < 0 ? -1 : lseek(file_, 0, SEEK_CUR) + static_cast<std::int64_t>(used_);
}

bool OutputFile::publish()
{
    const bool onDisk = !lasting_ || synced(file_);
    if (onDisk && !giveName()) return false;
    if (inPlace_) return onDisk && copyOver();
    if (close(std::exchange(file_, -1)) != 0 || !onDisk) return false; // a file server may report a full disk only now
    if (std::rename(temporary_.constData(), target_.constData()) == 0) {
        temporary_.clear();
        return true;
    }
    if (replaces_) file_ = open(temporary_.constData(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW);
    return file_ >= 0 && copyOver(); // a file that is a mount point can't be replaced
}

bool OutputFile::copyOver()
{
    const off_t size = lseek(file_, 0, SEEK_END);
    const int target = open(target_.constData(), O_WRONLY | O_CLOEXEC | O_NONBLOCK | O_NOFOLLOW);
    if (target < 0 || size < 0) return false;
    struct stat status {};
    const bool isFile = fstat(target, &status) == 0 && S_ISREG(status.st_mode);
    if (isFile && !hasRoom(target, size)) {
        close(target);
        errno = ENOSPC;
        return false; // nothing has changed
    }
    bool whole = copied(file_, target, size);
    if (isFile) whole = whole && ftruncate(target, size) == 0 && synced(target);
    if (close(target) != 0) whole = false;
    if (!whole) keepBeside();
    return whole;
}

void OutputFile::keepBeside()
{
    if (temporary_.isEmpty()) return;
    const QFileInfo target(nameFrom(target_));
    const QString ending = target.suffix().isEmpty() ? QString() : '.' + target.suffix();
    for (int i = 1; i < 100; ++i) {
        const QString name = target.path() + '/' + target.completeBaseName() +
                             (i == 1 ? QString(".rescued") : QString(".rescued-%1").arg(i)) + ending;
        const QByteArray path = nativeName(name);
        if (access(path.constData(), F_OK) == 0 || std::rename(temporary_.constData(), path.constData()) != 0) continue;
        temporary_.clear();
        return;
    }
}

bool OutputFile::commit() { return file_ >= 0 && flush() && (publish() || fail()); }

void OutputFile::keepRemains()
{
    if (file_ < 0 || replaces_) return;
    flush();
    publish();
}

} // namespace velara
