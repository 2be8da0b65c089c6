// OpenService: takes what the desktop and other programs ask of the running editor, on the bus and at its socket.
#pragma once
#include <QDBusConnection>
#include <QObject>
#include <QVariantMap>
#include <functional>
#include <memory>
#include <vector>

class QDBusServer;

namespace velara {

/// The right to come to the front, as the desktop gives it with a request; either may be empty.
struct ActivationToken {
    QString startupId; // of X11's startup notification
    QString wayland;   // of xdg-activation
};

/// What may be asked of the editor. The calls come from the event loop.
class OpenRequests {
  public:
    virtual ~OpenRequests() = default;
    /// Reasons, one a file; empty for one that is open.
    using Done = std::function<void(const QStringList& reasons)>;

    /// A request has arrived, and the user wants to see what comes of it.
    virtual void activate(const ActivationToken& token) = 0;
    /// \param tells the caller can't tell the reasons
    virtual void open(const QStringList& uris, bool tells, Done done) = 0;
    /// A row of actions.h, by its name.
    virtual void act(const QString& action) = 0;
};

class OpenService final : public QObject {
    Q_OBJECT
  public:
    /// requests must outlive this.
    explicit OpenService(OpenRequests& requests);
    /// What still waits for an answer is told that the editor has ended.
    ~OpenService() override;

    /// Takes the editor's name on the bus, or queues for it: the next editor gets it when the first one ends. False
    /// when there is no bus.
    bool serve(const QDBusConnection& bus);
    /// Listens at a socket (a path). False when that is impossible.
    bool listen(const QString& socket);

    OpenRequests& requests() { return requests_; }
    /// Opens, and answers the caller by that connection.
    void openFor(const QDBusConnection& caller, const QDBusMessage& call, const QStringList& uris,
                 const QVariantMap& platformData);

    class Endpoint;

  private:
    struct Waiting;

    OpenRequests& requests_;
    std::unique_ptr<Endpoint> bus_;
    std::unique_ptr<QDBusServer> server_;
    std::vector<std::unique_ptr<Endpoint>> callers_;
    QString socket_;
    std::vector<std::shared_ptr<Waiting>> waiting_;
};

} // namespace velara
