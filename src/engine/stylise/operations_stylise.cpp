#include "engine/operationRows.h"

namespace velara {

// clang-format off
std::vector<Operation> styliseOperations()
{
    return {
        row("Dissolve",  "",                 &cBitFilter::Dissolve),
        row("PAINTING",  "",                 &cBitFilter::PAINTING),
        row("PIXELIZE",  "Size",             &cBitFilter::PIXELIZE),
        row("Halftone",  "Radius,Definition,Intensity", &cBitFilter::Halftone),
        row("SKETCH",    "Level,Mono,Color", &cBitFilter::SKETCH),
        row("StuckiBW",  "Divisor",          &cBitFilter::StuckiBW),
        row("THERMIQUE", "",                 &cBitFilter::THERMIQUE),
        row("XBLACK",    "",                 &cBitFilter::XBLACK),
        row("PHOTOCOP",  "",                 &cBitFilter::PHOTOCOP),
    };
}
// clang-format on

} // namespace velara
