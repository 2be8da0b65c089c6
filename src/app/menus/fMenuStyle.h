// fMenuStyle: the look of all menus: a small icon beside each text, items of 20 pixels and separators of 5, a raised
// frame around the icon of the selected item. It also shows texts literally. Everything else is that of the controls.
#pragma once
#include "app/menus/fControlStyle.h"

namespace velara {

class fMenuStyle final : public fControlStyle {
    Q_OBJECT
  public:
    using fControlStyle::polish;
    /// Labels and tool tips would interpret a text with angle brackets as HTML and load the images that it names: a
    /// file or folder name could be such a text.
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
