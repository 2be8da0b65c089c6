// Windows icons of one picture: 24 bits a pixel without compression, and a mask that says which pixels are transparent.
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
/// or transparent black. With a mask what has that colour is transparent, and gives none of it to its neighbours. Null
/// for a null picture, a size that is not allowed, and when memory is short.
QImage iconOf(const Bits& picture, QSize size, std::optional<Colour> mask);

/// The file of an icon as iconOf makes it.
QByteArray iconBytes(const QImage& icon);
/// False when it can't be written or is null; what stood under the name is whole then.
bool writeIcon(const QImage& icon, const QString& fileName);

} // namespace velara
