#include "fileio/OutputFile.h"
#include <QFile>
#include <QFileInfo>
#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <random>
#include <sys/mman.h>
#include <sys/sendfile.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace velara {

namespace {

constexpr std::size_t kBuffer = 64 << 10, kDirect = 8 << 10;

/// The file behind symbolic links, whether it exists or not.
QString behindLinks(QString path)
{
    constexpr int kMostLinks = 40;
    for (int i = 0; i < kMostLinks && QFileInfo(path).isSymLink(); ++i) path = QFileInfo(path).symLinkTarget();
    return path;
}

bool writeAll(int file, const std::uint8_t* bytes, std::size_t size)
{
    while (size > 0) {
        const ssize_t n = ::write(file, bytes, size);
        if (n < 0 && errno == EINTR) continue;
        if (n <= 0) return false;
        bytes += n;
        size -= static_cast<std::size_t>(n);
    }
    return true;
}

/// Write bits that are all off mean "leave it", to the system's administrator too.
bool isProtected(const QByteArray& path, mode_t mode)
{
    return (mode & (S_IWUSR | S_IWGRP | S_IWOTH)) == 0 || access(path.constData(), W_OK) != 0;
}

} // namespace

OutputFile::OutputFile(const QString& path, Links links)
    : target_(QFile::encodeName(links == Links::Follow ? behindLinks(path) : path))
{
    struct stat old;
    replaces_ = links == Links::Follow && stat(target_.constData(), &old) == 0;
    if (!replaces_ || (S_ISREG(old.st_mode) && !isProtected(target_, old.st_mode)))
        openBeside(replaces_ ? old.st_mode & 07777 : 0666, replaces_);
    const bool isOver = replaces_ && !S_ISDIR(old.st_mode) && !isProtected(target_, old.st_mode);
    if (file_ < 0 && isOver) file_ = memfd_create("picture", MFD_CLOEXEC);
    buffer_.resize(kBuffer);
}

void OutputFile::openBeside(mode_t mode, bool takesMode)
{
    std::random_device random;
    for (int tries = 0; tries < 10 && file_ < 0; ++tries) {
        temporary_ = target_ + '.' + QByteArray::number(random(), 36) + ".part";
        file_ = open(temporary_.constData(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, mode);
        if (file_ < 0 && errno != EEXIST) break;
    }
    if (file_ < 0)
        temporary_.clear();
    else if (takesMode)
        fchmod(file_, mode);
}

OutputFile::~OutputFile()
{
    if (file_ >= 0) close(file_);
    if (!temporary_.isEmpty()) unlink(temporary_.constData());
}

bool OutputFile::flush()
{
    if (goOn_ && !goOn_()) failed_ = true;
    if (!failed_ && used_ > 0 && !writeAll(file_, buffer_.data(), used_)) failed_ = true;
    used_ = 0;
    return !failed_;
}

bool OutputFile::write(const void* bytes, std::size_t size)
{
    if (file_ < 0) return false;
    const auto* from = static_cast<const std::uint8_t*>(bytes);
    if (size >= kDirect) { // nothing to gain from a copy
        if (flush() && !writeAll(file_, from, size)) failed_ = true;
        return !failed_;
    }
    if (size > kBuffer - used_ && !flush()) return false;
    std::memcpy(buffer_.data() + used_, from, size);
    used_ += size;
    return true;
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
    if (temporary_.isEmpty()) return copyOver();
    if (close(std::exchange(file_, -1)) != 0) return false; // a file server may tell only now that it is full
    if (std::rename(temporary_.constData(), target_.constData()) != 0) return false;
    temporary_.clear();
    return true;
}

bool OutputFile::copyOver()
{
    const off_t size = lseek(file_, 0, SEEK_END);
    const int target = open(target_.constData(), O_WRONLY | O_CLOEXEC | O_NONBLOCK);
    if (target < 0 || size < 0) return false;
    off_t at = 0;
    while (at < size) {
        const ssize_t n = sendfile(target, file_, &at, static_cast<std::size_t>(size - at));
        if (n < 0 && errno == EINTR) continue;
        if (n <= 0) break;
    }
    struct stat status;
    if (at == size && fstat(target, &status) == 0 && S_ISREG(status.st_mode) && ftruncate(target, size) != 0) at = -1;
    return close(target) == 0 && at == size;
}

bool OutputFile::commit() { return file_ >= 0 && flush() && publish(); }

void OutputFile::keepRemains()
{
    if (file_ < 0 || replaces_) return;
    flush();
    publish();
}

} // namespace velara
