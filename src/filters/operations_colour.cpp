#include "filters/operationRows.h"

namespace velara {

// clang-format off
std::vector<Operation> colourOperations()
{
    return {
        row("Invert", "", &cBitFilter::Invert),
    };
}
// clang-format on

} // namespace velara
