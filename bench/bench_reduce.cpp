// Colour reduction: depths, fixed palettes and dithers.
#include "bench.h"
#include "reduce/dither.h"
#include "reduce/reduceColours.h"

namespace velara::bench {
namespace {

Row depth(int depth, double must, double goal)
{
    return {"depth reduction", "SetDepth(" + std::to_string(depth) + ")", must, goal, [depth](Size size) {
                return Timing{[depth, size] { (void)bitsAtDepth(picture(size), depth); }, {}};
            }};
}

Row dither(const char* name, Dither how, double must, double goal)
{
    return {"error diffusion", name, must, goal, [how](Size size) {
                return Timing{[how, size] { (void)dithered(picture(size), halftoneColours(), how); }, {}};
            }};
}

// Turning from row to row, the diffusion is one chain on one thread: a row begins where the one above it ends, so
// neither rows nor pixels can go side by side. A pixel's part of the chain in cycles: its error added and limited to
// bytes 3, moved and made an index 7, the table of 256 KB, in the second cache, 14, seven times the entry's colour 6,
// the difference and a sixteenth of it 2.
constexpr Bound kTurning{0, 0, 32};

// clang-format off
const Rows rows{
    depth(1, 15, 2), depth(4, 15, 6), depth(8, 15, 6), depth(16, 15, 2),
    dither("256 colours, down-right", Dither::ForwardDiag, 80, 30),
    dither("256 colours, along rows", Dither::Horizontal,  80, 30),
    dither("256 colours, down",       Dither::Vertical,    80, 30),
    bounded(kTurning, dither("256 colours, turning", Dither::Odd, 80, 30)),
    dither("256 colours, dispersed dots", Dither::Ordered, 80, 30),
    dither("256 colours, clustered dots", Dither::Haftone, 80, 30),
    {"depth reduction", "best 256 colours", 80, 20,
     [](Size size) { return Timing{[size] { (void)reduceColours(picture(size), {}); }, {}}; }},
};
// clang-format on

} // namespace
} // namespace velara::bench
