#include "fileio/disk/fileBytes.h"
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <algorithm>
#include <array>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/uio.h>
#include <unistd.h>

namespace velara {

namespace {

std::int64_t regularFileSize(int file)
{
    struct stat info {};
    return fstat(file, &info) == 0 && S_ISREG(info.st_mode) ? info.st_size : -1;
}

iovec blockOf(ByteView bytes) { return {const_cast<std::uint8_t*>(bytes.data()), bytes.size()}; }

bool writeInParts(int file, ByteView head, ByteView body, const std::function<void(std::size_t)>& before)
{
    constexpr std::size_t kPart = 2 << 20; // stays in the processor's cache
    for (std::size_t done = 0; done < body.size();) {
        const ByteView part = body.subspan(done, std::min(kPart, body.size() - done));
        done += part.size();
        before(done);
        if (!writeBlocks(file, head, part)) return false;
        head = {};
    }
    return writeBlocks(file, head);
}

/// Space for growth is reserved first: then overwriting an older file can't run out of disk midway.
bool takeRoom(int file, std::int64_t present, std::int64_t wanted)
{
    if (wanted <= present) return true;
    if (fallocate(file, 0, present, wanted - present) == 0) return true;
    return errno == EOPNOTSUPP || errno == ENOSYS;
}

constexpr int kFlags = O_CLOEXEC | O_NONBLOCK | O_NOFOLLOW;

/// A file with a second name belongs to somebody else, too.
bool hasOneName(int file)
{
    struct stat info {};
    if (fstat(file, &info) != 0) return false;
    if (!S_ISREG(info.st_mode)) return true; // isn't written to either
    if (info.st_nlink > 1) return false;
    if (info.st_uid == geteuid() && (info.st_mode & 0077) != 0) fchmod(file, 0600);
    return true;
}

/// Opens the file of the name; a link there is replaced by a new file. Accessible to its owner only. -1: failed.
int openPrivate(const QByteArray& name)
{
    const int found = open(name.constData(), O_WRONLY | kFlags);
    if (found >= 0 && hasOneName(found)) return found;
    const bool isLink = found >= 0 || errno == ELOOP;
    if (found >= 0) close(found);
    if (!isLink && errno != ENOENT) return -1;
    if (isLink && unlink(name.constData()) != 0) return -1;
    return open(name.constData(), O_WRONLY | O_CREAT | O_EXCL | kFlags, 0600);
}

} // namespace

/// A call may write less than given (2 GB are its limit), so the rest follows.
bool writeBlocks(int file, ByteView head, ByteView body)
{
    while (!head.empty() || !body.empty()) {
        const std::array<iovec, 2> blocks{blockOf(head), blockOf(body)};
        const ssize_t n = writev(file, blocks.data(), blocks.size());
        if (n < 0 && errno == EINTR) continue;
        if (n <= 0) return false;
        const std::size_t written = static_cast<std::size_t>(n), ofHead = std::min(written, head.size());
        head = head.subspan(ofHead);
        body = body.subspan(written - ofHead);
    }
    return true;
}

bool overwriteFile(const QString& path, ByteView head, ByteView body, const std::function<void(std::size_t)>& before)
{
    const QByteArray name = QFile::encodeName(path);
    const int file = openPrivate(name);
    if (file < 0) return false;
    const std::int64_t present = regularFileSize(file), wanted = static_cast<std::int64_t>(head.size() + body.size());
    bool touched = false, done = false;
    if (present >= 0 && (present == 0 || takeRoom(file, present, wanted))) {
        touched = true;
        done = before ? writeInParts(file, head, body, before) : writeBlocks(file, head, body);
    }
    const int reason = errno;
    if (close(file) != 0) done = false;
    if (!done && touched && present >= 0) unlink(name.constData());
    errno = reason;
    return done;
}

FileReader::FileReader(const QString& path) : file_(open(QFile::encodeName(path).constData(), O_RDONLY | kFlags))
{
    if (file_ >= 0) size_ = regularFileSize(file_);
}

FileReader::~FileReader()
{
    if (file_ >= 0) close(file_);
}

bool FileReader::read(std::span<std::uint8_t> target)
{
    while (size_ >= 0 && !target.empty()) {
        const ssize_t n = ::read(file_, target.data(), target.size());
        if (n < 0 && errno == EINTR) continue;
        if (n <= 0) return false;
        target = target.subspan(static_cast<std::size_t>(n));
    }
    return size_ >= 0;
}

bool FileFound(const QString& path)
{
    const QFileInfo info(path);
    const QString name = info.fileName();
    if (!name.contains(u'*') && !name.contains(u'?')) return info.exists();
    QString pattern = QRegularExpression::escape(name);
    pattern.replace(QStringLiteral("\\*\\.\\*"), QStringLiteral(".*")); // *.* matches everything, as traditional
    pattern.replace(QStringLiteral("\\*"), QStringLiteral(".*")).replace(QStringLiteral("\\?"), QStringLiteral("."));
    const QRegularExpression matches(QRegularExpression::anchoredPattern(pattern));
    const QStringList names = info.dir().entryList(QDir::AllEntries | QDir::Hidden | QDir::System);
    return std::any_of(names.begin(), names.end(), [&](const QString& n) { return matches.match(n).hasMatch(); });
}

} // namespace velara
