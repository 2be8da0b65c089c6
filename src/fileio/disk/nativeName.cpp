#include "fileio/disk/nativeName.h"
#include <QFile>
#include <cerrno>

namespace velara {

namespace {

constexpr char16_t kByte = 0xDC00; // plus a byte from 0x80

bool isByte(QChar c) { return c.unicode() >= kByte + 0x80 && c.unicode() <= kByte + 0xFF; }

/// The bytes of the character that begins there; 1 where none does.
int lengthOfCharacter(const QByteArray& bytes, qsizetype at)
{
    const auto lead = static_cast<unsigned char>(bytes[at]);
    const int length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : lead >= 0xC0 ? 2 : 1;
    const QByteArray character = bytes.mid(at, length);
    return QString::fromUtf8(character).toUtf8() == character ? length : 1;
}

} // namespace

QByteArray nativeName(const QString& path)
{
    QByteArray bytes;
    for (qsizetype i = 0, end; i < path.size(); i = end) {
        const bool isLone = isByte(path[i]) && (i == 0 || !path[i - 1].isHighSurrogate());
        end = i + 1;
        if (isLone) {
            bytes += static_cast<char>(path[i].unicode() - kByte);
            continue;
        }
        while (end < path.size() && !(isByte(path[end]) && !path[end - 1].isHighSurrogate())) ++end;
        bytes += QFile::encodeName(path.mid(i, end - i));
    }
    return bytes;
}

QString nameFrom(const QByteArray& bytes)
{
    const QString name = QFile::decodeName(bytes);
    if (!name.contains(QChar::ReplacementCharacter)) return name;
    QString kept;
    for (qsizetype i = 0; i < bytes.size();) {
        const int length = lengthOfCharacter(bytes, i);
        const auto byte = static_cast<unsigned char>(bytes[i]);
        kept += length == 1 && byte >= 0x80 ? QString(QChar(char16_t(kByte + byte)))
                                            : QString::fromUtf8(bytes.mid(i, length));
        i += length;
    }
    return kept;
}

std::optional<struct stat> statusOf(const QString& path)
{
    struct stat status {};
    if (stat(nativeName(path).constData(), &status) != 0) return std::nullopt;
    return status;
}

bool isThere(const QString& path) { return statusOf(path).has_value(); }

bool isFolder(const QString& path)
{
    const auto status = statusOf(path);
    return status && S_ISDIR(status->st_mode);
}

std::int64_t sizeOfFile(const QString& path)
{
    const auto status = statusOf(path);
    return status ? std::int64_t{status->st_size} : 0;
}

bool makeFolders(const QString& path)
{
    constexpr mode_t kAll = 0777;
    if (isFolder(path)) return true;
    const qsizetype slash = path.lastIndexOf(u'/');
    if (slash > 0 && !makeFolders(path.left(slash))) return false;
    return mkdir(nativeName(path).constData(), kAll) == 0 || (errno == EEXIST && isFolder(path));
}

} // namespace velara
