// fHover: shows a floating pane beside a button on which the pointer rests, and takes it away when the pointer leaves
// it.
#pragma once
#include <QPointer>
#include <QTimer>
#include <QWidget>
#include <functional>

namespace velara {

class fHover final : public QObject {
    Q_OBJECT
  public:
    /// Owned by the button. make gives a new pane, a window that is deleted when it closes.
    fHover(QWidget* button, std::function<QWidget*()> make);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void show();
    void closeIfLeft();

    QWidget* button_;
    std::function<QWidget*()> make_;
    QTimer t_t_, t_p_; // the pointer rests: first a short wait, so that passing by costs nothing, then the long one
    QTimer look_;      // whether the pointer has left the pane
    QPointer<QWidget> pane_;
};

} // namespace velara
