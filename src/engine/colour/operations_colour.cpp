#include "engine/operationRows.h"

namespace velara {

// clang-format off
std::vector<Operation> colourOperations()
{
    return {
        row("BRIGHTNESS",      "Level",                                             &cBitFilter::BRIGHTNESS),
        row("CONTRAST",        "Level",                                             &cBitFilter::CONTRAST),
        row("SATURATION",      "Level",                                             &cBitFilter::SATURATION),
        row("GammaCorrection", "Level",                                             &cBitFilter::GammaCorrection),
        row("COLORIZE",        "Hue,Saturation,Luminosity",                         &cBitFilter::COLORIZE),
        row("GreyScale",       "",                                                  &cBitFilter::GreyScale),
        row("OLDPHOTO",        "",                                                  &cBitFilter::OLDPHOTO),
        row("Invert",          "",                                                  &cBitFilter::Invert),
        row("KillChannel",     "KillRed,KillGreen,KillBlue",                        &cBitFilter::KillChannel),
        row("SpecialColors",   "KeepRed,KeepGreen,KeepBlue",                        &cBitFilter::SpecialColors),
        row("Threshold",       "Level",                                             &cBitFilter::Threshold),
        row("Reduction",       "Level",                                             &cBitFilter::Reduction),
        row("ShiftRGB",        "Red,Green,Blue",                                    &cBitFilter::ShiftRGB),
        row("ISOLATE",         "Color,Fill,Tolerance",                              &cBitFilter::ISOLATE),
        row("REPLACE",         "From,To,Tolerance",                                 &cBitFilter::REPLACE),
        row("ReplaceHS",       "From,To,HueTolerance,SatTolerance,ApplyTolerance",  &cBitFilter::ReplaceHS),
        row("ReplaceL",        "From,To,LumTolerance,ApplyTolerance",               &cBitFilter::ReplaceL),
        row("Shift",           "Color,Amount,Tolerance",                            &cBitFilter::Shift),
        row("RotateH",         "Offset,Saturation",                                 &cBitFilter::RotateH),
        row("RotateL",         "Offset,Steps",                                      &cBitFilter::RotateL),
        row("StretchH",        "Offset,Saturation,Stretch",                         &cBitFilter::StretchH),
        row("SwapRGB",         "SourceRed,SourceGreen,SourceBlue,InvertRed,InvertGreen,InvertBlue,KillRed,KillGreen,KillBlue", &cBitFilter::SwapRGB),
        row("SwapBanks",       "Mode",                                              &cBitFilter::SwapBanks),
        row("ClassyColors",    "Mode",                                              &cBitFilter::ClassyColors),
        row("PaletteApply",    "",                                                  &cBitFilter::PaletteApply),
        row("Equalize",        "",                                                  &cBitFilter::Equalize),
    };
}
// clang-format on

} // namespace velara
