#include "app/menus/fControlStyle.h"
#include <QPainter>
#include <QStyleOption>
#include <algorithm>
#include <cmath>

namespace velara {

namespace {

constexpr double kReadable = 4.5; // contrast of text

bool isDark(const QPalette& palette) { return palette.color(QPalette::Window).lightness() < 128; }

QColor mixed(const QColor& one, const QColor& other, double part)
{
    const auto channel = [part](int a, int b) { return qRound(a * part + b * (1 - part)); };
    return QColor(channel(one.red(), other.red()), channel(one.green(), other.green()),
                  channel(one.blue(), other.blue()));
}

/// The relative luminance by which the web's rules of contrast go: 0 black, 1 white.
double luminance(const QColor& colour)
{
    const auto linear = [](float v) { return v <= 0.04045F ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4); };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
}

/// The outline of a control: visible on the background, but weaker than the text.
QColor edgeOf(const QStyleOption& option)
{
    const double strength = option.state & QStyle::State_Enabled ? 0.55 : 0.25;
    return mixed(option.palette.color(QPalette::Active, QPalette::WindowText),
                 option.palette.color(QPalette::Active, QPalette::Window), strength);
}

/// The symbols of a title bar's buttons, in its text's colour.
void drawTitleButtons(const QStyle& style, const QStyleOptionComplex* option, QPainter* painter, const QWidget* widget)
{
    const auto* bar = qstyleoption_cast<const QStyleOptionTitleBar*>(option);
    if (!bar) return;
    const bool minimized = bar->titleBarState & Qt::WindowMinimized,
               maximized = bar->titleBarState & Qt::WindowMaximized;
    const auto at = [&](QStyle::SubControl part) {
        const QRect button = style.subControlRect(QStyle::CC_TitleBar, option, part, widget);
        QRect sign(0, 0, 7, 7);
        sign.moveCenter(button.center());
        return sign;
    };
    const auto has = [&](Qt::WindowType hint) { return bar->titleBarFlags.testFlag(hint); };
    painter->setPen(QPen(edgeOf(*option), 2));
    if (has(Qt::WindowMinimizeButtonHint) && !minimized) {
        const QRect sign = at(QStyle::SC_TitleBarMinButton);
        painter->drawLine(sign.bottomLeft(), sign.bottomRight());
    }
    if (has(Qt::WindowMaximizeButtonHint) && !maximized) painter->drawRect(at(QStyle::SC_TitleBarMaxButton));
    if (minimized || maximized) {
        const QRect sign = at(QStyle::SC_TitleBarNormalButton);
        painter->drawRect(sign.adjusted(0, 3, -3, 0));
        painter->drawPolyline(
            QPolygon({{sign.left() + 3, sign.top()}, sign.topRight(), {sign.right(), sign.top() + 4}}));
    }
    if (has(Qt::WindowSystemMenuHint)) {
        const QRect sign = at(QStyle::SC_TitleBarCloseButton);
        painter->drawLine(sign.topLeft(), sign.bottomRight());
        painter->drawLine(sign.topRight(), sign.bottomLeft());
    }
}

/// The sign of a docked box's button: a cross, or two windows.
QIcon dockSign(bool closes, const QColor& colour)
{
    constexpr int kSide = 10, kSharpness = 2;
    QPixmap sign(QSize(kSide, kSide) * kSharpness);
    sign.setDevicePixelRatio(kSharpness);
    sign.fill(Qt::transparent);
    QPainter painter(&sign);
    painter.setPen(QPen(colour, 1.5));
    if (closes) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.drawLine(QPointF(1.5, 1.5), QPointF(8.5, 8.5));
        painter.drawLine(QPointF(8.5, 1.5), QPointF(1.5, 8.5));
    } else {
        painter.drawRect(QRectF(1, 4, 5, 5));
        painter.drawPolyline(QPolygonF({{4, 1.5}, {8.5, 1.5}, {8.5, 6}}));
    }
    return QIcon(sign);
}

} // namespace

double fControlStyle::contrast(const QColor& one, const QColor& other)
{
    const auto [dark, light] = std::minmax({luminance(one), luminance(other)});
    return (light + 0.05) / (dark + 0.05);
}

QColor fControlStyle::paleText(const QPalette& palette)
{
    return mixed(palette.color(QPalette::Active, QPalette::WindowText), palette.color(QPalette::Window), 0.5);
}

bool fControlStyle::isPlain() const { return baseStyle()->name() == QLatin1String("fusion"); }

bool fControlStyle::mends(const QPalette& palette) const { return isDark(palette) && isPlain(); }

