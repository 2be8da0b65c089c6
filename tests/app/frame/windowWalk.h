// Opens every window that the menus open, with a picture in the frame and all boxes and panes shown.
#pragma once
#include "app/frame/frameTest.h"
#include "app/menus/Boxes.h"
#include <QtWidgets>

namespace velara {

struct WindowWalk : FrameTest {
    static bool isA(const QWidget* widget, std::initializer_list<const char*> classes)
    {
        return widget && std::ranges::any_of(classes, [&](const char* name) { return widget->inherits(name); });
    }
    /// Calls look with the frame, then with each window over it, one at a time; modal ones are closed after it.
    template <class Look> void eachWindow(Look look)
    {
        frame->initToolPanes();
        open(randomBits(20, 20, 2), "behind.bmp");
        open(randomBits(60, 40, 1));
        frame->boxes().showAll();
        for (QToolButton* strip : frame->toolPane().findChildren<QToolButton*>())
            if (strip->isCheckable()) strip->click();
        QSet<QString> seen;
        const auto lookAt = [&](QWidget& window) {
            seen << window.objectName() + window.windowTitle();
            look(window);
        };
        lookAt(*frame);
        const auto lookAndClose = [&] {
            bool any = false;
            for (QWidget* window : QApplication::topLevelWidgets()) {
                if (window == frame.get() || !window->isVisible() || qobject_cast<QMenu*>(window)) continue;
                lookAt(*window);
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
        EXPECT_GE(seen.size(), 35) << seen.values().join('\n').toStdString();
    }
};

} // namespace velara
