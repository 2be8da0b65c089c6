// QtScreen: captures screens by Qt on X; by the desktop's portal in a Wayland session, where no program may look by
// itself, even if its windows use X: a capture through X is black there.
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
    /// platform reads the portal's file. bus has the portal; without one the session's is used.
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
    QPointer<QObject> reading_; // while the portal's file is read
    QTimer settle_;
    Done done_;
};

/// The picture, which shows the whole desktop at some scale, with the positions of its screens.
ScreenPicture wholeDesktop(const Bits& bits, const QList<QRect>& screens);

} // namespace velara
