// fHover: shows a floating pane beside the buttons when the pointer rests on one of them, and closes it when the
// pointer leaves both. The pane shows the button's name itself: a tool tip would cover it.
#pragma once
#include <QPointer>
#include <QTimer>
#include <QWidget>
#include <functional>

namespace velara {

class fHover final : public QObject {
    Q_OBJECT
  public:
    /// Owned by the button, which is one of several in its parent. make returns a new pane, a window that is deleted
    /// when it closes; it becomes a part of the button's window where windows can't be placed.
    fHover(QWidget* button, std::function<QWidget*()> make);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void show();
    void place();
    void closeIfLeft();
    QRect onScreen(const QWidget* widget) const;

    QWidget* button_;
    std::function<QWidget*()> make_;
    QTimer t_t_, t_p_; // the pointer rests: first a short wait, so that passing over is free, then the long one
    QTimer look_;      // whether the pointer has left the pane
    QPointer<QWidget> pane_;
};

} // namespace velara
