// A message bus of the test's own, with the services that it puts there.
#pragma once
#include "support/places.h"
#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QtCore>
#include <functional>
#include <gtest/gtest.h>

namespace velara {

/// Handles events until it is so; false after a while.
inline bool waitUntil(const std::function<bool()>& so, int patience = 20000)
{
    QElapsedTimer timer;
    for (timer.start(); !so(); QCoreApplication::processEvents(QEventLoop::AllEvents, 20))
        if (timer.elapsed() > patience) return false;
    return true;
}

/// What ask's callback is called with, once it is; nothing, and a failure, after a while.
template <class Answer> Answer answerTo(const std::function<void(std::function<void(const Answer&)> done)>& ask)
{
    const auto got = std::make_shared<std::optional<Answer>>(); // an answer may come when nobody waits any more
    ask([got](const Answer& answer) { *got = answer; });
    EXPECT_TRUE(waitUntil([&] { return got->has_value(); }));
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
    QDBusConnection connection() { return QDBusConnection::connectToBus(address_, address_); }

    /// The mock service of a template beside this file; true when it is there.
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
        return waitUntil([&] { return connection().interface()->isServiceRegistered(name).value(); });
    }

  private:
    QProcess daemon_, service_;
    QString address_;
};

} // namespace velara
