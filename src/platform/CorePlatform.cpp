#include "platform/CorePlatform.h"
#include "fileio/disk/nativeName.h"
#include "fileio/disk/userFolders.h"
#include "fileio/load/PictureLoader.h"
#include "platform/runtimeFolder.h"
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSettings>
#include <cerrno>
#include <chrono>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/mman.h>
#include <unistd.h>

namespace velara {

namespace {

QFileInfo executable() { return QFileInfo(QFile::symLinkTarget("/proc/self/exe")); }

QSettings settings() { return QSettings(QSettings::IniFormat, QSettings::UserScope, executable().fileName()); }

/// Locks a file that one process per session can hold; the kernel releases it with the process. -1: impossible, or
/// another process holds it, which sets taken.
int claimSession(bool& taken)
{
    const QString folder = runtimeFolder();
    if (folder.isEmpty()) return -1;
    const QByteArray path = QFile::encodeName(folder + '/' + sessionName() + ".lock");
    const int file = open(path.constData(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600);
    if (file < 0 || flock(file, LOCK_EX | LOCK_NB) == 0) return file;
    taken = errno == EWOULDBLOCK;
    close(file);
    return -1;
}

const QString& decoder()
{
    static const QString path = findDecoder();
    return path;
}

} // namespace

CorePlatform::CorePlatform() : random_(std::random_device{}()) {}

CorePlatform::~CorePlatform()
{
    if (instance_ >= 0) close(instance_);
}

std::uint32_t CorePlatform::milliseconds()
{
    using namespace std::chrono;
    return static_cast<std::uint32_t>(
        duration_cast<std::chrono::milliseconds>(steady_clock::now().time_since_epoch()).count());
}

double CorePlatform::random() { return static_cast<double>(random_() >> 11) * 0x1p-53; }

QString CorePlatform::programFolder()
{
    if (programFolder_.isEmpty()) programFolder_ = chooseProgramFolder(executable().path());
    return programFolder_;
}

bool CorePlatform::previousInstance()
{
    bool taken = false;
    if (instance_ < 0) instance_ = claimSession(taken);
    return taken;
}

QString CorePlatform::setting(const QString& section, const QString& key, const QString& otherwise)
{
    return settings().value(section + '/' + key, otherwise).toString();
}

void CorePlatform::setSetting(const QString& section, const QString& key, const QString& value)
{
    settings().setValue(section + '/' + key, value);
}

LoadedPicture CorePlatform::loadPicture(const QString& path, const QString& extension, const GoOn& goOn, int page)
{
    return loadThroughDecoder(path, extension, decoder(), limitsFor(sizeOfFile(path)), goOn, page);
}

LoadedPicture CorePlatform::decodeBytes(const QByteArray& bytes, const QString& name, const QString& extension,
                                        const GoOn& goOn)
{
    const Descriptor file(memfd_create("picture", MFD_CLOEXEC));
    if (write(file.get(), bytes.constData(), static_cast<std::size_t>(bytes.size())) != bytes.size())
        return {{}, name + QStringLiteral(" can't be read: there is not enough memory for it")};
    return loadThroughDecoder(file, name, extension, decoder(), limitsFor(bytes.size()), goOn);
}

QString chooseProgramFolder(const QString& executableFolder)
{
    const bool isPortable = QFileInfo::exists(executableFolder + "/portable");
    if (isPortable && access(QFile::encodeName(executableFolder).constData(), W_OK) == 0) return executableFolder;
    const QString folder = installedFolder();
    QDir().mkpath(folder);
    return folder;
}

} // namespace velara
