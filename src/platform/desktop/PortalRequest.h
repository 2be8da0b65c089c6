// PortalRequest: one question to the desktop's portal, whose answer comes by a signal, perhaps after the user was
// asked.
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

    /// interface is the last word of its name ("Screenshot"). done is called once, from the message loop, and not after
    /// this object's end, which withdraws the question.
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
    QString path_; // of the question, an object of the portal
    Done done_;
};

} // namespace velara
