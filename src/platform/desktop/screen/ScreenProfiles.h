// ScreenProfiles: finds the colour profiles of the screens: as programs that load them leave them on the X server (the
// root window's properties _ICC_PROFILE, _ICC_PROFILE_1 ...), else by the colour daemon. In a Wayland session there are
// none: its compositor converts by itself.
#pragma once
#include <QAbstractNativeEventFilter>
#include <QByteArray>
#include <QDBusConnection>
#include <QDBusObjectPath>
#include <QObject>
#include <functional>
#include <optional>

class QScreen;

namespace velara {

class ScreenProfiles final : public QObject, public QAbstractNativeEventFilter {
    Q_OBJECT
  public:
    static constexpr qint64 kMostBytes = 4 << 20;

    /// bus has the colour daemon; without one the system's is used, where the windows are on an X server.
    explicit ScreenProfiles(std::optional<QDBusConnection> bus = {}, QObject* parent = nullptr);
    ~ScreenProfiles() override;

    using Found = std::function<void(const QByteArray& profile)>;
    /// found is called once, at once or later, unless this is gone: empty when the screen has no profile, or one of
    /// more than kMostBytes. screen is its number among all, name that of its output.
    void find(int screen, const QString& name, Found found);

  signals:
    /// Some screen may have another profile now.
    void changed();

  protected:
    bool nativeEventFilter(const QByteArray& kind, void* message, qintptr* result) override;

  private:
    void askDaemon(const QString& name, const Found& found);

    std::optional<QDBusConnection> bus_;
    bool listens_ = false; // to the daemon
};

} // namespace velara
