// Vector kernels of the error diffusion to black and white. Rows of 16-bit numbers are pointers to x = 0 and have
// StuckiRow::kPad more entries on both sides.
#pragma once
#include "engine/SpanOf.h"
#include <algorithm>
#include <vector>

namespace velara {

/// A number for each pixel of a row, all 0 at first.
class StuckiRow {
  public:
    static constexpr int kPad = 32; // an extra vector on both sides
    explicit StuckiRow(int width) : numbers_(static_cast<std::size_t>(width) + 2 * kPad) {}
    std::int16_t* data() { return numbers_.data() + kPad; }
    void clear() { std::ranges::fill(numbers_, std::int16_t{0}); }

  private:
    std::vector<std::int16_t> numbers_;
};

struct StuckiKernels {
    /// (c0+c1+c2) \ 3 of the pixels x0..x1-1.
    void (*greys)(const Pixel* from, std::int16_t* to, int x0, int x1);
    /// v = clamp(value) and o = 255 where v >= mean, else 0: the three channels become o, errors become v - o.
    void (*output)(SpanOf, const std::int16_t* values, int mean, std::int16_t* errors);
    /// Diffuses the errors of a row of `width` pixels: 2 4 8 4 2 parts of 42 are added to the row below, 1 2 4 2 1
    /// parts overwrite the row below that, each part e*w \ 42.
    void (*spread)(const std::int16_t* errors, std::int16_t* below, std::int16_t* belowThat, int width);
};
const StuckiKernels& stuckiKernels();

} // namespace velara
