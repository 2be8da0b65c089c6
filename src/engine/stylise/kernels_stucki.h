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
    static constexpr int kPad = 40; // the longest vector, and how far a pixel looks, on both sides
    explicit StuckiRow(int width) : numbers_(static_cast<std::size_t>(width) + 2 * kPad) {}
    std::int16_t* data() { return numbers_.data() + kPad; }
    const std::int16_t* data() const { return numbers_.data() + kPad; }

  private:
    std::vector<std::int16_t> numbers_;
};

/// The parts of the errors of a row that it passes on: e*8 \ 42, e*4 \ 42, e*2 \ 42 and e \ 42.
struct StuckiParts {
    explicit StuckiParts(int width) : eight(width), four(width), two(width), one(width) {}
    void clear(int x0, int x1)
    {
        for (StuckiRow* row : {&eight, &four, &two, &one})
            std::fill(row->data() + x0, row->data() + x1, std::int16_t{0});
    }
    StuckiRow eight, four, two, one;
};

struct StuckiKernels {
    /// (c0+c1+c2) \ 3 of the pixels x0..x1-1.
    void (*greys)(const Pixel* from, std::int16_t* to, int x0, int x1);
    /// What the two rows above pass down to x0..x1-1: 2 4 8 4 2 parts of the errors of the row above, 1 2 4 2 1 of
    /// those of the row above that.
    void (*incoming)(const StuckiParts& above, const StuckiParts& aboveThat, std::int16_t* to, int x0, int x1);
    /// v = clamp(value) and o = 255 where v >= mean, else 0: the three channels become o, the parts those of v - o.
    void (*output)(SpanOf, const std::int16_t* values, int mean, StuckiParts& parts);
};
const StuckiKernels& stuckiKernels();

} // namespace velara
