#include "ui/widgets/fColorButton.h"
#include "document/road/Frame.h"
#include <QPainter>
#include <QPointer>

namespace velara {

fColorButton::fColorButton(Frame& frame, const QString& name, const QString& accessibleName, QWidget* parent)
    : QAbstractButton(parent), frame_(frame)
{
    setObjectName(name);
    setAccessibleName(accessibleName);
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::PointingHandCursor);
    connect(this, &QAbstractButton::clicked, this, &fColorButton::choose);
    setColour(0);
}

void fColorButton::setColour(Colour colour)
{
    colour &= 0xFFFFFF;
    const bool changed = colour != colour_;
    colour_ = colour;
    setToolTip(tr("Red %1, green %2, blue %3").arg(redOf(colour)).arg(greenOf(colour)).arg(blueOf(colour)));
    sayValue(*this);
    update();
    if (changed) emit colourChanged();
}

void fColorButton::setActive(bool active)
{
    active_ = active;
    update();
}

void fColorButton::choose()
{
    const QPointer<fColorButton> alive = this;
    const auto chosen = frame_.pickColour(colour_, accessibleName(), window());
    if (alive && chosen) setColour(*chosen);
}

void fColorButton::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const bool marked = active_ || hasFocus();
    painter.setPen(
        QPen(marked ? palette().color(QPalette::Highlight) : palette().color(QPalette::Mid), marked ? 2 : 1));
    painter.setBrush(QBrush(QColor(redOf(colour_), greenOf(colour_), blueOf(colour_)),
                            isEnabled() ? Qt::SolidPattern : Qt::BDiagPattern)); // hatched: it can't be changed now
    painter.drawRoundedRect(QRectF(rect()).adjusted(1.5, 1.5, -1.5, -1.5), 3, 3);
}

} // namespace velara
