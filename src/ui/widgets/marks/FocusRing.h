// FocusRing: a ring around the control that has the focus, while the keyboard is used; presses of the mouse put it
// away. It lies over the window, so that controls of any kind and style have it without a line of their own.
#pragma once
#include <QPointer>
#include <QWidget>

namespace velara {

class FocusRing final : public QObject {
    Q_OBJECT
  public:
    /// Works for all windows of the application, until it is deleted.
    FocusRing();
    ~FocusRing() override;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void surround(QWidget* control);
    void place();

    QPointer<QWidget> control_, ring_;
    bool byKeys_ = false; // the last input
};

} // namespace velara
