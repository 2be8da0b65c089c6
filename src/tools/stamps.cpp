#include "tools/stamps.h"
#include "seams/Platform.h"
#include <QDir>

namespace velara {

namespace {

QDir stampFolder(Machine& machine) { return QDir(machine.programFolder() + QStringLiteral("/Stamps")); }

} // namespace

std::optional<QStringList> stampFiles(Machine& machine)
{
    const QDir folder = stampFolder(machine);
    if (!folder.exists()) return std::nullopt;
    return folder.entryList({QStringLiteral("*.bmp")}, QDir::Files | QDir::Readable, QDir::Name | QDir::IgnoreCase);
}

QString stampPath(Machine& machine, const QString& fileName) { return stampFolder(machine).filePath(fileName); }

} // namespace velara
