// fRgbBox: a box for an integer from 0 to 255 that can be dragged up and down like a spin control.
#pragma once
#include <QLineEdit>

namespace velara {

class fRgbBox final : public QLineEdit {
    Q_OBJECT
  public:
    static constexpr int kMost = 255;

    fRgbBox(const QString& name, const QString& accessibleName, QWidget* parent);

    int value() const { return text().toInt(); }
    void setValue(int value);

  signals:
    /// The box was edited; it contains a number in its range.
    void edited();

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

  private:
    void rule();

    int lastY_ = 0; // row of the pointer at the last step of a drag
};

} // namespace velara
