#include "platform/desktop/screen/ScreenProfiles.h"
#include "platform/desktop/x11.h"
#include <QCoreApplication>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <QFile>
#include <QFileInfo>
#include <utility>

namespace velara {

namespace {

const QString kService = QStringLiteral("org.freedesktop.ColorManager");
constexpr int kPatience = 5000; // ms

/// then gets the first value of the answer, or an invalid one.
void ask(QDBusConnection bus, QObject* owner, const QDBusMessage& call, const std::function<void(QVariant)>& then)
{
    auto* watcher = new QDBusPendingCallWatcher(bus.asyncCall(call, kPatience), owner);
    QObject::connect(watcher, &QDBusPendingCallWatcher::finished, owner, [watcher, then] {
        watcher->deleteLater();
        const QDBusMessage answer = watcher->reply();
        then(answer.type() == QDBusMessage::ReplyMessage ? answer.arguments().value(0) : QVariant());
    });
}

void askProperty(const QDBusConnection& bus, QObject* owner, const QString& path, const QString& interface,
                 const QString& name, const std::function<void(QVariant)>& then)
{
    QDBusMessage call = QDBusMessage::createMethodCall(kService, path, "org.freedesktop.DBus.Properties", "Get");
    call.setArguments({kService + '.' + interface, name});
    ask(bus, owner, call, [then](const QVariant& value) { then(qvariant_cast<QDBusVariant>(value).variant()); });
}

QByteArray bytesOf(const QString& path)
{
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly)) return {};
    const QByteArray bytes = file.read(ScreenProfiles::kMostBytes + 1);
    return bytes.size() > ScreenProfiles::kMostBytes ? QByteArray() : bytes;
}

} // namespace

ScreenProfiles::ScreenProfiles(std::optional<QDBusConnection> bus, QObject* parent)
    : QObject(parent), bus_(std::move(bus))
{
    QCoreApplication::instance()->installNativeEventFilter(this);
}

ScreenProfiles::~ScreenProfiles()
{
    if (QCoreApplication* application = QCoreApplication::instance()) application->removeNativeEventFilter(this);
}

void ScreenProfiles::find(int screen, const QString& name, Found found)
{
    const QByteArray profile = x11ScreenProfile(screen, kMostBytes);
    if (!profile.isEmpty() || (!bus_ && x11RootSize().isEmpty())) return found(profile);
    askDaemon(name, found);
}

/// The device of the output, its first profile, and that one's file.
void ScreenProfiles::askDaemon(const QString& name, const Found& found)
{
    if (!bus_) bus_ = QDBusConnection::systemBus();
    if (!bus_->isConnected()) return found({});
    if (!std::exchange(listens_, true))
        for (const char* news : {"DeviceChanged", "DeviceAdded"}) // some sessions tell the daemon of screens late
            bus_->connect(kService, "/org/freedesktop/ColorManager", kService, news, this, SIGNAL(changed()));
    QDBusMessage call =
        QDBusMessage::createMethodCall(kService, "/org/freedesktop/ColorManager", kService, "FindDeviceByProperty");
    call.setArguments({QStringLiteral("XRANDR_name"), name});
    ask(*bus_, this, call, [this, found](const QVariant& device) {
        const QString path = qvariant_cast<QDBusObjectPath>(device).path();
        if (path.isEmpty()) return found({});
        askProperty(*bus_, this, path, "Device", "Profiles", [this, found](const QVariant& profiles) {
            const auto all = qdbus_cast<QList<QDBusObjectPath>>(profiles);
            if (all.isEmpty()) return found({});
            askProperty(*bus_, this, all.first().path(), "Profile", "Filename",
                        [found](const QVariant& file) { found(bytesOf(file.toString())); });
        });
    });
}

bool ScreenProfiles::nativeEventFilter(const QByteArray& kind, void* message, qintptr*)
{
    if (kind == "xcb_generic_event_t" && x11ChangesProfile(message)) emit changed();
    return false;
}

} // namespace velara
