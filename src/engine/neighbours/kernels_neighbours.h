// Vector kernels of the filters over a pixel and its nearest neighbours.
#pragma once
#include "engine/ShortDivider.h"
#include "engine/SpanOf.h"

namespace velara {

/// A pixel's difference from its neighbours: 8*c - S8 in a ring of eight, N + S + E + W - 4*c in a cross.
enum class Neighbours { Ring, Cross };

/// clamp(c + floor(factor * difference / divisor)). abs(factor * difference) <= ShortDivider::kMostBelow.
struct Weighted {
    Neighbours neighbours;
    int factor;
    ShortDivider divisor;
};

/// The grey of an emboss: every channel is clamp((v0+v1+v2) \ 3), v = abs(128 + sign * R(abs(d))) with d = c(x, y) -
/// c(x+1, y+1) and R(n) = (n*weight + half) \ 10, one less if evenTies is set, n*weight + half is a multiple of 10 and
/// R is odd.
struct Relieved {
    int sign;   // 1 or -1
    int weight; // 0..50
    int half;   // 4 or 5
    bool evenTies;
};

struct NeighbourKernels {
    void (*weighted)(SpanOf, Weighted);
    void (*ring)(SpanOf, int radius);                                   // 0 to 2
    void (*contour)(SpanOf, int thriceLevel, std::uint32_t background); // background 0x00RRGGBB
    void (*emboss)(SpanOf, Relieved);
    void (*relief)(SpanOf); // channels 1 to 3; blue is kept
    /// on where 8*s - S8(s) >= threshold, s the sum of the channels; off elsewhere, or the pixel itself if offKeeps.
    /// 0x00RRGGBB.
    void (*sketch)(SpanOf, int threshold, std::uint32_t on, std::uint32_t off, bool offKeeps);
};
const NeighbourKernels& neighbourKernels();

} // namespace velara
