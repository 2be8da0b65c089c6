// Windows icons, uncompressed: a single picture of 24 bits per pixel with a mask of the transparent pixels, or the
// usual sizes together with 32, whose edges are soft.
#pragma once
#include "pixels/Bits.h"
#include <QByteArray>
#include <QImage>
#include <optional>

namespace velara {

constexpr int kMostIconSide = 256;
constexpr bool iconSizeAllowed(int width, int height)
{
    return width > 0 && height > 0 && width <= kMostIconSide && height <= kMostIconSide;
}

/// The picture scaled smoothly to the icon's size, whatever its proportions, as ARGB32 whose pixels are either opaque
/// or transparent black. With a mask, pixels of that colour are transparent and don't blend into their neighbours. Null
/// for a null picture, a size that is not allowed, and when memory is short.
QImage iconOf(const Bits& picture, QSize size, std::optional<Colour> mask);

/// The largest of the sizes that stand together in one file.
QImage largestIconOf(const Bits& picture, std::optional<Colour> mask);

/// The file contents for an icon made by iconOf; empty for a null one.
QByteArray iconBytes(const QImage& icon);
/// The same for squares of 16 to 256 pixels a side, each with the whole picture in its proportions.
QByteArray iconSetBytes(const Bits& picture, std::optional<Colour> mask);
/// False when it can't be written or there are no bytes; an existing file is intact then.
bool writeIcon(const QByteArray& bytes, const QString& fileName);

} // namespace velara
