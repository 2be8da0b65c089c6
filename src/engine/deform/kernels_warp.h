// Vector kernels of the filters that move pixels.
#pragma once
#include "engine/SpanOf.h"
#include "pixels/Bits.h"
#include "region/Region.h"
#include <cstdint>
#include <vector>

namespace velara {

/// Which pixels of a region lie inside a picture: a bit each, and sums that tell it of a box of them at once.
class SourceMask {
  public:
    enum class Holds { None, Some, All };

    SourceMask() = default;
    /// rect is the part of the region's bounds inside a picture that is width by height.
    SourceMask(const Region& region, const Rect& rect, int width, int height);

    /// Whether the box, which lies inside the picture, may hold selected pixels and others; Some when not sure.
    Holds holds(int left, int top, int right, int bottom) const; // both ends inclusive

    /// -1 for a selected pixel, 0 for another.
    std::int32_t at(int x, int y) const
    {
        const std::uint32_t word = bits_[static_cast<std::size_t>(y) * words_ + static_cast<std::size_t>(x >> 5)];
        return -static_cast<std::int32_t>(word >> (x & 31) & 1);
    }

  private:
    static constexpr int kCellBits = 4; // cells of 16 by 16 pixels

    std::size_t words_ = 0, columns_ = 0;
    int width_ = 0, height_ = 0;
    std::vector<std::uint32_t> bits_;
    std::vector<std::int32_t> sums_; // selected pixels in the cells above and to the left of a cell's corner
};

/// The selected pixels of a picture, to be read in any order by position.
class SourcePixels {
  public:
    /// Region pixels outside of the picture count as not selected.
    SourcePixels(const Bits& bits, const Region& region);

    /// The n <= kPlaces pixels at (sx, sy) where those are selected; elsewhere black with clean, and kept without. The
    /// fourth byte is always that of kept. The arrays are filled up to whole vectors.
    void take(std::int32_t* sx, std::int32_t* sy, int n, const Pixel* kept, bool clean, Pixel* to) const;

    /// The selection inside the picture is all of rect().
    bool isRectangle() const { return !marked_; }
    const Rect& rect() const { return rect_; }

  private:
    Bits bits_;
    Rect rect_; // of the selection inside the picture
    bool marked_;
    SourceMask mask_; // with marked_
};

/// The n <= kPlaces pixels at (sx, sy), which lie in the picture or its margin, with the fourth bytes of kept. The
/// arrays are filled up to whole vectors.
void takePixels(const Bits& bits, std::int32_t* sx, std::int32_t* sy, int n, const Pixel* kept, Pixel* to);

/// For x0..x1-1 the pixels of source at columns[x] where inside[x] is -1, black or kept (clean, or not) where it is 0.
/// The span's from gives what is kept and the fourth bytes.
void takeColumns(const SpanOf& span, const Pixel* source, const std::int32_t* columns, const std::int32_t* inside,
                 bool clean);

/// For x0..x1-1 the colour of source[x] with the span's fourth bytes.
void takeRow(const SpanOf& span, const Pixel* source);

/// The same from right to left: x takes the colour of source[last - x].
void takeRowMirrored(const SpanOf& span, const Pixel* source, int last);

/// The n <= 64 targets of a bilinear warp: columns are blended first and rounded. ix, iy and fx, fy are the floor of a
/// position and what lies beyond. The fourth byte is that of kept, or 0 where kept is null. Positions outside of the
/// picture give black. Returns a bit for each target that is to be worked out again.
std::uint64_t blendPixels(const Bits& bits, const std::int32_t* ix, const std::int32_t* iy, const float* fx,
                          const float* fy, int n, const Pixel* kept, Pixel* to);

/// The same blend of one target, exactly; the fourth byte stays.
void blendPixel(const Pixel* upper, const Pixel* lower, double fx, double fy, Pixel& to);

/// The columns x0..x1-1 and rows y0..y1-1 of in, a quarter turned: (x, y) goes to (y, maxX-x) with a fourth byte of 0.
void turnPixels(const Bits& in, Bits& out, int x0, int x1, int y0, int y1);

} // namespace velara
