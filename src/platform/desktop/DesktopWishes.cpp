#include "platform/desktop/DesktopWishes.h"
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

namespace velara {

namespace {

using Settings = QMap<QString, QVariantMap>;

const QString kService = QStringLiteral("org.freedesktop.portal.Desktop"),
              kPath = QStringLiteral("/org/freedesktop/portal/desktop"),
              kInterface = QStringLiteral("org.freedesktop.portal.Settings");

/// Older portals say some of it in the desktop's own words.
struct Row {
    const char *space, *key;
    void (*take)(Wishes& wishes, const QVariant& value);
};
// clang-format off
constexpr Row kRows[] = {
    {"org.freedesktop.appearance", "color-scheme", [](Wishes& w, const QVariant& v) {
         if (v.toUInt() == 1 || v.toUInt() == 2) w.dark = v.toUInt() == 1;
     }},
    {"org.freedesktop.appearance", "contrast",       [](Wishes& w, const QVariant& v) { w.contrast |= v.toUInt() == 1; }},
    {"org.freedesktop.appearance", "reduced-motion", [](Wishes& w, const QVariant& v) { w.lessMotion |= v.toUInt() == 1; }},
    {"org.gnome.desktop.a11y.interface", "high-contrast", [](Wishes& w, const QVariant& v) { w.contrast |= v.toBool(); }},
    {"org.gnome.desktop.interface", "enable-animations",  [](Wishes& w, const QVariant& v) { w.lessMotion |= !v.toBool(); }},
    {"org.kde.kdeglobals.KDE", "AnimationDurationFactor", [](Wishes& w, const QVariant& v) {
         bool isNumber = false;
         w.lessMotion |= v.toString().toDouble(&isNumber) == 0 && isNumber;
     }},
};
// clang-format on

} // namespace

DesktopWishes::DesktopWishes(const QDBusConnection& given)
{
    QDBusConnection bus = given;
    if (!bus.isConnected()) return;
    qDBusRegisterMetaType<Settings>();
    qRegisterMetaType<QDBusVariant>(); // not known by its name before the first message has come
    // From whatever name: to look that up would wait for the bus.
    bus.connect(QString(), kPath, kInterface, QStringLiteral("SettingChanged"), this,
                SLOT(settingChanged(QString, QString, QDBusVariant)));
    QStringList spaces;
    for (const Row& row : kRows)
        if (!spaces.contains(QLatin1String(row.space))) spaces << QLatin1String(row.space);
    QDBusMessage call = QDBusMessage::createMethodCall(kService, kPath, kInterface, QStringLiteral("ReadAll"));
    call.setArguments({spaces});
    auto* watcher = new QDBusPendingCallWatcher(bus.asyncCall(call), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, &DesktopWishes::told);
}

void DesktopWishes::told(QDBusPendingCallWatcher* call)
{
    const QDBusPendingReply<Settings> reply = *call;
    call->deleteLater();
    if (reply.isError()) return;
    const Settings meanwhile = std::exchange(settings_, reply.value());
    for (auto space = meanwhile.begin(); space != meanwhile.end(); ++space) settings_[space.key()].insert(*space);
    weigh();
}

void DesktopWishes::settingChanged(const QString& space, const QString& key, const QDBusVariant& value)
{
    settings_[space][key] = value.variant();
    weigh();
}

void DesktopWishes::weigh()
{
    Wishes now;
    for (const Row& row : kRows)
        if (const QVariant value = settings_.value(QLatin1String(row.space)).value(QLatin1String(row.key));
            value.isValid())
            row.take(now, value);
    if (now == wishes_) return;
    wishes_ = now;
    emit changed();
}

} // namespace velara
