// fColourCell: a small field of one colour that can be clicked and double clicked, also by Space and Enter.
#pragma once
#include "pixels/Bits.h"
#include <QWidget>

namespace velara {

/// "Red 255, green 0, blue 0", for tool tips and screen readers.
QString colourText(Colour colour);

class fColourCell final : public QWidget {
    Q_OBJECT
  public:
    fColourCell(const QString& name, const QString& accessibleName, QSize size, QWidget* parent);

    Colour colour() const { return colour_; }
    void setColour(Colour colour);

  signals:
    void clicked();
    void doubleClicked();

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    Colour colour_ = 0;
};

} // namespace velara
