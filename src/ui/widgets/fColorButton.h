// fColorButton: a colour well. Shows its colour and opens the colour picker on a click; the active well of a pair has a
// frame.
#pragma once
#include "pixels/Bits.h"
#include "ui/widgets/inputs/Spoken.h"
#include <QAbstractButton>

namespace velara {

class Frame;

class fColorButton final : public QAbstractButton, public Spoken {
    Q_OBJECT
  public:
    /// The frame asks the user for the colour.
    fColorButton(Frame& frame, const QString& name, const QString& accessibleName, QWidget* parent);

    Colour colour() const { return colour_; }
    void setColour(Colour colour); // emits colourChanged if it differs
    void setActive(bool active);
    QSize sizeHint() const override { return {56, 26}; }
    QAccessible::Role spokenRole() const override { return QAccessible::Button; }
    QString spokenValue() const override { return toolTip(); }
    bool isPressable() const override { return true; }
    void press() override { click(); }

  signals:
    void colourChanged();

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    void choose();

    Frame& frame_;
    Colour colour_ = 0;
    bool active_ = false;
};

} // namespace velara
