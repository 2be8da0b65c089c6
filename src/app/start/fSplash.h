// fSplash: the picture of the start, and of About. A press starts ripples on it; a click or Esc closes it.
#pragma once
#include "app/start/ripples.h"
#include <QDialog>
#include <QTimer>

namespace velara {

class Platform;

class fSplash final : public QDialog {
    Q_OBJECT
  public:
    /// Writes the picture to a file beside the program folder, and shows it.
    explicit fSplash(Platform& platform, QWidget* parent = nullptr);
    /// For About: version, licence and libraries below the picture.
    void showFacts();

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

  private:
    void tick();

    Platform& platform_;
    Ripples ripples_;
    QTimer Timer1;
};

} // namespace velara
