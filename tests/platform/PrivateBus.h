// A private message bus, with mock services on it.
#pragma once
#include "support/places.h"
#include "support/ui/controls.h"
#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QtCore>
#include <functional>
#include <gtest/gtest.h>

namespace velara {

/// The argument of ask's callback, once it is called; nothing, and a test failure, after a time limit.
template <class Answer> Answer answerTo(const std::function<void(std::function<void(const Answer&)> done)>& ask)
{
    const auto got = std::make_shared<std::optional<Answer>>(); // an answer may arrive after the wait
    ask([got](const Answer& answer) { *got = answer; });
    EXPECT_TRUE(comes([&] { return got->has_value(); }));
    return got->value_or(Answer());
}

class PrivateBus {
  public:
    PrivateBus()
    {
        daemon_.start("dbus-daemon", {"--session", "--nofork", "--nopidfile", "--print-address"});
        daemon_.waitForReadyRead();
        address_ = QString::fromUtf8(daemon_.readLine()).trimmed();
    }
    ~PrivateBus()
    {
        QDBusConnection::disconnectFromBus(address_);
        for (QProcess* process : {&service_, &daemon_}) {
            process->kill();
            process->waitForFinished();
        }
    }
    const QString& address() const { return address_; }
    QDBusConnection connection() { return QDBusConnection::connectToBus(address_, address_); }

    /// Starts the mock service of a template beside this file; true when it is available.
    bool serve(const QString& name, const QString& script, const QJsonObject& parameters)
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("DBUS_SESSION_BUS_ADDRESS", address_);
        service_.setProcessEnvironment(environment);
        service_.setStandardOutputFile(QProcess::nullDevice());
        service_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        service_.start("/usr/bin/python3",
                       {"-m", "dbusmock", "--template", testsPath("platform/") + script, "--parameters",
                        QString::fromUtf8(QJsonDocument(parameters).toJson(QJsonDocument::Compact))});
        return comes([&] { return connection().interface()->isServiceRegistered(name).value(); });
    }

  private:
    QProcess daemon_, service_;
    QString address_;
};

} // namespace velara
