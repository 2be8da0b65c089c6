// PickerWindow: one screen of the rectangle picker.
#pragma once
#include "ui/utilities/fCaptureRectangle.h"
#include <array>

class QLabel;

namespace velara {

/// The pixels around the pointer, eight times as large, with the place and the size of what is picked below.
class Magnifier final : public QWidget {
  public:
    Magnifier(const fCaptureRectangle& picker, QWidget* parent);

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    const fCaptureRectangle& picker_;
};

class PickerWindow final : public QWidget {
    Q_OBJECT
  public:
    PickerWindow(fCaptureRectangle& picker, const ScreenPicture::Part& part);

    /// The lines and the magnifier follow the pointer; both are hidden where they have no place.
    void follow();

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

  private:
    /// Of the picture, in this window.
    QPointF toWindow(QPoint pixel) const;

    fCaptureRectangle& picker_;
    ScreenPicture::Part part_;
    std::array<QWidget*, 4> lines_; // left, top, right, bottom
    Magnifier* shpFollow_;
};

} // namespace velara
