#include "platform/CorePlatform.h"
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSettings>
#include <chrono>
#include <cstring>
#include <sys/mman.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace velara {

namespace {

QFileInfo executable() { return QFileInfo(QFile::symLinkTarget("/proc/self/exe")); }

QSettings settings() { return QSettings(QSettings::IniFormat, QSettings::UserScope, executable().fileName()); }

/// A socket bound to a name that one process a session can hold; the kernel frees it with the process. -1: taken.
int claimSessionName()
{
    const int fd = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    if (fd < 0) return fd;
    const QString session = qEnvironmentVariable("XDG_SESSION_ID", qEnvironmentVariable("DISPLAY"));
    const QByteArray name = QString("velara-studio-%1-%2").arg(getuid()).arg(session).toUtf8().left(100);
    sockaddr_un address{AF_UNIX, {}};
    std::memcpy(address.sun_path + 1, name.constData(), static_cast<std::size_t>(name.size()));
    const auto size = static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + 1 + name.size());
    if (bind(fd, reinterpret_cast<const sockaddr*>(&address), size) == 0) return fd;
    close(fd);
    return -1;
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
    if (programFolder_.isEmpty())
        programFolder_ = chooseProgramFolder(executable().path(), qEnvironmentVariable("XDG_DATA_HOME"));
    return programFolder_;
}

bool CorePlatform::previousInstance()
{
    if (instance_ < 0) instance_ = claimSessionName();
    return instance_ < 0;
}

QString CorePlatform::setting(const QString& section, const QString& key, const QString& otherwise)
{
    return settings().value(section + '/' + key, otherwise).toString();
}

void CorePlatform::setSetting(const QString& section, const QString& key, const QString& value)
{
    settings().setValue(section + '/' + key, value);
}

LoadedPicture CorePlatform::loadPicture(const QString& path, const QString& extension, const GoOn& goOn)
{
    if (decoder_.isEmpty()) decoder_ = findDecoder();
    const QFileInfo file(path);
    return loadThroughDecoder(path, extension, decoder_, limitsFor(file.size()),
                              goOn ? goOn : whileReading(file.fileName()));
}

LoadedPicture CorePlatform::decodeBytes(const QByteArray& bytes, const QString& name, const QString& extension,
                                        const GoOn& goOn)
{
    if (decoder_.isEmpty()) decoder_ = findDecoder();
    const Descriptor file(memfd_create("picture", MFD_CLOEXEC));
    if (write(file.get(), bytes.constData(), static_cast<std::size_t>(bytes.size())) != bytes.size())
        return {{}, name + QStringLiteral(" can't be read: there is not enough memory for it")};
    return loadThroughDecoder(file, name, extension, decoder_, limitsFor(bytes.size()), goOn);
}

QString chooseProgramFolder(const QString& executableFolder, const QString& dataHome)
{
    const bool isOurs = !executableFolder.startsWith("/usr/"); // there root too keeps its files elsewhere
    if (isOurs && access(QFile::encodeName(executableFolder).constData(), W_OK) == 0) return executableFolder;
    const QString home = QDir::isAbsolutePath(dataHome) ? dataHome : QDir::homePath() + "/.local/share";
    const QString folder = home + "/velara-studio";
    QDir().mkpath(folder);
    return folder;
}

} // namespace velara
