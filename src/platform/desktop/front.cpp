#include "platform/desktop/front.h"
#include "platform/desktop/x11.h"
#include <QGuiApplication>
#include <QWidget>

namespace velara {

void bringToFront(QWidget& window, const ActivationToken& token)
{
    if (window.isMinimized()) window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
    window.show();
    window.raise();
    if (!token.wayland.isEmpty()) qputenv("XDG_ACTIVATION_TOKEN", token.wayland.toUtf8()); // Qt takes it from there
    if (!x11Activate(std::uint32_t(window.winId()), token.startupId.toUtf8())) window.activateWindow();
    qunsetenv("XDG_ACTIVATION_TOKEN");
}

bool windowsCanBePlaced() { return !QGuiApplication::platformName().startsWith(QStringLiteral("wayland")); }

} // namespace velara
