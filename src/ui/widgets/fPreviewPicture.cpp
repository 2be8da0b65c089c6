#include "ui/widgets/fPreviewPicture.h"
#include <QImage>
#include <QMouseEvent>
#include <QPainter>

namespace velara {

fPreviewPicture::fPreviewPicture(const QString& name, const QString& accessibleName, QWidget* parent) : QWidget(parent)
{
    setObjectName(name);
    setAccessibleName(accessibleName);
    setFixedSize(kSize + QSize(2, 2));
}

void fPreviewPicture::setBits(const Bits& bits)
{
    bits_ = bits;
    update();
}

void fPreviewPicture::setMarker(std::optional<QPointF> place)
{
    marker_ = place;
    update();
}

void fPreviewPicture::flipMarker()
{
    white_ = !white_;
    if (marker_) update();
}

void fPreviewPicture::setPickable(bool pickable)
{
    pickable_ = pickable;
    setCursor(pickable ? Qt::CrossCursor : Qt::ArrowCursor);
}

QPoint fPreviewPicture::origin() const { return {(width() - bits_.width()) / 2, (height() - bits_.height()) / 2}; }

void fPreviewPicture::tell(const QMouseEvent& event)
{
    const QPoint pixel = event.pos() - origin();
    if (pickable_ && event.buttons() & Qt::LeftButton && QRect(0, 0, bits_.width(), bits_.height()).contains(pixel))
        emit pressed(pixel);
}

void fPreviewPicture::mousePressEvent(QMouseEvent* event) { tell(*event); }
void fPreviewPicture::mouseMoveEvent(QMouseEvent* event) { tell(*event); }

void fPreviewPicture::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), palette().color(QPalette::Mid));
    if (bits_.isNull()) return;
    painter.drawImage(origin(), QImage(bits_.row(0)->c, bits_.width(), bits_.height(),
                                       bits_.stride() * qsizetype(sizeof(Pixel)), QImage::Format_RGB32));
    if (!marker_) return;
    const QPointF at = *marker_ + origin();
    painter.setPen(white_ ? Qt::white : Qt::black);
    painter.drawLine(at - QPointF(7, 0), at + QPointF(7, 0));
    painter.drawLine(at - QPointF(0, 7), at + QPointF(0, 7));
    painter.drawEllipse(at, 4, 4);
}

} // namespace velara
