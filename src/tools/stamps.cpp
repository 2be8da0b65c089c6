#include "tools/stamps.h"
#include "seams/Platform.h"
#include <QDir>

namespace velara {

namespace {

QDir stampFolder(Platform& platform) { return QDir(platform.programFolder() + QStringLiteral("/Stamps")); }

} // namespace

std::optional<QStringList> stampFiles(Platform& platform)
{
    const QDir folder = stampFolder(platform);
    if (!folder.exists()) return std::nullopt;
    return folder.entryList({QStringLiteral("*.bmp")}, QDir::Files | QDir::Readable, QDir::Name | QDir::IgnoreCase);
}

Bits loadStamp(Platform& platform, const QString& fileName)
{
    if (fileName.isEmpty()) return {};
    return platform.loadPicture(stampFolder(platform).filePath(fileName), QStringLiteral("bmp")).bits;
}

} // namespace velara
