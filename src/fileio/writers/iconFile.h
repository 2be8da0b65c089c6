// Windows icons of a single picture: 24 bits per pixel, uncompressed, and a mask of the transparent pixels.
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

/// The file contents for an icon made by iconOf.
QByteArray iconBytes(const QImage& icon);
/// False when it can't be written or is null; an existing file is intact then.
bool writeIcon(const QImage& icon, const QString& fileName);

} // namespace velara
