#include "engine/operationRows.h"

namespace velara {

// clang-format off
std::vector<Operation> deformOperations()
{
    return {
        row("ROTATE",       "Degrees,Clean",                    &cBitFilter::ROTATE),
        row("RotateSmooth", "Degrees",                          &cBitFilter::RotateSmooth),
        row("Flip",         "Horizontal,Vertical",              &cBitFilter::Flip),
        row("STRETCH",      "Horizontal,Vertical,Clean",        &cBitFilter::STRETCH),
        row("FOLD",         "Horizontal,Vertical,Clean",        &cBitFilter::FOLD),
        row("BEND",         "RadiusFactor,Clean",               &cBitFilter::BEND),
        row("TWIRL",        "Level,OffsetDegrees,Clean",        &cBitFilter::TWIRL),
        row("WAVES",        "Frequency,Amplitude,StartDegree",  &cBitFilter::WAVES),
        row("LENS",         "CenterX,CenterY,Radius,Magnify",   &cBitFilter::LENS),
        row("TILE",         "Factor",                           &cBitFilter::TILE),
        row("GLASS",        "Style,Mode",                       &cBitFilter::GLASS),
    };
}
// clang-format on

} // namespace velara
