// Filters over a pixel and its nearest neighbours: sharpening, softening, edges, blur, emboss.
#include "engine/neighbours/kernels_neighbours.h"
#include "engine/passes.h"
#include "pixels/numbers.h"

namespace velara {

namespace {

/// (c * (centre of the kernel) + factor * neighbours) \ divisor, clamped. As the kernel's weights add up to the divisor
/// this is c + floor(factor * difference / divisor); where truncation would differ the value is negative and clamps to
/// 0.
auto weighted(Neighbours neighbours, int factor, std::int64_t divisor)
{
    const Weighted w{neighbours, divisor < 0 ? -factor : factor, ShortDivider(std::abs(divisor))};
    return [=](const SpanOf& s) { neighbourKernels().weighted(s, w); };
}

} // namespace

Bits cBitFilter::SHARPEN(int Level)
{
    const std::int64_t divisor = 108 - std::int64_t{Level};
    if (divisor == 0) return eachSpan(1, divideByZero);
    return eachSpan(1, weighted(Neighbours::Ring, 2, divisor));
}

Bits cBitFilter::SOFTEN(int Level)
{
    const std::int64_t k = 101 - std::int64_t{Level}, divisor = k + 4;
    const std::ptrdiff_t stride = bits_.stride();
    if (divisor == 0) return eachSpan(1, divideByZero);
    if (k >= 0) return eachSpan(1, weighted(Neighbours::Cross, 1, divisor));
    return eachSpan(1, [=](const Pixel* from, Pixel* to, int x0, int x1) { // a negative weight may leave the byte range
        for (int x = x0; x < x1; ++x) {
            for (int c = 0; c < 3; ++c) {
                const auto at = [&](std::ptrdiff_t offset) { return from[x + offset].c[c]; };
                const int sides = at(-stride) + at(stride) + at(-1) + at(1);
                to[x].c[c] = toByte(static_cast<double>((at(0) * k + sides) / divisor));
            }
            to[x].c[3] = from[x].c[3];
        }
    });
}

Bits cBitFilter::EDGEENHANCE(int Level)
{
    const std::int64_t divisor = std::int64_t{Level} + 1;
    if (divisor == 0) return eachSpan(0, divideByZero);
    return eachSpan(0, weighted(Neighbours::Ring, 1, divisor));
}

Bits cBitFilter::Blurs(int Radius)
{
    const std::int64_t radius = std::abs(std::int64_t{Radius}); // the ring is symmetric
    const std::int64_t width = bits_.width(), height = bits_.height();
    return eachSpan(0, [=, stride = bits_.stride()](const Pixel* from, Pixel* to, int x0, int x1, int y) {
        if (std::min(x0, y) - radius < -Bits::kMargin || x1 - 1 + radius >= width + Bits::kMargin ||
            y + radius >= height + Bits::kMargin)
            throw RuntimeError(Fault::OutOfRange);
        neighbourKernels().ring({from, stride, to, x0, x1}, static_cast<int>(radius));
    });
}

Bits cBitFilter::CONTOUR(int Level, Colour Background)
{
    const int level = std::clamp(Level, -1, 256); // beyond these the mean of three bytes is below for all or for none
    return eachSpan(0, [=](const SpanOf& s) { neighbourKernels().contour(s, 3 * level, pixelOf(Background)); });
}

Bits cBitFilter::RELIEF()
{
    return eachSpan(0, [](const SpanOf& s) { neighbourKernels().relief(s); });
}

// --- EMBOSS and ENGRAVE

namespace {

constexpr int kMostWeight = 50; // of the dialogs; the kernel's integers are large enough for it

/// The rounding of d * w in integers. w is rounded to a single: where it is slightly above or below Weight/10 all ties
/// go up or down accordingly, where it is exact they go to even.
Relieved relieved(int sign, int weight)
{
    const double tenfold = static_cast<float>(weight / 10.0) * 10.0;
    return {sign, weight, tenfold < weight ? 4 : 5, tenfold == weight && weight % 10 == 5};
}

/// The same in plain arithmetic, for weights of any size.
void embossLiterally(const SpanOf& s, int sign, float w)
{
    for (int x = s.x0; x < s.x1; ++x) {
        std::int64_t sum = 0;
        for (int c = 0; c < 3; ++c) {
            const int d = sign * (s.from[x].c[c] - s.from[x + s.stride + 1].c[c]);
            sum += roundEven(std::abs(d * double{w} + 128));
        }
        const std::uint8_t grey = clamp(sum / 3);
        s.to[x] = {{grey, grey, grey, s.from[x].c[3]}};
    }
}

void copyThree(const Pixel& from, Pixel& to) { std::memcpy(to.c, from.c, 3); }

/// The kernel of both. The last column and row repeat the results of their neighbours.
auto embossed(int sign, int weight, const Bits& bits)
{
    const bool small = weight >= 0 && weight <= kMostWeight;
    return [=, r = relieved(sign, small ? weight : 0), w = static_cast<float>(weight / 10.0), stride = bits.stride(),
            maxX = bits.maxX(), maxY = bits.maxY()](const Pixel* from, Pixel* to, int x0, int x1, int y) {
        const int inner = std::min(x1, maxX); // the rest is the last column
        if (y == maxY) {
            copyPixels(from, to, x0, inner);
            for (int x = x0; x < inner; ++x) copyThree((to - stride)[x], to[x]);
        } else if (inner > x0) {
            const SpanOf span{from, stride, to, x0, inner};
            small ? neighbourKernels().emboss(span, r) : embossLiterally(span, sign, w);
        }
        if (x1 > maxX) {
            to[maxX] = from[maxX];
            copyThree(to[maxX - 1], to[maxX]);
        }
    };
}

} // namespace

// The last row comes after the one before it.
Bits cBitFilter::EMBOSS(int Weight) { return eachSpan(0, embossed(1, Weight, bits_), {2, bits_.height()}); }
Bits cBitFilter::ENGRAVE(int Weight) { return eachSpan(0, embossed(-1, Weight, bits_), {2, bits_.height()}); }

} // namespace velara
