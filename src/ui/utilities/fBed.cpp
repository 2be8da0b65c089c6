#include "ui/utilities/fBed.h"
#include "pixels/images.h"
#include "ui/widgets/inputs/Spoken.h"
#include "ui/widgets/inputs/named.h"
#include "ui/widgets/marks/grips.h"
#include <QApplication>
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>

namespace velara {

namespace {

constexpr QSize kSize{232, 308};
constexpr double kBorder = 8;                       // for the grips
constexpr double kLeast = 1;                        // mm
constexpr int kNothing = -1, kInside = 8, kNew = 9; // the others are grips

double between(double least, double value, double most) { return std::max(least, std::min(value, most)); }

} // namespace

fBed::fBed() : hold_(kNothing)
{
    setSpokenRole(*this, QAccessible::Canvas);
    named(this, "fBed", tr("Preview of the scanner's bed"));
    setFixedSize(kSize);
    setMouseTracking(true);
}

void fBed::setBed(QSizeF size)
{
    bed_ = size;
    preview_ = {};
    area_ = {{0, 0}, size};
    hold_ = kNothing;
    update();
}

void fBed::setPreview(const Bits& picture)
{
    preview_ = picture;
    update();
}

void fBed::setArea(const QRectF& area)
{
    area_ = area & QRectF({0, 0}, bed_);
    update();
}

double fBed::scale() const
{
    return std::min((width() - 2 * kBorder) / bed_.width(), (height() - 2 * kBorder) / bed_.height());
}

QPointF fBed::onSurface(QPointF millimetres) const
{
    return QPointF((width() - bed_.width() * scale()) / 2, kBorder) + millimetres * scale();
}

QRectF fBed::onSurface(const QRectF& millimetres) const
{
    return {onSurface(millimetres.topLeft()), onSurface(millimetres.bottomRight())};
}

QPointF fBed::onBed(QPointF position) const { return (position - onSurface(QPointF())) / scale(); }

int fBed::holdAt(QPointF position) const
{
    const QRectF box = onSurface(area_);
    for (int i = 0; i < int(std::size(kGrips)); ++i) {
        if ((gripBox(box, kGrips[i]).center() - position).manhattanLength() <= kGripSide) return i;
    }
    return box.contains(position) && area_.size() != bed_ ? kInside : kNew;
}

QRectF fBed::dragged(QPointF to) const
{
    const QRectF bed({0, 0}, bed_);
    const QPointF by = to - start_;
    QRectF area = before_;
    if (hold_ == kNew) {
        area = QRectF(start_, to).normalized() & bed;
        area.setSize(area.size().expandedTo({kLeast, kLeast}));
    }
    if (hold_ == kNew || hold_ == kInside) {
        if (hold_ == kInside) area.translate(by);
        area.moveTo(between(0, area.left(), bed.width() - area.width()),
                    between(0, area.top(), bed.height() - area.height()));
        return area;
    }
    const Grip& grip = kGrips[hold_];
    if (grip.across < 0) area.setLeft(between(0, area.left() + by.x(), area.right() - kLeast));
    if (grip.across > 0) area.setRight(between(area.left() + kLeast, area.right() + by.x(), bed.width()));
    if (grip.down < 0) area.setTop(between(0, area.top() + by.y(), area.bottom() - kLeast));
    if (grip.down > 0) area.setBottom(between(area.top() + kLeast, area.bottom() + by.y(), bed.height()));
    return area;
}

void fBed::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton || bed_.isEmpty()) return;
    hold_ = holdAt(event->position());
    start_ = onBed(event->position());
    before_ = area_;
}

void fBed::mouseMoveEvent(QMouseEvent* event)
{
    if (bed_.isEmpty()) return;
    if (hold_ == kNothing) {
        const int hold = holdAt(event->position());
        setCursor(hold == kNew ? Qt::CrossCursor : hold == kInside ? Qt::SizeAllCursor : kGrips[hold].pointer);
        return;
    }
    const QPointF to = onBed(event->position());
    const bool isClick = ((to - start_) * scale()).manhattanLength() < QApplication::startDragDistance();
    if (hold_ == kNew && isClick) return; // an area is not lost by a click
    setArea(dragged(to));
    emit drawn(area_);
}

void fBed::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton) hold_ = kNothing;
}

void fBed::paintEvent(QPaintEvent*)
{
    if (bed_.isEmpty()) return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    const QRectF sheet = onSurface(QRectF({0, 0}, bed_)).toRect(), box = onSurface(area_).toRect();
    painter.fillRect(sheet, Qt::white); // with dark palettes, too
    if (!preview_.isNull()) painter.drawImage(sheet, imageOver(preview_));
    painter.save();
    painter.setClipRegion(QRegion(sheet.toRect()) - box.toRect());
    painter.fillRect(sheet, QColor(0, 0, 0, 110));
    painter.restore();
    painter.setPen(QColor(0x80, 0x80, 0x80));
    painter.drawRect(sheet.adjusted(0, 0, -1, -1));
    if (!isEnabled()) return;
    for (const auto& [colour, style] : {std::pair(Qt::white, Qt::SolidLine), std::pair(Qt::black, Qt::DashLine)}) {
        painter.setPen(QPen(colour, 1, style));
        painter.drawRect(box.adjusted(0, 0, -1, -1));
    }
    for (const Grip& grip : kGrips) paintGrip(painter, gripBox(box, grip));
}

} // namespace velara
