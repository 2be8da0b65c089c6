// QtScreen: the screens by Qt on X; by the desktop's portal in a session of Wayland, where no program may look for
// itself, whether its windows come over X or not. There X has a black picture.
#pragma once
#include "seams/Platform.h"
#include "seams/Screen.h"
#include <QDBusConnection>
#include <QPointer>
#include <QTimer>

namespace velara {

class PortalRequest;

class QtScreen final : public QObject, public Screen {
    Q_OBJECT
  public:
    /// platform reads the portal's file. The portal is on the bus; without one it's on that of the session.
    explicit QtScreen(Platform& platform, std::optional<QDBusConnection> bus = {});
    ~QtScreen() override;

    void grab(Done done) override;
    void cancel() override;
    bool showDesktop(bool on) override;

  private:
    void grabByPortal();
    void received(int code, const QVariantMap& results);
    void answer(ScreenPicture picture);

    Platform& platform_;
    std::optional<QDBusConnection> bus_;
    QPointer<PortalRequest> request_;
    QTimer settle_;
    Done done_;
};

/// The picture, which shows all of the desktop at some scale, with the places of its screens.
ScreenPicture wholeDesktop(const Bits& bits, const QList<QRect>& screens);

} // namespace velara
