// The vector kernel of hue rotation.
#pragma once
#include "engine/SpanOf.h"

namespace velara {

/// Adds offset to the hue of each pixel, wrapping above 5, and multiplies its saturation.
struct HueTurn {
    float offset;     // 0..6
    float saturation; // 0..1

    /// For one pixel, by mHSLRGB. For any offset and saturation; Overflow when the result doesn't fit into bytes.
    Pixel operator()(const Pixel& p) const;
};

struct HslKernels {
    /// ends holds the bytes of the least and (shifted by 8) of the greatest channel of the result, at greatest << 8 |
    /// least channel of the pixel: for results exactly on a half.
    void (*turn)(const SpanOf&, const HueTurn&, const std::int32_t* ends);
    /// The same; faster where one pixel in twenty has such a result.
    void (*turnWithHalves)(const SpanOf&, const HueTurn&, const std::int32_t* ends);
};
const HslKernels& hslKernels();

} // namespace velara
