#include "tools/monkey/Hands.h"
#include <QApplication>
#include <QWheelEvent>
#include <QtTest/qtestkeyboard.h>
#include <QtTest/qtestmouse.h>

namespace velara::monkey {

void Hands::point(const QWidget& widget, QPoint at)
{
    global_ = widget.mapToGlobal(at);
    if (!held_ || !window_) window_ = widget.window()->windowHandle();
    send(QEvent::MouseMove, Qt::NoButton, {});
}

void Hands::press(Qt::MouseButton button, Qt::KeyboardModifiers keys)
{
    held_ |= button;
    send(QEvent::MouseButtonPress, button, keys);
}

void Hands::release(Qt::MouseButton button, Qt::KeyboardModifiers keys)
{
    held_ &= ~Qt::MouseButtons(button);
    send(QEvent::MouseButtonRelease, button, keys);
}

void Hands::click(Qt::MouseButton button)
{
    press(button);
    release(button);
}

void Hands::releaseAll()
{
    for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton})
        if (held_ & button) release(button);
}

void Hands::send(QEvent::Type type, Qt::MouseButton button, Qt::KeyboardModifiers keys)
{
    if (!window_ || !window_->handle()) return; // it was destroyed meanwhile
    time_ += 30;
    qt_handleMouseEvent(window_, window_->mapFromGlobal(global_), global_, held_, button, type, keys, time_);
}

void Hands::wheel(int eighths, Qt::KeyboardModifiers keys)
{
    QWidget* const widget = QApplication::widgetAt(global_.toPoint());
    const QWidget* const modal = QApplication::activeModalWidget();
    if (!widget || (modal && modal != widget->window())) return;
    QWheelEvent event(widget->mapFromGlobal(global_), global_, {}, {0, eighths}, held_, keys, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(widget, &event);
}

void Hands::key(Qt::Key key, Qt::KeyboardModifiers keys, const QString& text)
{
    const QPointer<QWindow> window = QGuiApplication::focusWindow();
    if (!window) return;
    if (qt_sendShortcutOverrideEvent(window, 0, key, keys, text) || !window) return;
    qt_handleKeyEvent(window, QEvent::KeyPress, key, keys, text);
    if (window) qt_handleKeyEvent(window, QEvent::KeyRelease, key, keys, text);
    if (window && keys & Qt::ControlModifier) // ends the choice of a window by Ctrl+Tab
        qt_handleKeyEvent(window, QEvent::KeyRelease, Qt::Key_Control, Qt::NoModifier, {});
}

} // namespace velara::monkey
