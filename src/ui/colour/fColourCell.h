// fColourCell: a small field of one colour that can be clicked and double clicked, also by Space and Enter.
#pragma once
#include "pixels/Bits.h"
#include "ui/widgets/inputs/Spoken.h"
#include <QWidget>

namespace velara {

/// "Red 255, green 0, blue 0", for tool tips and screen readers.
QString colourText(Colour colour);

class fColourCell final : public QWidget, public Spoken {
    Q_OBJECT
  public:
    fColourCell(const QString& name, const QString& accessibleName, QSize size, QWidget* parent);

    Colour colour() const { return colour_; }
    void setColour(Colour colour);
    QAccessible::Role spokenRole() const override { return QAccessible::Button; }
    QString spokenValue() const override { return colourText(colour_); }
    bool isPressable() const override { return true; }
    void press() override { emit clicked(); }

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
