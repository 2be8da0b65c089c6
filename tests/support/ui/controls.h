// The controls of a window under test, by their names, and a mouse whose buttons are told.
#pragma once
#include <QtTest>
#include <QtWidgets>
#include <stdexcept>

namespace velara {

/// The control of that name in the window; where there is none the test ends and tells it.
template <class Control = QWidget> Control* controlOf(const QObject& window, const QString& name)
{
    auto* found = window.findChild<Control*>(name);
    if (!found) throw std::runtime_error("no control " + name.toStdString());
    return found;
}

/// Runs the event loop until the condition holds, for as long as a loaded machine may need. False: it never did.
template <class Condition> bool comes(Condition condition) { return QTest::qWaitFor(condition, 60000); }

/// Mouse event at a place of the widget, as the system sends it. \returns whether it was taken.
inline bool sendMouse(QWidget* widget, QEvent::Type type, QPointF at, Qt::MouseButton button, Qt::MouseButtons held,
                      Qt::KeyboardModifiers keys = {})
{
    QMouseEvent event(type, at, widget->mapToGlobal(at), button, held, keys);
    return QCoreApplication::sendEvent(widget, &event);
}

/// Turn of the wheel, in eighths of a degree.
inline void sendWheel(QWidget* widget, QPointF at, QPoint angle, Qt::KeyboardModifiers keys = {})
{
    QWheelEvent event(at, widget->mapToGlobal(at), {}, angle, Qt::NoButton, keys, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(widget, &event);
}

} // namespace velara
