#include "engine/operationRows.h"

namespace velara {

// clang-format off
std::vector<Operation> generateOperations()
{
    return {
        row("Light",            "CenterX,CenterY,Radius,Intensity,Definition",            &cBitFilter::Light),
        row("NOISE",            "Amount,Equalized",                                       &cBitFilter::NOISE),
        row("Scanlines",        "Level",                                                  &cBitFilter::Scanlines),
        row("Grid",             "HorizontalStep,VerticalStep,ForceMargins,Color,Opacity", &cBitFilter::Grid),
        row("GradientLinear",   "X1,Y1,X2,Y2,Color1,Color2,Opacity,Repeat",               &cBitFilter::GradientLinear),
        row("GradientCircular", "X1,Y1,X2,Y2,Color1,Color2,Opacity,Repeat",               &cBitFilter::GradientCircular),
        row("Texturize",        "Texture",                                                &cBitFilter::Texturize),
        row("TileMask",         "Overlay,Left,Top,Tiled,Transparency,KeyColor",            &cBitFilter::TileMask),
    };
}
// clang-format on

} // namespace velara
