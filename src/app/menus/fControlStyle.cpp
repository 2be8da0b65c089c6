#include "app/menus/fControlStyle.h"
#include "ui/widgets/marks/contrast.h"
#include "ui/widgets/marks/motion.h"
#include <QGroupBox>
#include <QPainter>
#include <QStyleOption>
#include <algorithm>
#include <array>

namespace velara {

namespace {

bool isDark(const QPalette& palette) { return palette.color(QPalette::Window).lightness() < 128; }

/// The outline of a control: visible on the background, but weaker than the text.
QColor edgeOf(const QStyleOption& option)
{
    const double strength = option.state & QStyle::State_Enabled ? 0.55 : 0.25;
    return mixed(option.palette.color(QPalette::Active, QPalette::WindowText),
                 option.palette.color(QPalette::Active, QPalette::Window), strength);
}

/// Paler than a text, and readable in fields and on windows.
QColor hintOf(const QPalette& palette)
{
    constexpr double kRoom = 1.2; // thin letters reach less than their colour
    const QColor text = palette.color(QPalette::Text), base = palette.color(QPalette::Base);
    const auto isReadable = [&](const QColor& hint) {
        return std::ranges::all_of(std::array{QPalette::Base, QPalette::Window, QPalette::Button}, [&](auto ground) {
            return contrast(hint, palette.color(ground)) >= kReadableText * kRoom;
        });
    };
    double part = 0.65;
    while (part < 1 && !isReadable(mixed(text, base, part))) part += 0.05;
    return mixed(text, base, std::min(part, 1.0));
}

/// The plain style writes the titles of active windows in white, whatever the colour of what is chosen.
QColor underWhite(QColor colour)
{
    while (contrast(colour, Qt::white) < kReadableText * 1.5) colour = colour.darker(110); // it is drawn lighter
    return colour;
}

/// The way of a slider, which the plain style has in a shade of the background.
void drawGroove(const QStyle& style, const QStyleOptionComplex* option, QPainter* painter, const QWidget* widget)
{
    const QRect groove = style.subControlRect(QStyle::CC_Slider, option, QStyle::SC_SliderGroove, widget);
    const bool lies = option->state & QStyle::State_Horizontal;
    painter->setPen(edgeOf(*option));
    if (lies)
        painter->drawLine(groove.left(), groove.center().y(), groove.right(), groove.center().y());
    else
        painter->drawLine(groove.center().x(), groove.top(), groove.center().x(), groove.bottom());
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

/// The signs of the buttons of boxes, documents and bars, which the plain style has in black alone.
struct SignRow {
    QStyle::StandardPixmap icon;
    void (*draw)(QPainter& painter); // in a square of kSignSide
};
constexpr int kSignSide = 10;
constexpr SignRow kSigns[] = {
    {QStyle::SP_TitleBarCloseButton,
     [](QPainter& p) {
         p.setRenderHint(QPainter::Antialiasing);
         p.drawLines(QPolygonF({{1.5, 1.5}, {8.5, 8.5}, {8.5, 1.5}, {1.5, 8.5}}));
     }},
    {QStyle::SP_TitleBarNormalButton,
     [](QPainter& p) {
         p.drawRect(QRectF(1, 4, 5, 5));
         p.drawPolyline(QPolygonF({{4, 1.5}, {8.5, 1.5}, {8.5, 6}}));
     }},
    {QStyle::SP_TitleBarMaxButton, [](QPainter& p) { p.drawRect(QRectF(1, 1, 8, 8)); }},
    {QStyle::SP_TitleBarMinButton, [](QPainter& p) { p.drawLine(QPointF(1, 8.5), QPointF(9, 8.5)); }},
    {QStyle::SP_ToolBarHorizontalExtensionButton,
     [](QPainter& p) {
         for (const qreal x : {1.5, 5.5}) p.drawPolyline(QPolygonF({{x, 2}, {x + 3, 5}, {x, 8}}));
     }},
    {QStyle::SP_ToolBarVerticalExtensionButton,
     [](QPainter& p) {
         for (const qreal y : {1.5, 5.5}) p.drawPolyline(QPolygonF({{2, y}, {5, y + 3}, {8, y}}));
     }},
};

QIcon iconOf(const SignRow& row, const QColor& colour)
{
    constexpr int kSharpness = 2;
    QPixmap sign(QSize(kSignSide, kSignSide) * kSharpness);
    sign.setDevicePixelRatio(kSharpness);
    sign.fill(Qt::transparent);
    QPainter painter(&sign);
    painter.setPen(QPen(colour, 1.5));
    row.draw(painter);
    return QIcon(sign);
}

void drawEdge(QPainter* painter, const QStyleOption& option, const QRect& rect)
{
    painter->save();
    painter->setPen(edgeOf(option));
    painter->setBrush(Qt::NoBrush);
    painter->setRenderHint(QPainter::Antialiasing);
    painter->drawRoundedRect(QRectF(rect).adjusted(0.5, 0.5, -0.5, -0.5), 2, 2);
    painter->restore();
}

/// What has an edge of its own with high contrast, where the plain style's is a shade of the background.
bool isEdged(QStyle::PrimitiveElement element, const QStyleOption& option)
{
    switch (element) {
    case QStyle::PE_PanelButtonTool:
        return !(option.state & QStyle::State_AutoRaise) ||
               option.state & (QStyle::State_Raised | QStyle::State_Sunken | QStyle::State_On);
    case QStyle::PE_PanelLineEdit:
    case QStyle::PE_Frame: {
        const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(&option);
        return frame && frame->lineWidth > 0; // not inside of a box with arrows
    }
    case QStyle::PE_PanelButtonCommand:
    case QStyle::PE_FrameGroupBox:
    case QStyle::PE_FrameTabWidget:
        return true;
    default:
        return false;
    }
}

/// The rectangle of its edge: that of a group begins below its title.
QRect edgeRect(const QStyle& style, QStyle::PrimitiveElement element, const QStyleOption& option, const QWidget* widget)
{
    const auto* group = element == QStyle::PE_FrameGroupBox ? qobject_cast<const QGroupBox*>(widget) : nullptr;
    if (!group || group->title().isEmpty()) return option.rect;
    const int indicator = style.pixelMetric(QStyle::PM_ExclusiveIndicatorHeight, &option, widget);
    return option.rect.adjusted(0, std::max(indicator, group->fontMetrics().height()) + 3, 0, 0);
}

/// The part of such a control that has an edge; empty: none.
QRect edgedPart(const QStyle& style, QStyle::ComplexControl control, const QStyleOptionComplex* option,
                const QWidget* widget)
{
    switch (control) {
    case QStyle::CC_ComboBox:
    case QStyle::CC_SpinBox:
        return option->rect;
    case QStyle::CC_ScrollBar:
        return style.subControlRect(control, option, QStyle::SC_ScrollBarSlider, widget);
    default:
        return {};
    }
}

} // namespace

QColor fControlStyle::paleText(const QPalette& palette)
{
    return mixed(palette.color(QPalette::Active, QPalette::WindowText), palette.color(QPalette::Window), 0.5);
}

bool fControlStyle::isPlain() const { return baseStyle()->name() == QLatin1String("fusion"); }

bool fControlStyle::mends(const QPalette& palette) const
{
    return (isDark(palette) || isHighContrast(palette)) && isPlain();
}

bool fControlStyle::sharpens(const QPalette& palette) const { return isHighContrast(palette) && isPlain(); }

/// Plain palettes make disabled text and chosen rows hard to read, and a dark workspace black. Hints are too pale in
/// most.
void fControlStyle::polish(QPalette& palette)
{
    QProxyStyle::polish(palette);
    const QColor hint = hintOf(palette);
    for (const auto group : {QPalette::Active, QPalette::Inactive})
        palette.setColor(group, QPalette::PlaceholderText, hint);
    if (!isPlain()) return;
    for (const auto group : {QPalette::Active, QPalette::Inactive}) {
        const QColor text = palette.color(group, QPalette::HighlightedText);
        QColor ground = palette.color(group, QPalette::Highlight);
        for (int i = 0; i < 40 && contrast(text, ground) < kReadableText; ++i)
            ground = text.lightness() > 128 ? ground.darker(104) : mixed(ground, Qt::white, 0.96);
        palette.setColor(group, QPalette::Highlight, ground);
        QColor link = palette.color(group, QPalette::Link);
        const QColor page = palette.color(group, QPalette::Base);
        for (int i = 0; i < 40 && contrast(link, page) < kReadableText; ++i)
            link = mixed(link, page.lightness() > 128 ? Qt::black : Qt::white, 0.95);
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
    if (sharpens(option->palette) && isEdged(element, *option))
        drawEdge(painter, *option, edgeRect(*this, element, *option, widget));
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

void fControlStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                                const QWidget* widget) const
{
    QProxyStyle::drawControl(element, option, painter, widget);
    if (sharpens(option->palette) && (element == CE_TabBarTabShape || element == CE_ProgressBarGroove))
        drawEdge(painter, *option, option->rect);
}

void fControlStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                                       const QWidget* widget) const
{
    if (control == CC_TitleBar && isPlain()) {
        if (const auto* bar = qstyleoption_cast<const QStyleOptionTitleBar*>(option)) {
            QStyleOptionTitleBar readable = *bar;
            readable.palette.setColor(QPalette::Highlight, underWhite(bar->palette.color(QPalette::Highlight)));
            QProxyStyle::drawComplexControl(control, &readable, painter, widget);
        }
    } else {
        if (control == CC_Slider && sharpens(option->palette)) drawGroove(*proxy(), option, painter, widget);
        QProxyStyle::drawComplexControl(control, option, painter, widget);
    }
    if (const QRect part = edgedPart(*proxy(), control, option, widget); sharpens(option->palette) && !part.isEmpty())
        drawEdge(painter, *option, part);
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
    if (hint == SH_Widget_Animation_Duration && lessMotion()) return 0;
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
    const QPalette palette = widget ? widget->palette() : option ? option->palette : QPalette();
    const auto* row = std::ranges::find(kSigns, icon, &SignRow::icon);
    if (row == std::end(kSigns) || !(widget || option) || !mends(palette))
        return QProxyStyle::standardIcon(icon, option, widget);
    return iconOf(*row, palette.color(QPalette::WindowText));
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
