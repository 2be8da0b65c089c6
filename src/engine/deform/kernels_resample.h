// Vector kernels of the bilinear resize: rows are blended first, and rounded, then columns. Singles are exact enough
// for parts that are clear; others are computed in double.
#pragma once
#include "pixels/Bits.h"
#include <cstdint>

namespace velara {

/// The targets of blendColumns are computed this many at a time: arrays are padded to a multiple of it.
constexpr int kBlended = 8;

/// blendPairs computes at least this many targets.
constexpr int kLeastOfPairs = 16;

/// Whether singles round the blends of two bytes by this part of 0 to 1 as doubles do: it never comes close to a half,
/// or it is a single itself and the processor rounds product and sum at once.
bool isClear(double part);

/// round((1 - part) * upper + part * lower) for the four channels of n pixels, as singles of 2^23 more; n is rounded up
/// to a whole vector, of kBlended pixels at most. part must be clear.
void blendRows(const Pixel* upper, const Pixel* lower, double part, int n, float* to);
/// The same for any part, n pixels.
void blendRowsExactly(const Pixel* upper, const Pixel* lower, double part, int n, float* to);

/// round((1 - parts[i]) * a + parts[i] * b) of the channels a of pixel at[i] of from, which blendRows wrote, and b of
/// the next, for n targets, rounded up to a multiple of kBlended. The fourth byte is 0. Right where the part is clear.
void blendColumns(const float* from, const std::int32_t* at, const float* parts, int n, Pixel* to);
/// The same of one target, for any part.
Pixel blendColumn(const float* from, double part);

/// blendRows and blendColumns for n >= kLeastOfPairs targets between pairs of sources beside one another: target i lies
/// between the pixels 2 * i and 2 * i + 1. All parts must be clear. streams: past the cache.
void blendPairs(const Pixel* upper, const Pixel* lower, double part, const float* parts, int n, bool streams,
                Pixel* to);

} // namespace velara
