// Magnifier: the pixels around the pointer, eight times as large, with the place and the size of what is picked below.
#pragma once
#include <QWidget>

namespace velara {

class CoverWindow;
class fCaptureRectangle;

class Magnifier final : public QWidget {
  public:
    Magnifier(const fCaptureRectangle& picker, CoverWindow& window);

    /// Goes to the pointer; hidden where that is on another screen.
    void follow();

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    const fCaptureRectangle& picker_;
    CoverWindow& window_;
};

} // namespace velara
