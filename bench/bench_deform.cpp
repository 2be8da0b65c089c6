// The filters that move pixels.
#include "bench.h"

namespace velara::bench {
namespace {

/// A row of a filter that works on a disc: the ratio is scaled by the disc's share of the picture, plus one copy.
Row onDisc(std::string family, double must, double goal, std::string name, Arguments arguments, double part)
{
    return operation(std::move(family), must * part + 1, goal * part + 1, std::move(name), std::move(arguments));
}

// clang-format off
const Rows rows{ // family, must, goal, operation, arguments
    operation("nearest warps",   12, 6,    "ROTATE",       {30, true}),
    operation("nearest warps",   12, 6,    "ROTATE",       {90, true}),
    operation("nearest warps",   12, 2.5,  "STRETCH",      {50, 50, true}),
    operation("nearest warps",   12, 2.5,  "STRETCH",      {-50, -50, true}),
    operation("nearest warps",   12, 6,    "FOLD",         {30, 30, true}),
    operation("nearest warps",   12, 2.5,  "TILE",         {5}),
    operation("rows and columns", 5, 1.3,  "WAVES",        {10, 40, 0}),
    operation("rows and columns", 18, 2.5, "GLASS",        {"slanting", 0}),
    operation("rows and columns", 18, 2.5, "GLASS",        {"slanting", 1}),
    operation("rows and columns", 18, 2.5, "GLASS",        {"vertical", 1}),
    operation("rows and columns", 18, 2.5, "GLASS",        {"horizontal", 1}),
    operation("rows and columns", 18, 2.5, "GLASS",        {"squary", 2}),
    operation("tangents",        18, 0,    "GLASS",        {"curtain", 3}),
    operation("trigonometric",   35, 13,   "TWIRL",        {20, 0, true}),
    operation("trigonometric",   35, 13,   "BEND",         {0, true}),
    onDisc("trigonometric",      35, 13,   "LENS",         {0.5, 0.5, 0.33, 50}, 0.291), // pixels inside, of all
    operation("bilinear warp",   35, 15,   "RotateSmooth", {30}),
    inEllipse("selection shape", 1.5, 1.1, "ROTATE",       {30, true}, Tested::Source),
    inEllipse("selection shape", 1.5, 1.1, "TWIRL",        {20, 0, true}, Tested::Source),
    inEllipse("selection shape", 1.5, 1.1, "STRETCH",      {50, 50, true}, Tested::Source),
};
// clang-format on

} // namespace
} // namespace velara::bench
