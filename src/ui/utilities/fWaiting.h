// fWaiting: a small window while something outside of the program takes its time. Esc, Cancel and closing it are the
// same: rejected().
#pragma once
#include <QDialog>

namespace velara {

class fWaiting final : public QDialog {
    Q_OBJECT
  public:
    fWaiting(const QString& title, const QString& text, QWidget* parent = nullptr);
};

} // namespace velara
