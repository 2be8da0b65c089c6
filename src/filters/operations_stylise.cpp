#include "filters/operationRows.h"

namespace velara {

// clang-format off
std::vector<Operation> styliseOperations()
{
    return {
        row("SKETCH",    "Level,Mono,Color", &cBitFilter::SKETCH),
        row("THERMIQUE", "",                 &cBitFilter::THERMIQUE),
        row("XBLACK",    "",                 &cBitFilter::XBLACK),
        row("PHOTOCOP",  "",                 &cBitFilter::PHOTOCOP),
    };
}
// clang-format on

} // namespace velara
