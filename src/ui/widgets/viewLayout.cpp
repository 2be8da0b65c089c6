#include "ui/widgets/viewLayout.h"
#include "pixels/numbers.h"
#include <algorithm>

namespace velara {

bool zoomFits(int pictureWidth, int pictureHeight, int zoom)
{
    return std::int64_t(pictureWidth) * zoom <= kMostZoomedSide &&
           std::int64_t(pictureHeight) * zoom <= kMostZoomedSide;
}

ViewLayout layOut(const ViewSpace& s)
{
    const int bar = s.barsWidth;
    const int width = std::max(s.clientWidth, 2 * bar), height = std::max(s.clientHeight, 2 * bar);
    const int zoomedWidth = s.pictureWidth * s.zoom, zoomedHeight = s.pictureHeight * s.zoom;
    ViewLayout l;
    // One bar's thickness may make the other necessary, so twice.
    for (int pass = 0; pass < 2; ++pass) {
        l.needH = l.needH || zoomedWidth > width - (l.needV ? bar : 0);
        l.needV = l.needV || zoomedHeight > height - (l.needH ? bar : 0);
    }
    const int freeWidth = width - (l.needV ? bar : 0), freeHeight = height - (l.needH ? bar : 0);
    l.hSB = {0, height - bar, freeWidth, height};
    l.vSB = {width - bar, 0, width, freeHeight};
    l.shp = {freeWidth, freeHeight, freeWidth + bar, freeHeight + bar};

    const int shownWidth = l.needH ? freeWidth : zoomedWidth, shownHeight = l.needV ? freeHeight : zoomedHeight;
    const int left = l.needH ? 0 : (freeWidth - shownWidth) / 2, top = l.needV ? 0 : (freeHeight - shownHeight) / 2;
    l.iDst = {left, top, left + shownWidth, top + shownHeight};
    l.hMax = zoomedWidth - shownWidth;
    l.vMax = zoomedHeight - shownHeight;
    return l;
}

int restoredValue(int maximum, bool laidOut, float lastValue, float lastMaximum)
{
    const bool known = laidOut && roundToEven(lastMaximum) != 0;
    const double value = known ? maximum * double(lastValue) / double(lastMaximum) : maximum / 2.0;
    return static_cast<int>(std::clamp(roundToEven(value), 0.0, std::max(maximum, 0) * 1.0));
}

int pictureAt(double at, int scroll, int zoom) { return (static_cast<int>(std::floor(at)) + scroll) / zoom; }

PageAxis pageAxis(int container, int picture, int value)
{
    const int maximum = std::max(picture - container, 0), shown = std::clamp(value, 0, maximum);
    return {maximum, shown, maximum > 0 ? -shown : (container - picture) / 2};
}

Rect viewRect(const Rect& pixels, int scrollX, int scrollY, int zoom)
{
    const auto at = [zoom](int pixel, int scroll) {
        const std::int64_t place = std::int64_t(pixel) * zoom - scroll;
        return static_cast<int>(std::clamp<std::int64_t>(place, -kMostZoomedSide * 2, kMostZoomedSide * 2));
    };
    return {at(pixels.left, scrollX), at(pixels.top, scrollY), at(pixels.right, scrollX), at(pixels.bottom, scrollY)};
}

} // namespace velara
