#include "app/menus/fMenuStyle.h"
#include <QLabel>
#include <QPainter>
#include <QStyleOptionMenuItem>

namespace velara {

namespace {

constexpr int kItemHeight = 20, kSeparatorHeight = 5, kSmallestWidth = 120;
constexpr int kPicture = 16;
constexpr int kPictureColumn = 23; // the highlight leaves it free when there is an icon
constexpr int kTextLeft = 25;
constexpr int kArrow = 16;

/// A sunken or raised frame of one pixel. right and bottom are the last pixels. At the lower left the first pen's
/// colour stays, at the upper right the second's.
void frame3d(QPainter& painter, const QPalette& palette, int left, int top, int right, int bottom, bool sunken)
{
    const QColor dark = palette.color(QPalette::Dark), light = palette.color(QPalette::Light);
    painter.setPen(sunken ? dark : light);
    painter.drawLine(left, bottom, left, top);
    painter.drawLine(left, top, right, top);
    painter.setPen(sunken ? light : dark);
    painter.drawLine(right, top, right, bottom);
    painter.drawLine(right, bottom, left + 1, bottom);
}

struct ItemText {
    QString caption, shortcut;
};

ItemText split(const QString& text)
{
    const qsizetype tab = text.indexOf('\t');
    return tab < 0 ? ItemText{text, {}} : ItemText{text.left(tab), text.mid(tab + 1)};
}

} // namespace

void fMenuStyle::polish(QWidget* widget)
{
    if (auto* label = qobject_cast<QLabel*>(widget); label && label->textFormat() == Qt::AutoText)
        label->setTextFormat(Qt::PlainText);
    QProxyStyle::polish(widget);
}

int fMenuStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const
{
    if (metric == PM_SmallIconSize && widget && widget->inherits("QMenu")) return kPicture;
    if (metric == PM_MenuPanelWidth) return 1;
    return fControlStyle::pixelMetric(metric, option, widget);
}

void fMenuStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                               const QWidget* widget) const
{
    if (element != PE_FrameMenu) return fControlStyle::drawPrimitive(element, option, painter, widget);
    painter->save();
    painter->setPen(paleText(option->palette));
    painter->drawRect(option->rect.adjusted(0, 0, -1, -1));
    painter->restore();
}

QSize fMenuStyle::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                                   const QWidget* widget) const
{
    const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
    if (type != CT_MenuItem || !item) return fControlStyle::sizeFromContents(type, option, size, widget);
    if (item->menuItemType == QStyleOptionMenuItem::Separator) return {kSmallestWidth, kSeparatorHeight};
    const ItemText text = split(item->text);
    const QFontMetrics metrics(item->font);
    int width = kTextLeft + metrics.size(Qt::TextShowMnemonic, text.caption).width() + kArrow + 8;
    if (!text.shortcut.isEmpty() || item->reservedShortcutWidth > 0)
        width += 16 + std::max(item->reservedShortcutWidth, metrics.horizontalAdvance(text.shortcut));
    return {std::max(width, kSmallestWidth), std::max(kItemHeight, metrics.height() + 4)}; // a large font needs more
}

void fMenuStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                             const QWidget* widget) const
{
    const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
    if (element != CE_MenuItem || !item) return fControlStyle::drawControl(element, option, painter, widget);
    const QPalette& palette = item->palette;
    const QRect box = item->rect;
    const auto seen = [&](const QRect& fromTheLeft) { return visualRect(item->direction, box, fromTheLeft); };
    const bool enabled = item->state & State_Enabled;
    const bool selected = (item->state & State_Selected) && enabled;
    painter->save();

    if (item->menuItemType == QStyleOptionMenuItem::Separator) {
        painter->fillRect(box, palette.window());
        frame3d(*painter, palette, box.left(), box.top() + 2, box.right(), box.top() + 3, true);
        painter->restore();
        return;
    }

    const bool checked = item->checkType != QStyleOptionMenuItem::NotCheckable && item->checked;
    const bool picture = !item->icon.isNull() || checked;
    const int offset = picture ? kPictureColumn : 0;
    if (!selected) painter->fillRect(box, palette.window());
    if (selected) {
        painter->fillRect(box, palette.window());
        painter->fillRect(seen(box.adjusted(offset, 0, 0, 0)), palette.highlight());
    }

    const QColor ink = selected  ? palette.color(QPalette::Active, QPalette::HighlightedText)
                       : enabled ? palette.color(QPalette::Active, QPalette::WindowText)
                                 : paleText(palette);
    const ItemText text = split(item->text);
    const QRect line = seen(box.adjusted(kTextLeft, 0, -kArrow, 0));
    painter->setPen(ink);
    painter->setFont(item->font);
    const int mnemonic = styleHint(SH_UnderlineShortcut, item, widget) ? Qt::TextShowMnemonic : Qt::TextHideMnemonic;
    painter->drawText(line, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine | mnemonic, text.caption);
    painter->drawText(line, Qt::AlignRight | Qt::AlignVCenter | Qt::TextSingleLine, text.shortcut);

    const QRect place = seen(QRect(box.left() + 4, box.top() + (box.height() - kPicture) / 2, kPicture, kPicture));
    if (checked) {
        painter->setRenderHint(QPainter::Antialiasing);
        painter->setPen(QPen(palette.color(QPalette::WindowText), 1.8));
        const QPoint tick[] = {{3, 8}, {7, 12}, {13, 4}};
        painter->drawPolyline(QPolygon(QList<QPoint>(std::begin(tick), std::end(tick))).translated(place.topLeft()));
        painter->setRenderHint(QPainter::Antialiasing, false);
    } else if (!item->icon.isNull()) {
        item->icon.paint(painter, place, Qt::AlignCenter, enabled ? QIcon::Normal : QIcon::Disabled);
    }
    if (selected && picture) {
        const QRect frame = seen(QRect(box.left() + 1, box.top(), 21, box.height()));
        frame3d(*painter, palette, frame.left(), frame.top(), frame.right(), frame.bottom(), false);
    }

    if (item->menuItemType == QStyleOptionMenuItem::SubMenu) {
        QStyleOption arrow;
        arrow.rect = seen(QRect(box.right() - kArrow + 2, box.top() + (box.height() - 10) / 2, 10, 10));
        arrow.palette = palette;
        arrow.palette.setColor(QPalette::WindowText, ink);
        arrow.palette.setColor(QPalette::ButtonText, ink);
        arrow.palette.setColor(QPalette::Text, ink);
        arrow.state = State_Enabled;
        proxy()->drawPrimitive(item->direction == Qt::RightToLeft ? PE_IndicatorArrowLeft : PE_IndicatorArrowRight,
                               &arrow, painter, widget);
    }
    painter->restore();
}

} // namespace velara
