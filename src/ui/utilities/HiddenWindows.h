// HiddenWindows: hides the program's windows while it lives, then puts them back where they were.
#pragma once
#include <QList>
#include <QPointer>
#include <QWidget>

namespace velara {

class HiddenWindows {
  public:
    HiddenWindows();
    ~HiddenWindows();
    HiddenWindows(const HiddenWindows&) = delete;

  private:
    struct Hidden {
        QPointer<QWidget> window;
        QPoint place;
    };
    QList<Hidden> hidden_;
    QPointer<QWidget> active_;
};

} // namespace velara
