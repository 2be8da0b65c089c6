#include "platform/opening/OpenService.h"
#include "platform/opening/places.h"
#include <QDBusAbstractAdaptor>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusServer>
#include <QFile>
#include <QPointer>
#include <algorithm>

namespace velara {

namespace {

ActivationToken tokenOf(const QVariantMap& platformData)
{
    return {platformData.value("desktop-startup-id").toString(), platformData.value("activation-token").toString()};
}

} // namespace

/// The editor, as seen from one connection.
class OpenService::Endpoint final : public QObject {
  public:
    Endpoint(OpenService& service, const QDBusConnection& connection);
    OpenService& service;
    QDBusConnection connection;
};

/// What every desktop knows to call; nothing is answered.
class ApplicationInterface final : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")
  public:
    ApplicationInterface(QObject& object, OpenRequests& requests) : QDBusAbstractAdaptor(&object), requests_(requests)
    {
    }

  public slots:
    void Activate(const QVariantMap& platform_data) { requests_.activate(tokenOf(platform_data)); }
    void Open(const QStringList& uris, const QVariantMap& platform_data)
    {
        requests_.activate(tokenOf(platform_data));
        requests_.open(uris, true, [](const QStringList&) {});
    }
    void ActivateAction(const QString& action_name, const QVariantList& /*parameter*/, const QVariantMap& platform_data)
    {
        requests_.activate(tokenOf(platform_data));
        requests_.act(action_name);
    }

  private:
    OpenRequests& requests_;
};

/// Ours, with an answer.
class StudioInterface final : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.velara.Studio1")
  public:
    explicit StudioInterface(OpenService::Endpoint& endpoint) : QDBusAbstractAdaptor(&endpoint), endpoint_(endpoint) {}

  public slots:
    QStringList OpenFiles(const QStringList& uris, const QVariantMap& platform_data, const QDBusMessage& message)
    {
        message.setDelayedReply(true);
        endpoint_.service.openFor(endpoint_.connection, message, uris, platform_data);
        return {};
    }

  private:
    OpenService::Endpoint& endpoint_;
};

OpenService::Endpoint::Endpoint(OpenService& asked, const QDBusConnection& caller) : service(asked), connection(caller)
{
    new ApplicationInterface(*this, service.requests());
    new StudioInterface(*this);
}

/// A call without an answer yet.
struct OpenService::Waiting {
    QDBusConnection caller;
    QDBusMessage call;
};

OpenService::OpenService(OpenRequests& requests) : requests_(requests) {}

OpenService::~OpenService()
{
    for (const auto& each : waiting_)
        each->caller.send(each->call.createErrorReply(kEnded, QStringLiteral("Velara Studio has ended")));
    if (bus_ && bus_->connection.isConnected()) {
        bus_->connection.unregisterObject(kStudioPath);
        bus_->connection.interface()->unregisterService(kStudioService);
    }
    for (const auto& caller : callers_) QDBusConnection::disconnectFromPeer(caller->connection.name());
    server_.reset();
    if (!socket_.isEmpty()) QFile::remove(socket_);
}

bool OpenService::serve(const QDBusConnection& bus)
{
    if (!bus.isConnected()) return false;
    bus_ = std::make_unique<Endpoint>(*this, bus);
    return bus_->connection.registerObject(kStudioPath, bus_.get()) &&
           bus.interface()
               ->registerService(kStudioService, QDBusConnectionInterface::QueueService,
                                 QDBusConnectionInterface::DontAllowReplacement)
               .isValid();
}

bool OpenService::listen(const QString& socket)
{
    if (socket.isEmpty()) return false;
    auto server = std::make_unique<QDBusServer>(addressOf(socket));
    if (!server->isConnected()) return false;
    connect(server.get(), &QDBusServer::newConnection, this, [this](QDBusConnection caller) {
        std::erase_if(callers_, [](const auto& each) {
            if (each->connection.isConnected()) return false;
            QDBusConnection::disconnectFromPeer(each->connection.name());
            return true;
        });
        callers_.push_back(std::make_unique<Endpoint>(*this, caller));
        caller.registerObject(kStudioPath, callers_.back().get());
    });
    server_ = std::move(server);
    socket_ = socket;
    return true;
}

void OpenService::openFor(const QDBusConnection& caller, const QDBusMessage& call, const QStringList& uris,
                          const QVariantMap& platformData)
{
    const auto waits = std::make_shared<Waiting>(Waiting{caller, call});
    waiting_.push_back(waits);
    requests_.activate(tokenOf(platformData));
    requests_.open(uris, platformData.value(kTellKey).toBool(),
                   [self = QPointer(this), waits](const QStringList& reasons) {
                       if (!self) return; // it has been told already
                       waits->caller.send(waits->call.createReply(reasons));
                       std::erase(self->waiting_, waits);
                   });
}

} // namespace velara

#include "OpenService.moc"
