#include "ui/widgets/fPicture.h"
#include "engine/cBitFilter.h"
#include "pixels/mBitmap.h"
#include "ui/widgets/ScreenColours.h"
#include "ui/widgets/inputs/Spoken.h"
#include <QMouseEvent>
#include <QPainter>
#include <cmath>

namespace velara {

fPicture::fPicture(const QString& objectName, const QString& accessibleName, QWidget* parent, QAccessible::Role role)
    : QWidget(parent)
{
    setSpokenRole(*this, role);
    setObjectName(objectName);
    setAccessibleName(accessibleName);
    setAttribute(Qt::WA_OpaquePaintEvent); // every pixel is painted: no background first, no flicker
}

fPicture::fPicture(const QString& objectName, const QString& accessibleName, QSize box, QWidget* parent)
    : fPicture(objectName, accessibleName, parent)
{
    setFixedSize(box);
}

void fPicture::setBits(const Bits& bits)
{
    bits_ = bits;
    update();
}

void fPicture::showWhole(const Bits& bits) { setBits(fittingCopy(bits, size())); }

void fPicture::setZoom(int zoom)
{
    zoom_ = zoom;
    update();
}

QSize fPicture::zoomedSize() const
{
    const auto side = [this](int pixels) { return static_cast<int>(std::ceil(pixels * scale())); };
    return {side(bits_.width()), side(bits_.height())};
}

QRect fPicture::place() const
{
    const QSize shown = zoomedSize();
    return {{(width() - shown.width()) / 2, (height() - shown.height()) / 2}, shown};
}

QPoint fPicture::pixelAt(QPointF at) const
{
    const QPointF pixel = (at - place().topLeft()) / scale();
    return {static_cast<int>(std::floor(pixel.x())), static_cast<int>(std::floor(pixel.y()))};
}

void fPicture::updatePixels(const Rect& pixels)
{
    const QPointF from = placeOf(QPointF(pixels.left, pixels.top)), to = placeOf(QPointF(pixels.right, pixels.bottom));
    update(QRectF(from, to).toAlignedRect() & rect());
}

QRect fPicture::placeOf(const Rect& pixels) const
{
    const QPoint from = placeOf(QPointF(pixels.left, pixels.top)).toPoint();
    const QPoint to = placeOf(QPointF(pixels.right, pixels.bottom)).toPoint();
    return {from, QSize(to.x() - from.x(), to.y() - from.y())};
}

void fPicture::setMarker(std::optional<QPointF> place)
{
    marker_ = place;
    update();
}

void fPicture::flipMarker()
{
    white_ = !white_;
    if (marker_) update();
}

void fPicture::setFrame(std::optional<QRectF> pixels)
{
    frame_ = pixels;
    update();
}

void fPicture::setPickable(bool pickable)
{
    pickable_ = pickable;
    showPointer(false);
}

void fPicture::setPannable(bool pannable)
{
    pannable_ = pannable;
    if (!grabbed_) showPointer(false);
}

void fPicture::showPointer(bool grabbed)
{
    if (pickable_)
        setCursor(Qt::CrossCursor);
    else if (pannable_)
        setCursor(grabbed ? Qt::ClosedHandCursor : Qt::OpenHandCursor);
    else
        unsetCursor();
}

// --- Painting

void fPicture::paintEvent(QPaintEvent* event)
{
    QPainter painter(this);
    const QRect part = event->rect(), picture = place();
    if (!picture.contains(part)) painter.fillRect(part, palette().color(QPalette::Mid));
    if (const QRect shown = (part & picture).translated(-picture.topLeft()); !bits_.isNull() && !shown.isEmpty()) {
        const double k = devicePixelRatioF();
        const auto whole = [](double v) { return static_cast<int>(v); };
        const Rect device{whole(std::floor(shown.left() * k)), whole(std::floor(shown.top() * k)),
                          whole(std::ceil((shown.left() + shown.width()) * k)),
                          whole(std::ceil((shown.top() + shown.height()) * k))};
        painter.translate(picture.topLeft());
        if (zoom_ > 0) {
            renderer_.paint(painter, bits_, {0, 0, zoom_, k}, device, {}, ScreenColours::tableFor(*this));
        } else {
            QImage small = reducedView(bits_, 1 / (scale() * k), device);
            if (const ColourTable* colours = ScreenColours::tableFor(*this)) colours->convert(small);
            small.setDevicePixelRatio(k);
            painter.drawImage(QPointF(device.left / k, device.top / k), small);
        }
        painter.translate(-picture.topLeft());
    }
    paintOver(painter, part);
}

void fPicture::paintOver(QPainter& painter, const QRect&)
{
    if (frame_)
        for (const QPen& pen : {QPen(Qt::white, 1), QPen(Qt::black, 1, Qt::DashLine)}) {
            painter.setPen(pen);
            painter.drawRect(QRectF(placeOf(frame_->topLeft()), placeOf(frame_->bottomRight())).toRect());
        }
    if (!marker_) return;
    const QPointF at = placeOf(*marker_);
    for (const QPen& pen : {QPen(white_ ? Qt::black : Qt::white, 3), QPen(white_ ? Qt::white : Qt::black, 1)}) {
        painter.setPen(pen); // seen on every picture, at rest, too
        painter.drawLine(at - QPointF(7, 0), at + QPointF(7, 0));
        painter.drawLine(at - QPointF(0, 7), at + QPointF(0, 7));
        painter.drawEllipse(at, 4, 4);
    }
}

// --- Mouse

void fPicture::tell(const QMouseEvent& event)
{
    const QPoint pixel = pixelAt(event.position());
    if (event.buttons() & Qt::LeftButton && QRect(0, 0, bits_.width(), bits_.height()).contains(pixel))
        emit pressed(pixel);
}

void fPicture::mousePressEvent(QMouseEvent* event)
{
    if (pickable_ && event->button() == Qt::LeftButton) return tell(*event);
    if (event->button() != Qt::LeftButton && event->button() != Qt::MiddleButton) return event->ignore();
    grabbed_ = event->position().toPoint();
    showPointer(true);
}

void fPicture::mouseMoveEvent(QMouseEvent* event)
{
    if (!grabbed_) {
        if (pickable_) tell(*event);
        return;
    }
    emit panned(event->position().toPoint() - *grabbed_);
}

void fPicture::mouseReleaseEvent(QMouseEvent*)
{
    grabbed_.reset();
    showPointer(false);
}

Bits fittingCopy(const Bits& bits, QSize box)
{
    if (bits.isNull()) return bits;
    const QSize size = fitSize({bits.width(), bits.height()}, box).expandedTo({1, 1});
    if (size == QSize(bits.width(), bits.height())) return bits;
    cBitFilter filter;
    filter.clock = [] { return 0U; }; // no progress reports for a single row
    filter.BitsResample(bits, size.width(), size.height());
    return filter.bits();
}

} // namespace velara
