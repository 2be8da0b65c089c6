// fPicture: a small picture in a dialog, shown whole and centred, never enlarged.
#pragma once
#include "pixels/Bits.h"
#include <QWidget>

namespace velara {

class fPicture : public QWidget {
    Q_OBJECT
  public:
    /// The widget keeps the size of box.
    fPicture(const QString& objectName, const QString& accessibleName, QSize box, QWidget* parent = nullptr);

    const Bits& bits() const { return bits_; }
    void setBits(const Bits& bits);
    /// Where the picture stands in the widget.
    QRect place() const;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    Bits bits_;
};

/// The picture scaled down so that it fits the box, by BitsResample; itself when it fits.
Bits fittingCopy(const Bits& bits, QSize box);

} // namespace velara
