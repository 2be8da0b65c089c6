#include "platform/opening/places.h"
#include <QDir>
#include <QUrl>
#include <csignal>

namespace velara {

namespace {

const QString kEnding = QStringLiteral(".socket");

pid_t editorOf(const QString& socket)
{
    const QString name = socket.chopped(kEnding.size());
    return pid_t(name.mid(name.lastIndexOf(u'-') + 1).toInt());
}

} // namespace

QDBusConnection sessionBus(const QString& name)
{
    QString address = qEnvironmentVariable("DBUS_SESSION_BUS_ADDRESS");
    const QString usual = qEnvironmentVariable("XDG_RUNTIME_DIR") + QStringLiteral("/bus");
    if (address.isEmpty() && QFile::exists(usual)) address = addressOf(usual);
    return address.isEmpty() ? QDBusConnection(name) : QDBusConnection::connectToBus(address, name);
}

QString addressOf(const QString& socket)
{
    return QStringLiteral("unix:path=") + QLatin1String(QUrl::toPercentEncoding(socket, "/", "~"));
}

QString socketOf(pid_t editor)
{
    const QString folder = runtimeFolder();
    return folder.isEmpty() ? QString() : folder + u'/' + sessionName() + u'-' + QString::number(editor) + kEnding;
}

QStringList sockets()
{
    const QString folder = runtimeFolder();
    if (folder.isEmpty()) return {};
    QStringList found;
    const QDir::Filters all = QDir::System | QDir::Files | QDir::Hidden;
    for (const QFileInfo& each :
         QDir(folder).entryInfoList({sessionName() + "-*" + kEnding}, all, QDir::Time | QDir::Reversed)) {
        const pid_t editor = editorOf(each.fileName());
        if (editor <= 0 || each.filePath() != socketOf(editor)) continue; // of a session whose name begins like ours
        if (kill(editor, 0) == 0)
            found << each.filePath();
        else
            QFile::remove(each.filePath());
    }
    return found;
}

} // namespace velara
