// fMenuStyle: the look of all menus: a small picture beside each text, items of 20 and separators of 5, a raised frame
// round the picture of the selected item. And texts are shown as they are. All else is that of the controls.
#pragma once
#include "app/menus/fControlStyle.h"

namespace velara {

class fMenuStyle final : public fControlStyle {
    Q_OBJECT
  public:
    using fControlStyle::polish;
    /// Labels, and the boxes of hints, would take a text with angle brackets for a page, and load the pictures that it
    /// names: the name of a file or a folder could be such a text.
    void polish(QWidget* widget) override;
    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                           const QWidget* widget) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
};

} // namespace velara
