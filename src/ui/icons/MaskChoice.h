// MaskChoice: the check box "Use Mask Color" with the well of that colour.
#pragma once
#include "pixels/Bits.h"
#include <QWidget>
#include <optional>

class QCheckBox;

namespace velara {

class Frame;
class fColorButton;

class MaskChoice final : public QWidget {
    Q_OBJECT
  public:
    /// check: the name of the check box; the well's is that plus "Color".
    MaskChoice(Frame& frame, const QString& check, const QString& caption);

    /// Nothing while it is unchecked.
    std::optional<Colour> mask() const;
    /// Checks the box, too.
    void setMask(Colour colour);

  signals:
    void changed();

  private:
    QCheckBox* check_;
    fColorButton* well_;
};

} // namespace velara
