// What of a picture is selected, asked for boxes and pixels in any order.
#pragma once
#include "region/Region.h"
#include <algorithm>
#include <cstdint>
#include <vector>

namespace velara {

/// The pixels of a region inside a picture: a bit each, and sums that classify a box of them at once.
class SourceMask {
  public:
    enum class Holds { None, Some, All };

    SourceMask() = default;
    /// rect is the part of the region's bounds inside a picture that is width by height.
    SourceMask(const Region& region, const Rect& rect, int width, int height);

    /// Whether the pixels of the box, which lies inside the picture, are selected; Some when unsure.
    Holds holds(int left, int top, int right, int bottom) const // both ends inclusive
    {
        const int x0 = left >> kCellBits, x1 = (right >> kCellBits) + 1, y0 = top >> kCellBits,
                  y1 = (bottom >> kCellBits) + 1;
        const auto sum = [&](int x, int y) { return sums_[static_cast<std::size_t>(y) * columns_ + std::size_t(x)]; };
        const int count = sum(x1, y1) - sum(x0, y1) - sum(x1, y0) + sum(x0, y0);
        if (count == 0) return Holds::None;
        const int width = std::min(x1 << kCellBits, width_) - (x0 << kCellBits);
        const int height = std::min(y1 << kCellBits, height_) - (y0 << kCellBits);
        return count == width * height ? Holds::All : Holds::Some;
    }

    /// A bit for each pixel, 32 to a word from the lowest on, wordsARow() words to a row: set for those selected.
    const std::uint32_t* bits() const { return bits_.data(); }
    int wordsARow() const { return static_cast<int>(words_); }

  private:
    static constexpr int kCellBits = 4; // cells of 16 by 16 pixels

    std::size_t words_ = 0, columns_ = 0;
    int width_ = 0, height_ = 0;
    std::vector<std::uint32_t> bits_;
    std::vector<std::int32_t> sums_; // counts of selected pixels in the cells above and to the left of a cell's corner
};

/// The largest rectangle of selected pixels around the middle of rect that grows row by row from there; empty where
/// that pixel isn't selected.
Rect innerRectangle(const Region& region, const Rect& rect);

} // namespace velara
