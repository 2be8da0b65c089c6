#include "ui/printing/fPagePreview.h"
#include "pixels/images.h"
#include "ui/widgets/inputs/Spoken.h"
#include <QPainter>
#include <algorithm>

namespace velara {

fPagePreview::fPagePreview(const QString& objectName, const QString& accessibleName, QSize box, QWidget* parent)
    : QWidget(parent)
{
    setSpokenRole(*this, QAccessible::Graphic);
    setObjectName(objectName);
    setAccessibleName(accessibleName);
    setFixedSize(box);
}

void fPagePreview::setPicture(const Bits& picture)
{
    bits_ = picture;
    update();
}

void fPagePreview::setPage(const PrintPage& page)
{
    page_ = page;
    page_.picture = {};
    update();
}

double fPagePreview::scale() const
{
    constexpr double kBorder = 4; // for the shadow
    const QSizeF paper = page_.paper.sheet(page_.orientation);
    return std::min((width() - 2 * kBorder) / paper.width(), (height() - 2 * kBorder) / paper.height());
}

QRectF fPagePreview::onSurface(const QRectF& millimetres) const
{
    const QSizeF paper = page_.paper.sheet(page_.orientation) * scale();
    const QPointF corner((width() - paper.width()) / 2, (height() - paper.height()) / 2);
    return {corner + millimetres.topLeft() * scale(), millimetres.size() * scale()};
}

QRectF fPagePreview::sheet() const { return onSurface({{0, 0}, page_.paper.sheet(page_.orientation)}); }

QRectF fPagePreview::picture() const { return onSurface(page_.place); }

void fPagePreview::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.fillRect(sheet().translated(3, 3), QColor(0, 0, 0, 70));
    painter.fillRect(sheet(), Qt::white); // paper is white with dark palettes, too
    painter.setPen(QPen(QColor(0xc8, 0xc8, 0xc8), 1, Qt::DotLine));
    painter.drawRect(onSurface(page_.paper.printable(page_.orientation)));
    const QImage image = bits_.isNull() ? QImage() : imageOver(bits_);
    painter.drawImage(picture(), page_.gray ? image.convertToFormat(QImage::Format_Grayscale8) : image);
    painter.setPen(QColor(0x80, 0x80, 0x80));
    painter.drawRect(sheet());
}

} // namespace velara
