// fHexBox: a box that shows a colour as "#rrggbb" and takes it in any form of colour/colourCode.h.
#pragma once
#include "pixels/Bits.h"
#include <QLineEdit>

namespace velara {

class fHexBox final : public QLineEdit {
    Q_OBJECT
  public:
    fHexBox(const QString& name, QWidget* parent);

    void setColour(Colour colour);
    /// Takes what was typed. False: it is no colour, which is said by refused(); the text stays, selected.
    bool take();

  signals:
    void picked(Colour colour);
    void refused(const QString& why);

  protected:
    void keyPressEvent(QKeyEvent* event) override;   // Enter takes, Esc gives up what was typed
    void focusOutEvent(QFocusEvent* event) override; // takes a colour; what is none gives way to the present one

  private:
    Colour colour_ = 0;
};

} // namespace velara
