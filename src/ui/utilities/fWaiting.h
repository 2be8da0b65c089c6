// fWaiting: a small window shown while waiting for something outside of the program. Esc, Cancel and closing it all
// emit rejected().
#pragma once
#include <QDialog>

namespace velara {

class fWaiting final : public QDialog {
    Q_OBJECT
  public:
    fWaiting(const QString& title, const QString& text, QWidget* parent = nullptr);
};

} // namespace velara
