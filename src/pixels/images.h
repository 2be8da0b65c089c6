// A picture as a QImage and back, for what draws with Qt.
#pragma once
#include "pixels/Bits.h"
#include <QImage>
#include <algorithm>

namespace velara {

/// The pixels of the buffer without its margin, as a QImage over the same memory: valid while the buffer lives and is
/// not written to. Never written through; copy() makes a picture that stands by itself. Null for an empty buffer.
inline QImage imageOver(const Bits& bits)
{
    if (bits.isNull()) return {};
    return {bits.row(0)->c, bits.width(), bits.height(), bits.stride() * qsizetype(sizeof(Pixel)),
            QImage::Format_RGB32};
}

/// The same to paint on: what is drawn there is in the buffer, which has detached before.
inline QImage canvasOver(Bits& bits)
{
    if (bits.isNull()) return {};
    return {bits.row(0)->c, bits.width(), bits.height(), bits.stride() * qsizetype(sizeof(Pixel)),
            QImage::Format_RGB32};
}

/// A buffer of this size with the upper left part of the image that fits in; the rest, margin included, is zero, and so
/// is the fourth byte of every pixel.
inline Bits bitsOf(const QImage& image, int width, int height)
{
    const QImage opaque = image.convertToFormat(QImage::Format_RGB32);
    Bits bits(width, height);
    const int columns = std::min(width, opaque.width()), rows = std::min(height, opaque.height());
    for (int y = 0; y < rows; ++y) {
        const auto* from = reinterpret_cast<const QRgb*>(opaque.constScanLine(y));
        std::transform(from, from + columns, reinterpret_cast<QRgb*>(bits.row(y)),
                       [](QRgb colour) { return colour & RGB_MASK; });
    }
    return bits;
}
inline Bits bitsOf(const QImage& image) { return bitsOf(image, image.width(), image.height()); }

} // namespace velara
