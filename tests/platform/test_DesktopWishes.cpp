// What the person has asked of all programs, told by a portal, played by a mock on a private bus.
#include "PrivateBus.h"
#include "platform/desktop/DesktopWishes.h"
#include <QtWidgets>

namespace velara {

TEST(DesktopWishes, AreTheDesktopsInItsOwnWordsAndFollowIt)
{
    const QString common = "org.freedesktop.appearance";
    const struct {
        QString space, key;
        QJsonValue value;
        Wishes wanted;
        QVariant usual;
    } rows[] = {

        {common, "color-scheme", 2, {false, false, false}, 0U},
        {common, "contrast", 1, {{}, true, false}, 0U},
        {common, "color-scheme", 1, {true, false, false}, 0U},
        {common, "reduced-motion", 1, {{}, false, true}, 0U},
        {"org.gnome.desktop.a11y.interface", "high-contrast", true, {{}, true, false}, false},
        {"org.gnome.desktop.interface", "enable-animations", false, {{}, false, true}, true},
        {"org.kde.kdeglobals.KDE", "AnimationDurationFactor", "0", {{}, false, true}, "1"},
    };
    for (const auto& row : rows) {
        PrivateBus bus;
        ASSERT_TRUE(bus.serve("org.freedesktop.portal.Desktop", "portal.py",
                              {{"settings", QJsonObject{{row.space, QJsonObject{{row.key, row.value}}}}}}));
        DesktopWishes wishes(bus.connection());
        EXPECT_EQ(wishes.wishes(), Wishes()) << "nothing waits for the portal";
        EXPECT_TRUE(comes([&] { return wishes.wishes() == row.wanted; })) << row.key.toStdString();

        QDBusMessage change =
            QDBusMessage::createMethodCall("org.freedesktop.portal.Desktop", "/org/freedesktop/portal/desktop",
                                           "org.freedesktop.DBus.Mock", "EmitSignal");
        const QVariantList told{row.space, row.key, row.usual};
        change.setArguments({"org.freedesktop.portal.Settings", "SettingChanged", "ssv", told});
        bus.connection().call(change);
        EXPECT_TRUE(comes([&] { return wishes.wishes() == Wishes(); })) << row.key.toStdString();
    }
}

TEST(DesktopWishes, AreNoneWithoutAPortal)
{
    for (const bool isBus : {true, false}) {
        PrivateBus bus;
        DesktopWishes wishes(isBus ? bus.connection() : QDBusConnection("none"));
        if (isBus) bus.connection().interface()->registeredServiceNames(); // behind the question
        QCoreApplication::processEvents();
        EXPECT_EQ(wishes.wishes(), Wishes());
    }
}

} // namespace velara
