// PortalRequest: one request to the desktop's portal, which answers by a signal, perhaps after asking the user.
#pragma once
#include <QDBusConnection>
#include <QObject>
#include <QVariantMap>
#include <functional>

class QDBusPendingCallWatcher;

namespace velara {

class PortalRequest final : public QObject {
    Q_OBJECT
  public:
    enum Code { Granted = 0, Refused = 1, Failed = 2, Missing = 3 }; // of the portal; Missing: there is none
    using Done = std::function<void(Code, const QVariantMap& results)>;

    /// interface is the last part of its name ("Screenshot"). done is called once, from the message loop, and not after
    /// this object's destruction, which withdraws the request. A portal that ends meanwhile is Failed.
    PortalRequest(const QDBusConnection& bus, const QString& interface, const QString& method,
                  const QVariantList& arguments, QVariantMap options, Done done, QObject* parent);
    ~PortalRequest() override;

  private slots:
    void responded(uint code, const QVariantMap& results);

  private:
    void listenTo(const QString& path);
    void called(QDBusPendingCallWatcher* call);
    void finish(Code code, const QVariantMap& results);

    QDBusConnection bus_;
    QString path_; // of the request, an object of the portal
    Done done_;
};

} // namespace velara
