// Magnifier: the pixels around the pointer, magnified eight times, with its position and the size of the picked
// rectangle below.
#pragma once
#include <QWidget>

namespace velara {

class CoverWindow;
class fCaptureRectangle;

class Magnifier final : public QWidget {
  public:
    Magnifier(const fCaptureRectangle& picker, CoverWindow& window);

    /// Moves to the pointer; hides if that is on another screen.
    void follow();

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    const fCaptureRectangle& picker_;
    CoverWindow& window_;
};

} // namespace velara
