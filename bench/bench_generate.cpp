// The generators.
#include "bench.h"

namespace velara::bench {
namespace {

/// Picture arguments larger than the typical ones.
const Bits& tile()
{
    static const Bits bits = picture({256, 256});
    return bits;
}

// Bounds: a number of Random is 11 operations. NOISE with a number a channel: the pixel and its place 9, and for each
// channel its number and the product 13, taking it apart and scaling down to the half 10, limits and place 3. TileMask:
// two pixels, the key and the result 14, and for each channel taking two apart 6, the blend 2, rounding and doubt 7.
constexpr Bound kNoise{9 + 3 * 26, 0, 0}, kOverlay{14 + 3 * 15, 0, 0};

// clang-format off
const Rows rows{ // family, must, goal, operation, arguments
    operation("cells",     10, 2.5, "Grid",             {20, 20, true, 255, 100}),
    operation("gradients", 25, 8,   "GradientLinear",   {0, 0, 6000, 4000, 255, 65280, 50, 1}),
    operation("gradients", 25, 14,  "GradientLinear",   {0, 0, 6000, 4000, 255, 65280, 50, 5}),
    operation("gradients", 25, 14,  "GradientCircular", {3000, 2000, 6000, 4000, 255, -1, 50, 1}),
    operation("gradients", 25, 14,  "GradientCircular", {3000, 2000, 6000, 4000, 255, -1, 50, 5}),
    bounded(kNoise, operation("random", 25, 4, "NOISE", {20, false})),
    operation("random",    25, 4,   "NOISE",            {20, true}),
    {"cells", "Texturize, 256x256", 10, 2.5, [](Size size) {
         return operation("", 0, 0, "Texturize", {tile()}).prepare(size);
     }, "memcpy", "Texturize"},
    bounded(kOverlay, {"cells", "TileMask, 256x256", 10, 2.5, [](Size size) {
         return operation("", 0, 0, "TileMask", {tile(), 0, 0, true, 40, -1}).prepare(size);
     }, "memcpy", "TileMask"}),
    operation("light of the disc", 25 * 0.524 + 1, 6 * 0.524 + 1, "Light", {0.5, 0.5, 0.33, 200, 30}), // plus one copy
};
// clang-format on

} // namespace
} // namespace velara::bench
