// The picture of the root window: a wallpaper laid out over all screens.
#pragma once
#include "pixels/Bits.h"
#include "seams/Wallpaper.h"
#include <QImage>
#include <QRect>

namespace velara {

/// Tiles begin at the upper left; the other modes place the picture on each screen, with black around it. Sizes are
/// device pixels.
QImage rootPicture(const Bits& bits, WallpaperMode mode, QSize root, const QList<QRect>& screens);

} // namespace velara
