// The operations that crop, rotate and resize.
#include "bench.h"

namespace velara::bench {
namespace {

// clang-format off
const Rows rows{ // family, must, goal, operation, arguments
    operation("moves",           3, 1.3, "BitsCrop",       {10, 10, 5990, 3990}),
    operation("moves",           3, 1.3, "BitsCropMasked", {10, 10, 5990, 3990}),
    operation("moves",           3, 1.3, "Flip",           {true, false}),
    operation("moves",           3, 1.3, "Flip",           {false, true}),
    operation("moves",           3, 1.3, "Flip",           {true, true}),
    operation("quarter turn",    8, 3.5, "BitsRotate90",   {}),
    operation("nearest resize",  0, 0,   "BitsResize",     {3000, 2000}),
    operation("nearest resize",  0, 0,   "BitsResize",     {9000, 6000}),
    operation("bilinear resize", 4, 1,   "BitsResample",   {3000, 2000}), // a copy moves 8 bytes a pixel, this 5
    operation("bilinear resize", 24, 12,  "BitsResample",   {9000, 6000}),
};
// clang-format on

} // namespace
} // namespace velara::bench
