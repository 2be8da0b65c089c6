// Vector kernels of the filters by the distance from a reference colour: d2 = the sum of the squared channel
// differences.
#pragma once
#include "engine/SpanOf.h"

namespace velara {

/// The pixels with d2 <= limit.
struct Near {
    std::uint32_t reference; // 0x00RRGGBB, as pixelOf
    std::int32_t limit;
};

/// Blends pixels near the reference toward a colour: c becomes the byte of (t - c)*k + c with k = 1 - d2/range. t is
/// the channel of a fixed colour, or c + plus - minus clamped to 0..255.
struct Blend {
    Near near;
    std::int32_t range;
    bool fixed;
    std::uint32_t to;          // when fixed
    std::uint32_t plus, minus; // when not
    bool single;               // k is rounded to a single
    int lum, lumTolerance;     // also abs((c0+c1+c2) \ 3 - lum) <= lumTolerance
    static constexpr int kAnyLum = 255;
    bool byHue = false; // also within these tolerances of the given hue and saturation; hue is not treated as circular
    float hue = 0, saturation = 0, hueReach = 0, satReach = 0;

    /// The same for one pixel that is near and of the right brightness, in double precision.
    Pixel operator()(const Pixel& p) const;
};

struct DistanceKernels {
    /// Pixels that are not near become the colour.
    void (*isolate)(const SpanOf&, const Near&, std::uint32_t fill);
    void (*blend)(const SpanOf&, const Blend&);
};
const DistanceKernels& distanceKernels();

} // namespace velara
