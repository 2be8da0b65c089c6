// TouchedTiles: a dirty map of a picture in tiles of 16 by 16 pixels, so that a thin diagonal line costs its length and
// not its bounding rectangle.
#pragma once
#include "pixels/Bits.h"
#include "region/Region.h"
#include <cstdint>
#include <vector>

namespace velara {

class TouchedTiles {
  public:
    static constexpr int kShift = 4, kSide = 1 << kShift;

    /// Clears all marks and sets the picture's size.
    void reset(int width, int height);
    /// The same, only when the size differs.
    void fit(int width, int height)
    {
        if (width != width_ || height != height_) reset(width, height);
    }
    /// Columns x0 up to but not including x1 of row y, which lie in the picture.
    void mark(int y, int x0, int x1)
    {
        for (int i = x0 >> kShift; i <= (x1 - 1) >> kShift; ++i) markTile((y >> kShift) * across_ + i);
    }
    void markPixel(int x, int y) { markTile((y >> kShift) * across_ + (x >> kShift)); }

    bool isEmpty() const { return list_.empty(); }
    /// True when more than half of the tiles are marked.
    bool isMost() const { return 2 * list_.size() > tiles_.size(); }
    /// Bounding rectangle of the marked tiles, cut to the picture.
    Rect bounds() const;
    /// The marked tiles, cut to the picture.
    template <class Visit> void forEach(Visit visit) const
    {
        for (const std::uint32_t tile : list_) visit(rectOf(tile));
    }

  private:
    void markTile(int tile)
    {
        if (tiles_[static_cast<std::size_t>(tile)]) return;
        tiles_[static_cast<std::size_t>(tile)] = 1;
        list_.push_back(static_cast<std::uint32_t>(tile));
    }
    Rect rectOf(std::uint32_t tile) const;

    int width_ = 0, height_ = 0, across_ = 0;
    std::vector<std::uint8_t> tiles_;
    std::vector<std::uint32_t> list_;
};

} // namespace velara
