#include "filters/operationRows.h"

namespace velara {

// clang-format off
std::vector<Operation> neighbourOperations()
{
    return {
        row("SHARPEN",      "Level",            &cBitFilter::SHARPEN),
        row("SOFTEN",       "Level",            &cBitFilter::SOFTEN),
        row("EDGEENHANCE",  "Level",            &cBitFilter::EDGEENHANCE),
        row("Blurs",        "Radius",           &cBitFilter::Blurs),
        row("DILATE",       "",                 &cBitFilter::DILATE),
        row("ERODE",        "",                 &cBitFilter::ERODE),
        row("CONTOUR",      "Level,Background", &cBitFilter::CONTOUR),
        row("EMBOSS",       "Weight",           &cBitFilter::EMBOSS),
        row("ENGRAVE",      "Weight",           &cBitFilter::ENGRAVE),
        row("RELIEF",       "",                 &cBitFilter::RELIEF),
        row("RankFilterN4", "Mode",             &cBitFilter::RankFilterN4),
        row("RankFilterND", "Mode",             &cBitFilter::RankFilterND),
    };
}
// clang-format on

} // namespace velara
