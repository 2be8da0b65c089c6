// QtScreen: the screens by Qt on X, by the desktop's portal on Wayland, where no program may look for itself.
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
    /// platform reads the portal's file. With a bus the portal is asked, whatever the windowing system.
    explicit QtScreen(Platform& platform, std::optional<QDBusConnection> bus = {});
    ~QtScreen() override;

    void grab(Done done) override;
    void cancel() override;
    bool showDesktop(bool on) override;

  private:
    void grabByPortal();
    void answer(const ScreenPicture& picture);

    Platform& platform_;
    std::optional<QDBusConnection> bus_;
    QPointer<PortalRequest> request_;
    QTimer settle_;
    Done done_;
};

/// The picture, which shows all of the desktop at some scale, with the places of its screens.
ScreenPicture wholeDesktop(const Bits& bits, const QList<QRect>& screens);

} // namespace velara
