#include "ui/utilities/Magnifier.h"
#include "ui/utilities/fCaptureRectangle.h"
#include <QPainter>

namespace velara {

namespace {

constexpr int kAround = 7, kScale = 8;            // pixels on each side of the pointer's, and their magnification
constexpr int kLens = (2 * kAround + 1) * kScale; // side of the magnified square
constexpr int kBeside = 24;                       // distance from the pointer to the magnifier

} // namespace

Magnifier::Magnifier(const fCaptureRectangle& picker, CoverWindow& window)
    : QWidget(&window), picker_(picker), window_(window)
{
    setObjectName("shpFollow");
    setAttribute(Qt::WA_TransparentForMouseEvents);
    resize(std::max(kLens, fontMetrics().horizontalAdvance("00000, 00000   00000 x 00000")) + 8,
           kLens + fontMetrics().height() + 12);
    hide();
}

void Magnifier::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), palette().window());
    const QRect lens((width() - kLens) / 2, 4, kLens, kLens);
    const QPoint at = picker_.pointer();
    painter.fillRect(lens, Qt::black);
    const QRect around(at - QPoint(kAround, kAround), QSize(2 * kAround + 1, 2 * kAround + 1));
    const QRect inside = around & picker_.whole();
    painter.drawImage(QRect(lens.topLeft() + (inside.topLeft() - around.topLeft()) * kScale, inside.size() * kScale),
                      picker_.image(), inside);
    painter.setPen(Qt::black);
    const QRect middle(lens.topLeft() + QPoint(kAround, kAround) * kScale, QSize(kScale, kScale));
    painter.drawRect(middle.adjusted(-1, -1, 0, 0));
    painter.setPen(Qt::white);
    painter.drawRect(middle.adjusted(-2, -2, 1, 1));
    painter.setPen(palette().color(QPalette::WindowText));
    const QRect picked = picker_.rectangle();
    QString text = QString("%1, %2").arg(at.x()).arg(at.y());
    if (!picked.isEmpty()) text += QString("   %1 x %2").arg(picked.width()).arg(picked.height());
    painter.drawText(QRect(0, lens.bottom() + 2, width(), height() - lens.bottom() - 4), Qt::AlignCenter, text);
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

void Magnifier::follow()
{
    setVisible(window_.part().device.contains(picker_.pointer()));
    const QPoint pointer = window_.toWindow(picker_.pointer()).toPoint();
    QPoint place = pointer + QPoint(kBeside, kBeside);
    if (place.x() + width() > window_.width()) place.setX(pointer.x() - kBeside - width());
    if (place.y() + height() > window_.height()) place.setY(pointer.y() - kBeside - height());
    move(place);
    raise();
    update();
}

} // namespace velara
