#include "ui/utilities/HiddenWindows.h"
#include <QApplication>

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
        // Else the window manager would look for a new place; a move to where it stands would not be passed on.
        if (!(hidden.window->windowState() & (Qt::WindowMaximized | Qt::WindowFullScreen))) {
            hidden.window->move(hidden.place + QPoint(1, 0));
            hidden.window->move(hidden.place);
        }
        hidden.window->show();
    }
    if (active_) {
        active_->raise();
        active_->activateWindow();
    }
}

} // namespace velara
