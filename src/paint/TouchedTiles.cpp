#include "paint/TouchedTiles.h"
#include <algorithm>

namespace velara {

void TouchedTiles::reset(int width, int height)
{
    if (width == width_ && height == height_) {
        for (const std::uint32_t tile : list_) tiles_[tile] = 0;
    } else {
        width_ = width;
        height_ = height;
        across_ = (width + kSide - 1) >> kShift;
        tiles_.assign(static_cast<std::size_t>(across_) * static_cast<std::size_t>((height + kSide - 1) >> kShift), 0);
    }
    list_.clear();
}

Rect TouchedTiles::rectOf(std::uint32_t tile) const
{
    const int x = static_cast<int>(tile) % across_ << kShift, y = static_cast<int>(tile) / across_ << kShift;
    return {x, y, std::min(x + kSide, width_), std::min(y + kSide, height_)};
}

Rect TouchedTiles::bounds() const
{
    Rect box;
    forEach([&](const Rect& tile) { box = box.united(tile); });
    return box;
}

} // namespace velara
