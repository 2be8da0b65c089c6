// Filters by the distance from a reference colour: isolate, replace, shift.
#include "engine/colour/kernels_colour.h"
#include "engine/colour/kernels_distance.h"
#include "engine/passes.h"
#include "pixels/mHSLRGB.h"
#include "pixels/numbers.h"
#include <cmath>

namespace velara {

namespace {

/// The squared distance of a tolerance of 0..200 percent of 127.5, plus one.
std::int32_t toleranceLimit(int tolerance)
{
    const double reach = tolerance * 127.5 / 100;
    return roundEven(reach * reach + 1);
}

Blend replacing(Colour from, Colour to, std::int32_t limit, bool single)
{
    return {{pixelOf(from), limit}, limit, true, pixelOf(to), 0, 0, single, 0, Blend::kAnyLum};
}

auto blending(const Blend& blend)
{
    return [=](const SpanOf& s) { distanceKernels().blend(s, blend); };
}

constexpr std::uint32_t byteOf(std::uint32_t word, int c) { return word >> 8 * c & 255; }

} // namespace

Pixel Blend::operator()(const Pixel& p) const
{
    if (byHue) {
        const Hsl hsl = RGBToHSL(p.c[2], p.c[1], p.c[0]);
        if (std::abs(double(hsl.h) - hue) > hueReach || std::abs(double(hsl.s) - saturation) > satReach) return p;
    }
    std::int32_t d2 = 0;
    for (int c = 0; c < 3; ++c) {
        const int d = p.c[c] - int(byteOf(near.reference, c));
        d2 += d * d;
    }
    double k = 1 - double(d2) / range;
    if (single) k = static_cast<float>(k);
    Pixel out = p;
    for (int c = 0; c < 3; ++c) {
        const int up = clamp(p.c[c] + int(byteOf(plus, c))),
                  t = fixed ? int(byteOf(to, c)) : clamp(up - int(byteOf(minus, c)));
        out.c[c] = toByte((t - p.c[c]) * k + p.c[c]);
    }
    return out;
}

Bits cBitFilter::ISOLATE(Colour Color, Colour Fill, int Tolerance)
{
    const Near near{pixelOf(Color), toleranceLimit(Tolerance) - 1};
    return eachSpan(0, [=](const SpanOf& s) { distanceKernels().isolate(s, near, pixelOf(Fill)); });
}

Bits cBitFilter::REPLACE(Colour From, Colour To, int Tolerance)
{
    return eachSpan(0, blending(replacing(From, To, toleranceLimit(Tolerance), false)));
}

Bits cBitFilter::ReplaceHS(Colour From, Colour To, int HueTolerance, int SatTolerance, int ApplyTolerance)
{
    Blend blend = replacing(From, To, toleranceLimit(ApplyTolerance), true);
    const Hsl wanted = RGBToHSL(redOf(From), greenOf(From), blueOf(From));
    blend.byHue = true;
    blend.hue = wanted.h, blend.saturation = wanted.s;
    blend.hueReach = static_cast<float>(HueTolerance / 100.0),
    blend.satReach = static_cast<float>(SatTolerance / 100.0);
    return eachSpan(0, blending(blend));
}

Bits cBitFilter::ReplaceL(Colour From, Colour To, int LumTolerance, int ApplyTolerance)
{
    Blend blend = replacing(From, To, toleranceLimit(ApplyTolerance), true);
    blend.lum = (redOf(From) + greenOf(From) + blueOf(From)) / 3;
    blend.lumTolerance = std::min(roundEven(LumTolerance * 2.55), Blend::kAnyLum);
    return eachSpan(0, blending(blend));
}

Bits cBitFilter::Shift(Colour Color, int Amount, int Tolerance)
{
    constexpr std::uint32_t kEachChannel = 0x00010101;
    const std::int32_t limit = toleranceLimit(Tolerance);
    const std::uint32_t plus = kEachChannel * clamp(Amount), minus = kEachChannel * clamp(-std::int64_t(Amount));
    return eachSpan(0, blending({{pixelOf(Color), limit - 1}, limit, false, 0, plus, minus, false, 0, Blend::kAnyLum}));
}

} // namespace velara
