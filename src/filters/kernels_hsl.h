// The vector kernel of hue rotation.
#pragma once
#include "filters/SpanOf.h"

namespace velara {

/// Adds offset to the hue of each pixel, once round from above 5, and multiplies its saturation.
struct HueTurn {
    float offset;     // 0..6
    float saturation; // 0..1

    /// For one pixel, through mHSLRGB. For any offset and saturation; Overflow where no byte comes out.
    Pixel operator()(const Pixel& p) const;
};

struct HslKernels {
    void (*turn)(const SpanOf&, const HueTurn&);
};
const HslKernels& hslKernels();

} // namespace velara
