// Opens every window that the menus open, with a picture in the frame and all boxes and panes shown.
#pragma once
#include "app/frame/frameTest.h"
#include "app/menus/Boxes.h"
#include <QtWidgets>

namespace velara {

struct EveryWindowTest : FrameTest {
    /// Calls look with the frame, then with each window over it, one at a time; modal ones are closed after it.
    template <class Look> void eachWindow(Look look)
    {
        frame->initToolPanes();
        open(randomBits(20, 20, 2), "behind.bmp");
        open(randomBits(60, 40, 1));
        frame->boxes().showAll();
        for (QToolButton* strip : frame->toolPane().findChildren<QToolButton*>())
            if (strip->isCheckable()) strip->click();
        look(*frame);
        const auto lookAndClose = [&] {
            bool any = false;
            for (QWidget* window : QApplication::topLevelWidgets()) {
                if (window == frame.get() || !window->isVisible() || qobject_cast<QMenu*>(window)) continue;
                look(*window);
                window->close();
                any = true;
            }
            return any;
        };
        QTimer timer; // comes in the middle of a modal window, too
        QObject::connect(&timer, &QTimer::timeout, lookAndClose);
        timer.start(1);
        for (QAction* item : frame->findChildren<QAction*>()) {
            if (!item->text().endsWith("...") && item->objectName() != "ABOUT_10") continue;
            item->trigger();
            frame->workspace().wait();
            comes([&] { return !lookAndClose(); });
        }
    }
};

} // namespace velara
