#include "platform/opening/handOver.h"
#include "fileio/disk/nativeName.h"
#include "fileio/load/Descriptor.h"
#include "platform/opening/places.h"
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QFile>
#include <algorithm>
#include <chrono>
#include <climits>
#include <fcntl.h>
#include <optional>
#include <spawn.h>
#include <sys/file.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace velara {

namespace {

using namespace std::chrono_literals;

constexpr int kToAnswer = 10000; // ms for an editor to say that it lives
constexpr auto kToStart = 120s;  // on a machine that is very busy
constexpr auto kLook = 10ms;     // between two looks for the socket of a starting editor
constexpr int kTries = 3;        // as an editor that is found may just be ending
const QString kName = QStringLiteral("velara-open");

/// A way to an editor.
struct Road {
    QDBusConnection connection;
    QString service; // empty at a socket

    QDBusMessage call(const QString& interface, const QString& method, const QVariantList& arguments,
                      int patience) const
    {
        QDBusMessage message = QDBusMessage::createMethodCall(service, kStudioPath, interface, method);
        message.setArguments(arguments);
        message.setAutoStartService(false);
        return connection.call(message, QDBus::Block, patience);
    }
};

std::optional<Road> roadBy(const QString& socket)
{
    const QDBusConnection connection = QDBusConnection::connectToPeer(addressOf(socket), kName + socket);
    if (connection.isConnected()) return Road{connection, {}};
    QDBusConnection::disconnectFromPeer(kName + socket);
    return std::nullopt;
}

std::optional<Road> findEditor()
{
    const QDBusConnection bus = sessionBus(kName);
    if (bus.isConnected() && bus.interface()->isServiceRegistered(kStudioService).value())
        return Road{bus, kStudioService};
    for (const QString& socket : sockets())
        if (auto road = roadBy(socket)) return road;
    return std::nullopt;
}

/// In a session of its own, so that it outlives the terminal; its messages go there while it stands.
pid_t spawn(const QString& program)
{
    const QByteArray path = nativeName(program);
    const bool isRead = isatty(STDERR_FILENO) == 1;
    posix_spawn_file_actions_t actions;
    posix_spawnattr_t attributes;
    posix_spawn_file_actions_init(&actions);
    posix_spawnattr_init(&attributes);
    posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
    posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    // A pipe would be held open until the editor ends.
    if (!isRead) posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
    posix_spawn_file_actions_addclosefrom_np(&actions, STDERR_FILENO + 1);
    posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSID);
    char* arguments[] = {const_cast<char*>(path.constData()), nullptr};
    pid_t pid = -1;
    if (posix_spawn(&pid, path.constData(), &actions, &attributes, arguments, environ) != 0) pid = -1;
    posix_spawnattr_destroy(&attributes);
    posix_spawn_file_actions_destroy(&actions);
    return pid;
}

/// Until it listens; none when it can't be started, or ends before.
std::optional<Road> startEditor(const QString& program)
{
    const pid_t editor = program.isEmpty() ? -1 : spawn(program);
    if (editor < 0) return std::nullopt;
    const QString socket = socketOf(editor);
    const auto end = std::chrono::steady_clock::now() + kToStart;
    while (waitpid(editor, nullptr, WNOHANG) == 0 && std::chrono::steady_clock::now() < end) {
        if (socket.isEmpty()) { // without a folder for it there may still be a bus
            if (auto road = findEditor()) return road;
        } else if (QFile::exists(socket)) {
            if (auto road = roadBy(socket)) return road;
        }
        std::this_thread::sleep_for(kLook);
    }
    return std::nullopt;
}

/// While it is held nobody else starts an editor; without a folder there is none.
Descriptor lock()
{
    const QString folder = runtimeFolder();
    if (folder.isEmpty()) return Descriptor();
    const QByteArray path = QFile::encodeName(folder + u'/' + sessionName() + ".start");
    Descriptor file(open(path.constData(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600));
    if (file.isOpen()) flock(file.get(), LOCK_EX);
    return file;
}

QVariantMap platformData(const OpenWish& wish)
{
    return {{QStringLiteral("desktop-startup-id"), qEnvironmentVariable("DESKTOP_STARTUP_ID")},
            {QStringLiteral("activation-token"), qEnvironmentVariable("XDG_ACTIVATION_TOKEN")},
            {kTellKey, wish.tells}};
}

QDBusMessage ask(const Road& road, const OpenWish& wish)
{
    const QVariantMap data = platformData(wish);
    if (!wish.action.isEmpty())
        return road.call(kApplicationInterface, QStringLiteral("ActivateAction"), {wish.action, QVariantList(), data},
                         INT_MAX);
    if (wish.uris.isEmpty()) return road.call(kApplicationInterface, QStringLiteral("Activate"), {data}, INT_MAX);
    const QDBusMessage answer = road.call(kStudioInterface, QStringLiteral("OpenFiles"), {wish.uris, data}, INT_MAX);
    if (answer.errorName() != QDBusError::errorString(QDBusError::UnknownInterface) &&
        answer.errorName() != QDBusError::errorString(QDBusError::UnknownMethod))
        return answer;
    return road.call(kApplicationInterface, QStringLiteral("Open"), {wish.uris, data}, INT_MAX); // of another version
}

/// The editor has ended before it did what was asked: another one will.
bool hasEnded(const QDBusMessage& answer)
{
    const QString name = answer.errorName();
    const QDBusError::ErrorType kSigns[] = {QDBusError::NoReply, QDBusError::Disconnected, QDBusError::ServiceUnknown,
                                            QDBusError::UnknownObject};
    return name == kEnded || std::ranges::any_of(kSigns, [&](auto e) { return name == QDBusError::errorString(e); });
}

} // namespace

HandedOver handOver(const OpenWish& wish, const QString& editor)
{
    if (runtimeFolder().isEmpty() && !sessionBus(kName).isConnected())
        return {HandedOver::NotStarted, {QStringLiteral("there is neither a message bus nor a folder for its socket")}};
    for (int i = 0; i < kTries; ++i) {
        while (waitpid(-1, nullptr, WNOHANG) > 0) {
        } // one that we have started may have ended again
        std::optional<Road> road;
        {
            const Descriptor alone = lock();
            road = findEditor();
            if (!road) road = startEditor(editor);
        }
        if (!road) return {HandedOver::NotStarted};
        const QDBusMessage alive =
            road->call(QStringLiteral("org.freedesktop.DBus.Peer"), QStringLiteral("Ping"), {}, kToAnswer);
        if (alive.type() == QDBusMessage::ErrorMessage &&
            alive.errorName() == QDBusError::errorString(QDBusError::NoReply) && road->connection.isConnected())
            return {HandedOver::NoAnswer};
        const QDBusMessage answer = ask(*road, wish);
        if (answer.type() == QDBusMessage::ReplyMessage)
            return {HandedOver::Done, answer.arguments().value(0).toStringList()};
        if (!hasEnded(answer)) return {HandedOver::NoAnswer, {answer.errorMessage()}};
        QDBusConnection::disconnectFromPeer(road->connection.name());
    }
    return {HandedOver::NoAnswer};
}

} // namespace velara
