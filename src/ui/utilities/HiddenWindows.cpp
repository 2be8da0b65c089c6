#include "ui/utilities/HiddenWindows.h"
#include <QApplication>
#include <QWindow>

namespace velara {

HiddenWindows::HiddenWindows() : active_(QApplication::activeWindow())
{
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (!window->isVisible()) continue;
        hidden_ << Hidden{window, window->pos()};
        window->hide();
    }
}

HiddenWindows::~HiddenWindows()
{
    for (const Hidden& hidden : hidden_) {
        if (!hidden.window) continue;
        hidden.window->show();
        // The window manager has looked for a new place; by the widget a move to where it thinks it stands goes
        // nowhere.
        if (!(hidden.window->windowState() & (Qt::WindowMaximized | Qt::WindowFullScreen)))
            hidden.window->windowHandle()->setFramePosition(hidden.place);
    }
    if (active_) {
        active_->raise();
        active_->activateWindow();
    }
}

} // namespace velara
