// Hands: mouse and key events as sent by the window system. Qt itself chooses their receiver: modal windows, popups and
// the pressed widget intervene as with a real user.
#pragma once
#include <QKeySequence>
#include <QPointer>
#include <QWidget>
#include <QWindow>

namespace velara::monkey {

class Hands {
  public:
    /// Moves the pointer over a position of the widget; while a button is held, events go to the pressed window.
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
