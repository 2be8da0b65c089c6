// Vector kernel of the general mask.
#pragma once
#include "engine/SpanOf.h"
#include <vector>

namespace velara {

/// One element of a mask: the pixel `offset` pixels away times `factor`.
struct MaskTap {
    std::ptrdiff_t offset;
    int factor;
};

/// clamp(sum \ divisor + add) per channel, over the nonzero taps.
struct MaskSum {
    std::vector<MaskTap> taps;
    std::int64_t divisor;
    int add[3]; // to blue, green, red

    /// The kernel's limits: the factors fit in 16 bits, the sums and the divisor are exact in a single.
    bool isSmall() const;
    /// Whether all sums, and what is added, fit into 16 bits. False for the divisor 0.
    bool isShort() const;
    /// One pixel, any sizes. p points to the pixel.
    Pixel at(const Pixel* p) const;
};

/// Writes as many pixels of the span as fill whole vectors, or all where the sums are short, and returns the first x
/// not written. Requires sum.isSmall().
int maskPixels(SpanOf s, const MaskSum& sum);

} // namespace velara
