// The colour daemon, played by a mock on a private bus, and what is found there for each screen.
#include "PrivateBus.h"
#include "platform/desktop/screen/ScreenProfiles.h"
#include "support/files.h"
#include <QtTest>

namespace velara {

namespace {

struct Daemon {
    QTemporaryDir folder;
    PrivateBus bus;
    QString first = folder.filePath("first.icc"), second = folder.filePath("second.icc"),
            big = folder.filePath("big.icc");

    bool start()
    {
        putFile(first, "first");
        putFile(second, "second");
        putFile(big, QByteArray(ScreenProfiles::kMostBytes + 1, 'b'));
        return bus.serve("org.freedesktop.ColorManager", "colord.py",
                         {{"profiles", QJsonObject{{"DP-1", first},
                                                   {"HDMI-A-1", second},
                                                   {"DP-2", big},
                                                   {"DP-3", folder.path()},
                                                   {"DP-4", folder.filePath("gone")},
                                                   {"DP-5", ""}}}});
    }
    void call(const QString& method, const QVariantList& arguments)
    {
        QDBusMessage message = QDBusMessage::createMethodCall(
            "org.freedesktop.ColorManager", "/org/freedesktop/ColorManager", "org.freedesktop.ColorManager", method);
        message.setArguments(arguments);
        bus.connection().call(message);
    }
};

QByteArray foundFor(ScreenProfiles& profiles, const QString& output)
{
    return answerTo<QByteArray>([&](auto done) { profiles.find(0, output, done); });
}

} // namespace

TEST(ScreenProfiles, TheDaemonHasOneForEachOutputAndTellsOfAnother)
{
    Daemon daemon;
    ASSERT_TRUE(daemon.start());
    ScreenProfiles profiles(daemon.bus.connection());
    const QSignalSpy changed(&profiles, &ScreenProfiles::changed);
    EXPECT_EQ(foundFor(profiles, "DP-1"), "first");
    EXPECT_EQ(foundFor(profiles, "HDMI-A-1"), "second");
    for (const char* none : {"DP-2", "DP-3", "DP-4", "DP-5", "DP-6"})
        EXPECT_TRUE(foundFor(profiles, none).isEmpty()) << none;
    EXPECT_TRUE(changed.isEmpty());

    daemon.call("Replace", {"DP-1", daemon.second});
    ASSERT_TRUE(comes([&] { return changed.size() == 1; }));
    EXPECT_EQ(foundFor(profiles, "DP-1"), "second");
    daemon.call("Plug", {"DP-6"});
    EXPECT_TRUE(comes([&] { return changed.size() == 2; })) << "a screen that the daemon learns of later";
}

TEST(ScreenProfiles, WithoutADaemonOrABusThereIsNone)
{
    PrivateBus bus;
    for (const QDBusConnection& connection : {bus.connection(), QDBusConnection("none")}) {
        ScreenProfiles profiles(connection);
        EXPECT_TRUE(foundFor(profiles, "DP-1").isEmpty());
    }
}

} // namespace velara
