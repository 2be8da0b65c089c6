// DesktopWishes: what the person has asked of all programs, as the desktop's portal tells it: dark windows, high
// contrast, less motion. Follows changes; without a portal nothing is asked for.
#pragma once
#include <QDBusConnection>
#include <QDBusVariant>
#include <QMap>
#include <QObject>
#include <QVariantMap>
#include <optional>

class QDBusPendingCallWatcher;

namespace velara {

struct Wishes {
    std::optional<bool> dark; // none: it isn't said
    bool contrast = false, lessMotion = false;
    bool operator==(const Wishes&) const = default;
};

class DesktopWishes final : public QObject {
    Q_OBJECT
  public:
    /// Asks at once; the answer comes from the message loop.
    explicit DesktopWishes(const QDBusConnection& bus);

    const Wishes& wishes() const { return wishes_; }

  signals:
    void changed();

  private slots:
    void settingChanged(const QString& space, const QString& key, const QDBusVariant& value);

  private:
    void told(QDBusPendingCallWatcher* call);
    void weigh();

    QMap<QString, QVariantMap> settings_; // by namespace
    Wishes wishes_;
};

} // namespace velara
