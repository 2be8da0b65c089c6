// The stylising filters.
#include "bench.h"

namespace velara::bench {
namespace {

// The painting filters, for all channels at once. A window: 3 rows loaded, split and added up 10, beside each other 8,
// taken apart 2, mean 4, neighbours for the deviations 6, 9 differences 9, split and added up 25, taken apart 2,
// distances 12, stored 3. A pixel: four distances in halves loaded and numbered 14, the least of them 6, its number 3
// and two bits 2, four means loaded and chosen among 7, the pixel itself and the result 3.
constexpr Bound kQuadrants{81 + 35, 0, 0};

// clang-format off
const Rows rows{
    operation("3x3 and ring",       8.0, 2.5,  "SKETCH",    {100, true, 0}),
    operation("3x3 and ring",       8.0, 2.5,  "SKETCH",    {100, false, 0x4060A0}),
    bounded(kQuadrants, operation("painting", 25.0, 4.5, "Dissolve", {})),
    bounded(kQuadrants, operation("painting", 25.0, 4.5, "PAINTING", {})),
    operation("error diffusion",   25.0, 13.0, "StuckiBW",  {10}),
    operation("error diffusion",   25.0, 13.0, "StuckiBW",  {42}),
    operation("cells",             10.0, 2.6,  "PIXELIZE",  {2}),
    operation("cells",             10.0, 2.6,  "PIXELIZE",  {8}),
    operation("cells",             10.0, 5.0,  "Halftone",  {1, 50, 0}),
    operation("cells",             10.0, 5.0,  "Halftone",  {6, 50, 50}),
    operation("channel arithmetic", 2.0, 1.25, "THERMIQUE", {}),
    operation("channel arithmetic", 2.0, 1.25, "XBLACK",    {}),
    operation("channel arithmetic", 2.0, 1.25, "PHOTOCOP",  {}),
    inEllipse("selection shape",    1.5, 1.1,  "PAINTING",  {}),
    afterASum(inEllipse("selection shape", 1.5, 1.1, "StuckiBW", {10})),
    inEllipse("selection shape",    1.5, 1.1,  "PIXELIZE",  {8}),
    inEllipse("selection shape",    1.5, 1.1,  "Halftone",  {6, 50, 50}),
    inEllipse("selection shape",    1.5, 1.1,  "THERMIQUE", {}),
};
// clang-format on

} // namespace
} // namespace velara::bench
