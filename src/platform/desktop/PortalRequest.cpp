#include "platform/desktop/PortalRequest.h"
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>
#include <QTimer>
#include <algorithm>
#include <utility>

namespace velara {

namespace {

const QString kService = QStringLiteral("org.freedesktop.portal.Desktop");
const QString kRequest = QStringLiteral("org.freedesktop.portal.Request");
constexpr int kCallLimit = 25000; // ms for the portal to accept the request; the answer has no time limit

QString nextToken()
{
    static int count = 0;
    return QStringLiteral("velara%1").arg(++count);
}

/// No bus, no portal on it, or one that lacks the requested service.
bool isMissing(QDBusError::ErrorType error)
{
    constexpr QDBusError::ErrorType kMissing[] = {QDBusError::Disconnected,  QDBusError::ServiceUnknown,
                                                  QDBusError::UnknownObject, QDBusError::UnknownInterface,
                                                  QDBusError::UnknownMethod, QDBusError::NoServer};
    return std::ranges::find(kMissing, error) != std::end(kMissing);
}

} // namespace

PortalRequest::PortalRequest(const QDBusConnection& bus, const QString& interface, const QString& method,
                             const QVariantList& arguments, QVariantMap options, Done done, QObject* parent)
    : QObject(parent), bus_(bus), done_(std::move(done))
{
    if (!bus_.isConnected()) { // a call never returns then
        QTimer::singleShot(0, this, [this] { finish(Missing, {}); });
        return;
    }
    const QString token = nextToken();
    options["handle_token"] = token;
    // The answer may arrive before the call returns, so its path is derived in advance, from our name on the bus.
    listenTo("/org/freedesktop/portal/desktop/request/" + bus_.baseService().mid(1).replace('.', '_') + '/' + token);
    QDBusMessage call = QDBusMessage::createMethodCall(kService, "/org/freedesktop/portal/desktop",
                                                       "org.freedesktop.portal." + interface, method);
    call.setArguments(arguments + QVariantList{options});
    auto* watcher = new QDBusPendingCallWatcher(bus_.asyncCall(call, kCallLimit), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, &PortalRequest::called);
    auto* life = new QDBusServiceWatcher(kService, bus_, QDBusServiceWatcher::WatchForUnregistration, this);
    connect(life, &QDBusServiceWatcher::serviceUnregistered, this, [this] { finish(Failed, {}); });
}

PortalRequest::~PortalRequest()
{
    if (done_) bus_.call(QDBusMessage::createMethodCall(kService, path_, kRequest, "Close"), QDBus::NoBlock);
}

void PortalRequest::listenTo(const QString& path)
{
    if (path == path_) return;
    path_ = path;
    bus_.connect(kService, path_, kRequest, "Response", this, SLOT(responded(uint, QVariantMap)));
}

void PortalRequest::called(QDBusPendingCallWatcher* call)
{
    const QDBusPendingReply<QDBusObjectPath> reply = *call;
    call->deleteLater();
    if (reply.isError()) return finish(isMissing(reply.error().type()) ? Missing : Failed, {});
    listenTo(reply.value().path());
}

void PortalRequest::responded(uint code, const QVariantMap& results)
{
    finish(code <= Failed ? static_cast<Code>(code) : Failed, results);
}

void PortalRequest::finish(Code code, const QVariantMap& results)
{
    if (const Done done = std::exchange(done_, nullptr)) done(code, results);
}

} // namespace velara
