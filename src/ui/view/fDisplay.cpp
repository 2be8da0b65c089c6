#include "ui/view/fDisplay.h"
#include "document/Document.h"
#include "ui/view/footprintLine.h"
#include "ui/widgets/ScreenColours.h"
#include <QPaintEvent>
#include <QPainter>
#include <cmath>
#include <utility>

namespace velara {

namespace {

Rect rectOf(const QRect& r) { return {r.x(), r.y(), r.x() + r.width(), r.y() + r.height()}; }
QRect qrectOf(const Rect& r) { return {r.left, r.top, r.width(), r.height()}; }

} // namespace

fDisplay::fDisplay(QWidget* view, const Document& document) : QWidget(view), document_(document)
{
    setObjectName("iDst");
    setAccessibleName(tr("Picture"));
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_OpaquePaintEvent); // every pixel is painted: no background first, no flicker
    setAttribute(Qt::WA_NoSystemBackground);
}

void fDisplay::setSpot(int scrollX, int scrollY, int zoom)
{
    spot_.scrollX = scrollX;
    spot_.scrollY = scrollY;
    if (std::exchange(spot_.zoom, zoom) == zoom) return;
    footprintLine_ = footprintLine(footprint_, zoom);
    selection_.setZoomFactor(static_cast<float>(zoom));
}

const cBitRegion& fDisplay::selection()
{
    if (const Region& now = document_.Region.Region(); !(now == selection_.Region())) {
        selection_.Clear();
        selection_.setRegion(now);
    }
    return selection_;
}

QPoint fDisplay::footprintPlace() const { return footprintAt_ * spot_.zoom - QPoint(spot_.scrollX, spot_.scrollY); }

void fDisplay::showFootprint(const Footprint& footprint, QPoint pixel)
{
    const bool sameForm = footprint == footprint_;
    if (sameForm && (pixel == footprintAt_ || footprintLine_.isEmpty())) return;
    const QRegion before = underLine(footprintLine_.translated(footprintPlace()));
    footprintAt_ = pixel;
    if (!sameForm) footprintLine_ = footprintLine(footprint_ = footprint, spot_.zoom);
    update((before + underLine(footprintLine_.translated(footprintPlace()))) & rect());
}

void fDisplay::updateOutline()
{
    constexpr std::size_t kMostPieces = 32;
    const Region& scaled = selection().RegionScaled();
    const QRect view = rect();
    if (scaled.rectangleCount() > kMostPieces)
        return update(qrectOf(scaled.bounds()).translated(-spot_.scrollX, -spot_.scrollY) & view);
    QRegion edges;
    scaled.forEachRectangle([&](const Rect& r) {
        const QRect q = qrectOf(r).translated(-spot_.scrollX, -spot_.scrollY);
        edges += QRegion(q & view) - QRegion(q.adjusted(1, 1, -1, -1) & view);
    });
    update(edges);
}

void fDisplay::paintEvent(QPaintEvent* event)
{
    QPainter painter(this);
    if (!document_.PictureExists()) return painter.fillRect(event->rect(), palette().dark());
    spot_.ratio = devicePixelRatioF();
    drawPicture(painter, event->region());
    drawOver(painter);
}

/// The line round the pointer, and the crosshair; visible on every picture.
void fDisplay::drawOver(QPainter& painter)
{
    const QPolygon line = footprintLine_.translated(footprintPlace());
    for (const QPen& pen : {QPen(Qt::white, 1), QPen(Qt::black, 1, Qt::DashLine)}) {
        painter.setPen(pen);
        painter.drawPolygon(line);
    }
    if (!cross_) return;
    for (const QPen& pen : {QPen(Qt::white, 3), QPen(Qt::black, 1)}) {
        painter.setPen(pen);
        painter.drawLines(crossLines());
    }
}

/// Four arms, pairs of ends, around the crosshair's pixel.
QPolygon fDisplay::crossLines() const
{
    constexpr int kGap = 2, kArm = 9;
    const QPoint at = *cross_ * spot_.zoom - QPoint(spot_.scrollX, spot_.scrollY), beyond(spot_.zoom, spot_.zoom);
    const QPoint middle = at + beyond / 2;
    QPolygon lines;
    for (const auto& [x, y] : {std::pair(-1, 0), {1, 0}, {0, -1}, {0, 1}}) {
        const QPoint way(x, y), from = middle + way * (spot_.zoom / 2 + kGap);
        lines << from << from + way * kArm;
    }
    return lines;
}

void fDisplay::showCross(std::optional<QPoint> pixel)
{
    const auto updateCross = [this] {
        if (cross_) update(crossLines().boundingRect().adjusted(-2, -2, 2, 2));
    };
    if (pixel == cross_) return;
    updateCross();
    cross_ = pixel;
    updateCross();
    sayValue(*this);
}

QString fDisplay::spokenValue() const
{
    const Bits& bits = document_.bits();
    if (!cross_ || cross_->x() < 0 || cross_->y() < 0 || cross_->x() >= bits.width() || cross_->y() >= bits.height())
        return {};
    const auto& c = bits.row(cross_->y())[cross_->x()].c;
    return tr("%1, %2: red %3, green %4, blue %5").arg(cross_->x()).arg(cross_->y()).arg(c[2]).arg(c[1]).arg(c[0]);
}

void fDisplay::drawPicture(QPainter& painter, const QRegion& region)
{
    const QRect box = region.boundingRect();
    qint64 area = 0;
    for (const QRect& part : region) area += qint64(part.width()) * part.height();
    if (area * 2 > qint64(box.width()) * box.height()) return drawPart(painter, box);
    for (const QRect& part : region) drawPart(painter, part);
}

void fDisplay::drawPart(QPainter& painter, const QRect& part)
{
    const bool outline = outlineShown_ && !document_.Region.IsEmptyRegion();
    const double k = spot_.ratio;
    const Rect device{static_cast<int>(std::floor(part.left() * k)), static_cast<int>(std::floor(part.top() * k)),
                      static_cast<int>(std::ceil((part.left() + part.width()) * k)),
                      static_cast<int>(std::ceil((part.top() + part.height()) * k))};
    const auto drawOutline = [this](QImage& strip, int left, int top) {
        selection().DrawToDC(strip, -spot_.scrollX - left, -spot_.scrollY - top, {0, 0, strip.width(), strip.height()});
    };
    const bool inStrips = outline && k == 1;
    renderer_.paint(painter, document_.bits(), spot_, device,
                    inStrips ? ViewRenderer::Overlay(drawOutline) : ViewRenderer::Overlay(),
                    ScreenColours::tableFor(*this));
    if (!outline || inStrips) return;
    if (outline_.size() != size()) outline_ = QImage(size(), QImage::Format_ARGB32_Premultiplied);
    outline_.fill(Qt::transparent);
    selection().DrawToDC(outline_, -spot_.scrollX, -spot_.scrollY, rectOf(part));
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    painter.drawImage(part, outline_, part);
}

void fDisplay::leaveEvent(QEvent*) { showFootprint({}, footprintAt_); }

} // namespace velara
