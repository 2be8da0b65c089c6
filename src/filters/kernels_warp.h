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

} // namespace velara
