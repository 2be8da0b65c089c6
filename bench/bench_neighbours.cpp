// The neighbourhood filters.
#include "bench.h"

namespace velara::bench {
namespace {

const std::string kCross = "0 1 0/1 4 1/0 1 0", kRound = "1 1 1 1 1/1 2 2 2 1/1 2 30 2 1/1 2 2 2 1/1 1 1 1 1";

// Bounds. SHARPEN and EDGEENHANCE: the sum of three rows in halves 12, of three columns 8, the pixel in halves 4, their
// difference 6, weighing and division of both halves 10, the pixel again, limits, joining and the fourth byte 12.
// EMBOSS with ties to even: the difference of two pixels in halves 8, of both halves size, product and tenth 10, ties
// 10, sign and grey 10, the third of the sum 4, spreading it and the fourth byte 9.
constexpr Bound kWeighted{52, 0, 0}, kEvenTies{51, 0, 0};

// clang-format off
const Rows rows{
    bounded(kWeighted, operation("3x3 and ring", 8.0, 2.5, "SHARPEN", {10})),
    operation("3x3 and ring", 8.0, 2.5, "SOFTEN",      {30}),
    bounded(kWeighted, operation("3x3 and ring", 8.0, 2.5, "EDGEENHANCE", {10})),
    operation("3x3 and ring", 8.0, 2.5, "CONTOUR",     {200, 0x36E2D7}),
    operation("3x3 and ring", 8.0, 2.5, "EMBOSS",      {10}),
    bounded(kEvenTies, operation("3x3 and ring", 8.0, 2.5, "EMBOSS", {15})), // ties to even
    operation("3x3 and ring", 8.0, 2.5, "ENGRAVE",     {30}),
    operation("3x3 and ring", 8.0, 2.5, "RELIEF",      {}),
    operation("3x3 and ring", 8.0, 2.5, "Blurs",       {2}),
    operation("general mask", 15.0, 5.5, "MaskFilter", {kCross, 8.0, 0, 0, 0, false}),
    operation("general mask", 15.0, 12.0, "MaskFilter", {kRound, 60.0, 0, 0, 0, false}),
    operation("rank",         3.0, 1.5, "DILATE",       {}),
    operation("rank",         3.0, 1.5, "ERODE",        {}),
    operation("rank",         3.0, 1.5, "RankFilterN4", {1}),
    operation("rank",         3.0, 1.5, "RankFilterND", {0}),
    operation("random",      25.0, 8.0, "DIFFUSE",      {5, 10}),
    operation("random",      25.0, 8.0, "DIFFUSE",      {10, 30}),
    inEllipse("selection shape", 1.5, 1.1, "SHARPEN",   {10}),
    inEllipse("selection shape", 1.5, 1.1, "DILATE",    {}),
    inEllipse("selection shape", 1.5, 1.1, "DIFFUSE",   {5, 10}, Tested::Source),
};
// clang-format on

} // namespace
} // namespace velara::bench
