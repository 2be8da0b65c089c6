#include "ui/colour/userColourFile.h"
#include "fileio/disk/OutputFile.h"
#include "fileio/disk/fileBytes.h"
#include "fileio/disk/userFolders.h"
#include <QFile>
#include <fcntl.h>
#include <unistd.h>

namespace velara {

namespace {

constexpr std::int64_t kMostBytes = 64 << 10; // several times the longest list; the rest is ignored

QString pathIn(const QString& programFolder)
{
    return userFolder(programFolder, UserFolder::Settings) + QStringLiteral("/usercolors.cps");
}

/// Creates an empty file, unless the name is taken, even by a dangling link.
bool made(const QString& path)
{
    const int file = open(QFile::encodeName(path).constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    if (file >= 0) close(file);
    return file >= 0;
}

} // namespace

void loadUserColours(const QString& programFolder, UserColours& colours)
{
    const QString path = pathIn(programFolder);
    FileReader file(path);
    if (file.size() < 0) {
        if (made(path)) colours = {};
        return;
    }
    QByteArray text(static_cast<qsizetype>(std::min(file.size(), kMostBytes)), '\0');
    if (file.read({reinterpret_cast<std::uint8_t*>(text.data()), static_cast<std::size_t>(text.size())}))
        readUserColours(text, colours);
}

bool saveUserColours(const QString& programFolder, const UserColours& colours)
{
    const QByteArray text = userColoursText(colours);
    OutputFile file(pathIn(programFolder));
    return file.isOpen() && file.write(text.constData(), static_cast<std::size_t>(text.size())) && file.commit();
}

} // namespace velara
