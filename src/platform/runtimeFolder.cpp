#include "platform/runtimeFolder.h"
#include <QDir>
#include <QFile>
#include <QUrl>
#include <sys/stat.h>
#include <unistd.h>

namespace velara {

QString runtimeFolder()
{
    const QString cache = QDir::homePath() + "/.cache/velara-studio";
    for (const QString& folder : {qEnvironmentVariable("XDG_RUNTIME_DIR"), cache}) {
        if (!QDir::isAbsolutePath(folder)) continue;
        if (folder == cache) QDir().mkpath(cache);
        struct stat status {};
        if (stat(QFile::encodeName(folder).constData(), &status) == 0 && S_ISDIR(status.st_mode) &&
            status.st_uid == geteuid() && (status.st_mode & (S_IWGRP | S_IWOTH)) == 0)
            return folder;
    }
    return {};
}

QString sessionName()
{
    // Where its windows are: a program that the bus has started doesn't know the session's number.
    QString session;
    for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "XDG_SESSION_ID"})
        if (session.isEmpty()) session = qEnvironmentVariable(name);
    return QStringLiteral("velara-studio-") + QLatin1String(QUrl::toPercentEncoding(session).left(40));
}

} // namespace velara
