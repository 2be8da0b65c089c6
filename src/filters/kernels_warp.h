// Vector kernels of the filters that move pixels.
#pragma once
#include "filters/Bits.h"
#include "filters/Region.h"
#include <cstdint>

namespace velara {

/// The selected pixels of a picture, to be read in any order by position.
class SourcePixels {
  public:
    /// Region pixels outside of the picture count as not selected.
    SourcePixels(const Bits& bits, const Region& region);

    /// The n pixels at (sx, sy) where those are selected; elsewhere black with clean, and kept without. The fourth byte
    /// is always that of kept.
    void take(const std::int32_t* sx, const std::int32_t* sy, int n, const Pixel* kept, bool clean, Pixel* to) const;

    bool contains(int x, int y) const { return rect_.contains(x, y) && (!marked_ || bits_.at(x, y).c[3] != 0); }

  private:
    Bits bits_;   // with marked_: the fourth byte tells the selected pixels within rect_
    Rect rect_;   // of the selection inside the picture
    bool marked_; // the selection is not all of rect_
};

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
