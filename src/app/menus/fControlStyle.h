// fControlStyle: corrects what is indistinguishable in the plain style: unchecked boxes, sliders and title bars on a
// dark background, checked or disabled buttons, boxes that are only read, chosen rows and hints of too little contrast;
// with a palette of high contrast all edges. A desktop's own style is left unchanged, but for hints and icons in the
// buttons of dialogs.
#pragma once
#include <QProxyStyle>

namespace velara {

class fControlStyle : public QProxyStyle {
    Q_OBJECT
  public:
    void polish(QPalette& palette) override;
    using QProxyStyle::polish;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                           const QWidget* widget) const override;
    QIcon standardIcon(StandardPixmap icon, const QStyleOption* option = nullptr,
                       const QWidget* widget = nullptr) const override;
    QPixmap generatedIconPixmap(QIcon::Mode mode, const QPixmap& pixmap, const QStyleOption* option) const override;

    int styleHint(StyleHint hint, const QStyleOption* option = nullptr, const QWidget* widget = nullptr,
                  QStyleHintReturn* returned = nullptr) const override;

  protected:
    /// Half way between text and background: not every palette's own disabled colour is readable.
    static QColor paleText(const QPalette& palette);

  private:
    bool isPlain() const;
    bool mends(const QPalette& palette) const;    // a dark background in the plain style, or high contrast
    bool sharpens(const QPalette& palette) const; // high contrast in the plain style
};

} // namespace velara
