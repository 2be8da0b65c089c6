// Names of files that are not UTF-8, as old archives leave them. In a QString each byte that belongs to no character is
// a lone surrogate, U+DC80 to U+DCFF, and so is a byte again on the way back; Qt itself would replace it for good.
#pragma once
#include <QByteArray>
#include <QString>
#include <optional>
#include <sys/stat.h>

namespace velara {

/// The bytes of a path for the system.
QByteArray nativeName(const QString& path);
QString nameFrom(const QByteArray& bytes);
/// What follows the last slash of a path.
inline QString lastName(const QString& path) { return path.mid(path.lastIndexOf(u'/') + 1); }
/// Makes the folder and those above it that are missing, as far as the user's mask lets others in. False, with errno,
/// when it isn't there afterwards.
bool makeFolders(const QString& path);
/// Of what the path leads to, behind links; none when there is nothing.
std::optional<struct stat> statusOf(const QString& path);
bool isThere(const QString& path);
bool isFolder(const QString& path);
/// 0 when there is nothing.
std::int64_t sizeOfFile(const QString& path);

} // namespace velara
