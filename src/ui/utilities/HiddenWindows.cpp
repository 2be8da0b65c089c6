#include "ui/utilities/HiddenWindows.h"
#include <QApplication>
#include <QWindow>
#include <algorithm>
#include <utility>

namespace velara {

namespace {

int depthOf(const QWidget* window)
{
    int depth = 0;
    while ((window = window->parentWidget())) ++depth;
    return depth;
}

} // namespace

/// Restores parents first: a window shown before its owner would be lost behind it; the active one comes last.
HiddenWindows::HiddenWindows() : active_(QApplication::activeWindow())
{
    QWidgetList windows = QApplication::topLevelWidgets();
    windows.removeIf([](const QWidget* window) { return !window->isVisible(); });
    std::ranges::stable_sort(windows, {},
                             [this](const QWidget* window) { return std::pair(window == active_, depthOf(window)); });
    for (QWidget* window : windows) hidden_ << Hidden{window, window->pos()};
    for (QWidget* window : windows) window->hide();
}

HiddenWindows::~HiddenWindows()
{
    for (const Hidden& hidden : hidden_) {
        if (!hidden.window) continue;
        hidden.window->show();
        // The window manager has chosen a new position, but the widget still believes in the old one: moving the widget
        // there would do nothing.
        QWindow* const handle = hidden.window->windowHandle(); // a box may have been put into the frame meanwhile
        if (handle && !(hidden.window->windowState() & (Qt::WindowMaximized | Qt::WindowFullScreen)))
            handle->setFramePosition(hidden.place);
    }
    if (active_) {
        active_->raise();
        active_->activateWindow();
    }
}

} // namespace velara
