// fMenuStyle: the look of all menus: a small picture beside each text, items of 20 and separators of 5, a raised frame
// round the picture of the selected item.
#pragma once
#include <QProxyStyle>

namespace velara {

class fMenuStyle final : public QProxyStyle {
    Q_OBJECT
  public:
    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                           const QWidget* widget) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
};

} // namespace velara
