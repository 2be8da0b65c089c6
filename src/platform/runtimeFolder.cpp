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
    const QString session = qEnvironmentVariable("XDG_SESSION_ID", qEnvironmentVariable("DISPLAY"));
    return QStringLiteral("velara-studio-") + QLatin1String(QUrl::toPercentEncoding(session).left(40));
}

} // namespace velara
