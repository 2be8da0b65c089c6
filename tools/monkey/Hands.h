// Hands: mouse and keys as the window system hands them on. Who gets them is Qt's own choice: modal windows, popups and
// the widget that was pressed have their say as they have with a person.
#pragma once
#include <QKeySequence>
#include <QPointer>
#include <QWidget>
#include <QWindow>

namespace velara::monkey {

class Hands {
  public:
    /// The pointer over a place of the widget; with a button held it stays the pressed window's.
    void point(const QWidget& widget, QPoint at);
    void press(Qt::MouseButton button, Qt::KeyboardModifiers keys = {});
    void release(Qt::MouseButton button, Qt::KeyboardModifiers keys = {});
    void click(Qt::MouseButton button = Qt::LeftButton);
    void wheel(int eighths, Qt::KeyboardModifiers keys);
    void releaseAll();
    Qt::MouseButtons held() const { return held_; }

    /// To the window with the focus, shortcuts first. text is what the key types.
    static void key(Qt::Key key, Qt::KeyboardModifiers keys = {}, const QString& text = {});

  private:
    void send(QEvent::Type type, Qt::MouseButton button, Qt::KeyboardModifiers keys);

    QPointer<QWindow> window_;
    QPointF global_;
    Qt::MouseButtons held_;
    int time_ = 0; // milliseconds of the mouse events
};

} // namespace velara::monkey
