// HiddenWindows: the program's windows out of the way, as long as this lives; then they are back where they were.
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
