// The colour filters.
#include "bench.h"
#include "engine/colour/mPalette.h"

namespace velara::bench {
namespace {

// clang-format off
const Rows rows{ // family, must, goal, operation, arguments
    operation("channel arithmetic", 2.0, 1.25, "Invert",        {}),
    operation("channel arithmetic", 2.0, 1.25, "BRIGHTNESS",    {20}),
    operation("channel arithmetic", 2.0, 1.25, "ShiftRGB",      {20, -30, 40}),
    operation("channel arithmetic", 2.0, 1.25, "SwapBanks",     {1}),
    operation("channel arithmetic", 2.0, 1.25, "SwapRGB",       {0, 2, 1, true, false, false, 0, 0, 255}),
    operation("channel arithmetic", 2.0, 1.25, "KillChannel",   {true, false, false}),
    operation("channel arithmetic", 2.0, 1.25, "SpecialColors", {true, false, false}),
    operation("channel arithmetic", 2.0, 1.25, "Threshold",     {120}),
    operation("channel arithmetic", 2.0, 1.25, "BitsBlack",     {}),
    operation("channel arithmetic", 2.0, 1.25, "Scanlines",     {30}),
    operation("channel arithmetic", 2.0, 1.25, "THERMIQUE",     {}),
    operation("channel arithmetic", 2.0, 1.25, "XBLACK",        {}),
    operation("tables",             3.5, 2.1,  "GammaCorrection", {-30}),
    operation("tables",             3.5, 2.1,  "Reduction",     {31}),
    operation("tables after a pass", 8.0, 3.2, "CONTRAST",      {10}),
    operation("tables after a pass", 8.0, 4.5, "Equalize",      {}),
    operation("channel sum",        4.0, 2.0,  "GreyScale",     {}),
    operation("channel sum",        4.0, 2.0,  "OLDPHOTO",      {}),
    operation("channel sum",        4.0, 2.0,  "COLORIZE",      {0.5, 0.25, 1.0}),
    operation("channel sum",        4.0, 2.0,  "StretchH",      {30, 80, 40}),
    operation("channel sum",        4.0, 4.0,  "RotateL",       {30, 40}),
    operation("saturation",         8.0, 3.5,  "SATURATION",    {30}),
    operation("colour distance",    6.0, 2.0,  "ISOLATE",       {0x808080, 0x20FF40, 40}),
    operation("colour distance",    6.0, 2.0,  "REPLACE",       {0x506070, 0x2040F0, 28}),
    operation("colour distance",    6.0, 5.0,  "REPLACE",       {0x808080, 0x2040F0, 200}),
    operation("colour distance",    6.0, 2.0,  "ReplaceL",      {0x506070, 0x2040F0, 20, 28}),
    operation("colour distance",    6.0, 2.0,  "Shift",         {0x506070, 50, 28}),
    operation("HSL round trip",    25.0, 12.0, "RotateH",       {30, 100}),
    operation("HSL round trip",    25.0, 12.0, "RotateH",       {30, 80}),
    operation("HSL round trip",    25.0, 12.0, "RotateH",       {30, 50}),
    operation("HSL round trip",    25.0, 12.0, "RotateH",       {30, 0}),
    operation("HSL round trip",    25.0, 12.0, "ReplaceHS",     {0x506070, 0x2040F0, 100, 50, 28}),
    operation("HSL round trip",    25.0, 12.0, "ReplaceHS",     {0x808080, 0x2040F0, 100, 50, 200}),
    operation("recipes",            0,    0,   "ClassyColors",  {0}),
    operation("recipes",            0,    0,   "ClassyColors",  {7}),
    inEllipse("selection shape",    1.5,  1.1, "BRIGHTNESS",    {20}),
    inEllipse("selection shape",    1.5,  1.1, "GammaCorrection", {-30}),
    inEllipse("selection shape",    1.5,  1.1, "RotateH",       {30, 100}),
    {"palette", "PaletteApply, 256 colours", 80, 30, [](Size size) {
         for (int i = 0; i < 256; ++i) PaletteColors().push_back({i * 37 % 256, i * 91 % 256, i * 151 % 256});
         return operation("", 0, 0, "PaletteApply", {}).prepare(size);
     }, "memcpy", "PaletteApply"},
};
// clang-format on

} // namespace
} // namespace velara::bench
