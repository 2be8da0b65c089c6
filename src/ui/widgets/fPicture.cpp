#include "ui/widgets/fPicture.h"
#include "engine/cBitFilter.h"
#include "pixels/mBitmap.h"
#include <QPainter>

namespace velara {

fPicture::fPicture(const QString& objectName, const QString& accessibleName, QSize box, QWidget* parent)
    : QWidget(parent)
{
    setObjectName(objectName);
    setAccessibleName(accessibleName);
    setFixedSize(box);
}

void fPicture::setBits(const Bits& bits)
{
    bits_ = fittingCopy(bits, size());
    update();
}

QRect fPicture::place() const
{
    return {(width() - bits_.width()) / 2, (height() - bits_.height()) / 2, bits_.width(), bits_.height()};
}

void fPicture::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), palette().color(QPalette::Mid));
    if (bits_.isNull()) return;
    const Bits& shown = bits_;
    const QImage image(reinterpret_cast<const uchar*>(shown.row(0)), shown.width(), shown.height(), shown.stride() * 4,
                       QImage::Format_RGB32);
    painter.drawImage(place().topLeft(), image);
}

Bits fittingCopy(const Bits& bits, QSize box)
{
    if (bits.isNull()) return bits;
    const QSize size = fitSize({bits.width(), bits.height()}, box).expandedTo({1, 1});
    if (size == QSize(bits.width(), bits.height())) return bits;
    cBitFilter filter;
    filter.BitsResample(bits, size.width(), size.height());
    return filter.bits();
}

} // namespace velara