/// Plain palettes make disabled text and chosen rows hard to read, and a dark workspace black. Hints are too pale in
/// most.
void fControlStyle::polish(QPalette& palette)
{
    QProxyStyle::polish(palette);
    const QColor hint = mixed(palette.color(QPalette::Text), palette.color(QPalette::Base), 0.65);
    for (const auto group : {QPalette::Active, QPalette::Inactive})
        palette.setColor(group, QPalette::PlaceholderText, hint);
    if (!isPlain()) return;
    for (const auto group : {QPalette::Active, QPalette::Inactive}) {
        const QColor text = palette.color(group, QPalette::HighlightedText);
        QColor ground = palette.color(group, QPalette::Highlight);
        for (int i = 0; i < 40 && contrast(text, ground) < kReadable; ++i)
            ground = luminance(text) > 0.5 ? ground.darker(104) : mixed(ground, Qt::white, 0.96);
        palette.setColor(group, QPalette::Highlight, ground);
        QColor link = palette.color(group, QPalette::Link);
        const QColor page = palette.color(group, QPalette::Base);
        for (int i = 0; i < 40 && contrast(link, page) < kReadable; ++i)
            link = mixed(link, luminance(page) > 0.5 ? Qt::black : Qt::white, 0.95);
        palette.setColor(group, QPalette::Link, link);
    }
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::PlaceholderText})
        palette.setColor(QPalette::Disabled, role, paleText(palette));
    if (!isDark(palette)) return;
    palette.setColor(QPalette::Dark, palette.color(QPalette::Window).darker(135));
}

void fControlStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                                  const QWidget* widget) const
{
    if (element == PE_PanelButtonTool && option->state & State_On && option->state & State_Enabled) {
        QColor fill = option->palette.color(QPalette::Highlight);
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->setPen(fill);
        fill.setAlphaF(0.35F);
        painter->setBrush(fill);
        painter->drawRoundedRect(QRectF(option->rect).adjusted(0.5, 0.5, -0.5, -0.5), 2, 2);
        painter->restore();
        return;
    }
    if (element == PE_PanelLineEdit && option->state & State_ReadOnly && isPlain())
        if (const auto* panel = qstyleoption_cast<const QStyleOptionFrame*>(option)) { // it can't be typed in
            QStyleOptionFrame locked = *panel;
            locked.palette.setBrush(QPalette::Base, panel->palette.window());
            return QProxyStyle::drawPrimitive(element, &locked, painter, widget);
        }
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    if (!mends(option->palette) || (element != PE_IndicatorCheckBox && element != PE_IndicatorRadioButton)) return;
    painter->save();
    painter->setPen(edgeOf(*option));
    painter->setRenderHint(QPainter::Antialiasing);
    const QRectF edge = QRectF(option->rect).adjusted(0.5, 0.5, -0.5, -0.5);
    if (element == PE_IndicatorCheckBox)
        painter->drawRect(edge);
    else
        painter->drawEllipse(edge);
    painter->restore();
}

void fControlStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                                       const QWidget* widget) const
{
    QProxyStyle::drawComplexControl(control, option, painter, widget);
    if (!mends(option->palette)) return;
    painter->save();
    if (control == CC_Slider) {
        painter->setRenderHint(QPainter::Antialiasing);
        painter->setPen(edgeOf(*option));
        const QRectF handle = proxy()->subControlRect(CC_Slider, option, SC_SliderHandle, widget);
        painter->drawRoundedRect(handle.adjusted(0.5, 0.5, -0.5, -0.5), 2, 2);
    } else if (control == CC_TitleBar && !(option->state & State_Active)) {
        drawTitleButtons(*proxy(), option, painter, widget);
    }
    painter->restore();
}

/// Most buttons of the dialogs are no standard ones, which have no icon: with icons in some, pairs would look unlike.
int fControlStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                             QStyleHintReturn* returned) const
{
    return hint == SH_DialogButtonBox_ButtonsHaveIcons ? 0 : QProxyStyle::styleHint(hint, option, widget, returned);
}

/// Keeps a caption clear of its menu arrow, which the plain style draws over it, like a comma.
QSize fControlStyle::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                                      const QWidget* widget) const
{
    const QSize whole = QProxyStyle::sizeFromContents(type, option, size, widget);
    const auto* button = qstyleoption_cast<const QStyleOptionToolButton*>(option);
    if (type != CT_ToolButton || !button || !isPlain() || button->toolButtonStyle == Qt::ToolButtonIconOnly ||
        button->text.isEmpty() || !(button->features & QStyleOptionToolButton::HasMenu) ||
        button->features & QStyleOptionToolButton::MenuButtonPopup)
        return whole;
    return whole + QSize(2 * pixelMetric(PM_MenuButtonIndicator, option, widget), 0); // it is centred
}

QIcon fControlStyle::standardIcon(StandardPixmap icon, const QStyleOption* option, const QWidget* widget) const
{
    const bool floats = icon == SP_TitleBarNormalButton, closes = icon == SP_TitleBarCloseButton;
    if (!(floats || closes) || !widget || !mends(widget->palette()))
        return QProxyStyle::standardIcon(icon, option, widget);
    return dockSign(closes, widget->palette().color(QPalette::WindowText));
}

QPixmap fControlStyle::generatedIconPixmap(QIcon::Mode mode, const QPixmap& pixmap, const QStyleOption* option) const
{
    if (mode != QIcon::Disabled) return QProxyStyle::generatedIconPixmap(mode, pixmap, option);
    QPixmap pale(pixmap.size());
    pale.setDevicePixelRatio(pixmap.devicePixelRatio());
    pale.fill(Qt::transparent);
    QPainter painter(&pale);
    painter.setOpacity(0.35);
    painter.drawPixmap(0, 0, pixmap);
    return pale;
}

} // namespace velara
