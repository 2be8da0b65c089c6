// The controls of a window under test, by name, and a mouse with explicit buttons.
#pragma once
#include <QtTest>
#include <QtWidgets>
#include <stdexcept>

namespace velara {

/// The control of that name in the window; without one the test ends with a message.
template <class Control = QWidget> Control* controlOf(const QObject& window, const QString& name)
{
    auto* found = window.findChild<Control*>(name);
    if (!found) throw std::runtime_error("no control " + name.toStdString());
    return found;
}

/// Runs the event loop until the condition holds, with a generous time limit for loaded machines. False: it never did.
template <class Condition> bool comes(Condition condition) { return QTest::qWaitFor(condition, 60000); }

/// Sends a mouse event at a position of the widget, as the system does. \returns whether it was accepted.
inline bool sendMouse(QWidget* widget, QEvent::Type type, QPointF at, Qt::MouseButton button, Qt::MouseButtons held,
                      Qt::KeyboardModifiers keys = {})
{
    QMouseEvent event(type, at, widget->mapToGlobal(at), button, held, keys);
    return QCoreApplication::sendEvent(widget, &event);
}

/// Turns the wheel, in eighths of a degree.
inline void sendWheel(QWidget* widget, QPointF at, QPoint angle, Qt::KeyboardModifiers keys = {})
{
    QWheelEvent event(at, widget->mapToGlobal(at), {}, angle, Qt::NoButton, keys, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(widget, &event);
}

} // namespace velara
