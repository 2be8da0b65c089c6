// DesktopWallpaper: sets the wallpaper in the running desktop's own way: its settings program, a script for its shell,
// the portal, or the X root window where nothing else draws on it. A row of the table selects it.
#pragma once
#include "seams/Platform.h"
#include "seams/Wallpaper.h"
#include <QDBusConnection>
#include <QObject>
#include <QPointer>
#include <QStringList>

namespace velara {

class PortalRequest;

class DesktopWallpaper final : public QObject, public Wallpaper {
    Q_OBJECT
  public:
    /// platform reads the file where this class draws it itself. Without a bus the session's own is used.
    explicit DesktopWallpaper(Platform& platform, std::optional<QDBusConnection> bus = {});

    /// Per user, below $XDG_DATA_HOME; created if missing.
    QString folder() override;
    void set(const QString& path, WallpaperMode mode, Done done) override;

  private:
    using Commands = QList<QStringList>; // each a program with its arguments
    using Answer = std::function<void(bool ok, const QString& output)>;

    void finish(WallpaperResult result);
    /// Runs one program and passes on its output; gives up after kPatience.
    void run(const QStringList& command, const Answer& answer);
    /// One after the other, even after a failure: a desktop of another version may lack one of the settings.
    void runAll(Commands commands, WallpaperResult soFar = WallpaperResult::Done);
    void setByXfce(const QString& path, WallpaperMode mode);
    void setByPlasma(const QString& path, WallpaperMode mode);
    void setByPortal(const QString& path, WallpaperMode mode);
    void setRoot(const QString& path, WallpaperMode mode);
    QDBusConnection bus() const { return bus_.value_or(QDBusConnection::sessionBus()); }

    Platform& platform_;
    std::optional<QDBusConnection> bus_;
    Done done_;
    QPointer<QObject> work_; // the work under way; all of it ends with this object
    QPointer<PortalRequest> request_;
};

} // namespace velara
