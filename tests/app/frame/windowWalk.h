// Opens every window that the menus open, the panes and the boxes.
#pragma once
#include "app/frame/frameTest.h"
#include "app/menus/Boxes.h"
#include <QtWidgets>

namespace velara {

struct WindowWalk : FrameTest {
    QSet<QString> seen; // the windows looked at

    static bool isA(const QWidget* widget, std::initializer_list<const char*> classes)
    {
        return widget && std::ranges::any_of(classes, [&](const char* name) { return widget->inherits(name); });
    }
    virtual void look(QWidget& window) = 0;

    /// Looks at the windows over the frame and closes them. \returns whether there was one
    bool lookAndClose()
    {
        bool any = false;
        for (QWidget* window : QApplication::topLevelWidgets()) {
            if (window == frame.get() || !window->isVisible() || qobject_cast<QMenu*>(window)) continue;
            lookAt(*window);
            window->close();
            any = true;
        }
        return any;
    }
    void walk()
    {
        frame->initToolPanes();
        open(randomBits(60, 40, 1));
        frame->boxes().showAll();
        for (QToolButton* strip : frame->toolPane().findChildren<QToolButton*>())
            if (strip->isCheckable()) strip->click();
        lookAt(*frame);
        QTimer timer; // comes in the middle of a modal window, too
        QObject::connect(&timer, &QTimer::timeout, [this] { lookAndClose(); });
        timer.start(1);
        for (QAction* item : frame->findChildren<QAction*>()) {
            if (!item->text().endsWith("...") && item->objectName() != "ABOUT_10") continue;
            item->trigger();
            frame->workspace().wait();
            comes([&] { return !lookAndClose(); });
        }
        timer.stop();
        EXPECT_GE(seen.size(), 35) << seen.values().join('\n').toStdString();
    }

  private:
    void lookAt(QWidget& window)
    {
        seen << window.objectName() + window.windowTitle();
        look(window);
    }
};

} // namespace velara
