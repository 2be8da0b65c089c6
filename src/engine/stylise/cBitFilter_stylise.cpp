// Stylising filters: hard tone maps and a pencil sketch.
#include "engine/neighbours/kernels_neighbours.h"
#include "engine/passes.h"
#include "engine/stylise/kernels_stylise.h"

namespace velara {

namespace {

constexpr Colour kBlack = 0, kWhite = 0xFFFFFF;

auto twoTone(Colour bright, Colour dark)
{
    return [=](const SpanOf& s) { styliseKernels().twoTone(s, pixelOf(bright), pixelOf(dark)); };
}

} // namespace

Bits cBitFilter::SKETCH(int Level, bool Mono, Colour Color)
{
    // (e + 765) \ 3 > Level as a bound of e; truncation makes a difference of two for the negative quotients
    const int level = std::clamp(Level, -10000, 10000);
    const int threshold = (level >= 0 ? 3 * level + 3 : 3 * level + 1) - 765;
    const std::uint32_t on = pixelOf(Mono ? kWhite : Color);
    return eachSpan(0, [=](const SpanOf& s) { neighbourKernels().sketch(s, threshold, on, pixelOf(kBlack), !Mono); });
}

Bits cBitFilter::THERMIQUE()
{
    return eachSpan(0, [](const SpanOf& s) { styliseKernels().strongest(s); });
}

Bits cBitFilter::XBLACK() { return eachSpan(0, twoTone(kBlack, kWhite)); }
Bits cBitFilter::PHOTOCOP() { return eachSpan(0, twoTone(kWhite, kBlack)); }

} // namespace velara
