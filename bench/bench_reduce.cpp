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

// clang-format off
const Rows rows{
    depth(1, 15, 2), depth(4, 15, 6), depth(8, 15, 6), depth(16, 15, 2),
    dither("256 colours, down-right", Dither::ForwardDiag, 80, 30),
    dither("256 colours, along rows", Dither::Horizontal,  80, 30),
    dither("256 colours, down",       Dither::Vertical,    80, 30),
    dither("256 colours, turning",    Dither::Odd,         80, 30),
    dither("256 colours, dispersed dots", Dither::Ordered, 80, 30),
    dither("256 colours, clustered dots", Dither::Haftone, 80, 30),
    {"depth reduction", "best 256 colours", 0, 0,
     [](Size size) { return Timing{[size] { (void)reduceColours(picture(size), {}); }, {}}; }},
};
// clang-format on

} // namespace
} // namespace velara::bench
