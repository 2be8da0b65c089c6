#include "filters/operationRows.h"

namespace velara {

// clang-format off
std::vector<Operation> generateOperations()
{
    return {
        row("TileMask", "Overlay,Left,Top,Tiled,Transparency,KeyColor", &cBitFilter::TileMask),
    };
}
// clang-format on

} // namespace velara
