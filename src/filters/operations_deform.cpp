#include "filters/operationRows.h"

namespace velara {

// clang-format off
std::vector<Operation> deformOperations()
{
    return {
        row("ROTATE",       "Degrees,Clean",       &cBitFilter::ROTATE),
        row("RotateSmooth", "Degrees",             &cBitFilter::RotateSmooth),
        row("Flip",         "Horizontal,Vertical", &cBitFilter::Flip),
    };
}
// clang-format on

} // namespace velara
