// The general convolution.
#include "engine/neighbours/kernels_mask.h"
#include "engine/passes.h"
#include "pixels/numbers.h"
#include <optional>

namespace velara {

bool MaskSum::isShort() const
{
    constexpr std::int64_t kMostWeight = 128, kMostAdded = 32000; // 255 * 128 < 2^15
    std::int64_t weight = 0;
    for (const MaskTap& tap : taps) weight += std::abs(std::int64_t{tap.factor});
    return divisor != 0 && weight <= kMostWeight &&
           std::ranges::all_of(add, [](std::int64_t a) { return std::abs(a) <= kMostAdded; });
}

bool MaskSum::isSmall() const
{
    constexpr std::int64_t kExactSums = 4'000'000, kMostAdded = 1 << 30; // below 2^22; a sum of both fits into 32 bits
    std::int64_t weight = 0;
    for (const MaskTap& tap : taps) {
        if (std::abs(std::int64_t{tap.factor}) > 32767) return false;
        weight += std::abs(tap.factor);
    }
    return 255 * weight < kExactSums && std::abs(divisor) < kExactSums &&
           std::ranges::all_of(add, [](std::int64_t a) { return std::abs(a) < kMostAdded; });
}

Pixel MaskSum::at(const Pixel* p) const
{
    std::int64_t sums[3] = {};
    for (const MaskTap& tap : taps)
        for (int c = 0; c < 3; ++c) sums[c] += std::int64_t{p[tap.offset].c[c]} * tap.factor;
    Pixel out{{0, 0, 0, p->c[3]}};
    for (int c = 0; c < 3; ++c) out.c[c] = clamp(sums[c] / divisor + add[c]);
    return out;
}

namespace {

/// The mask's window around a pixel, in pixels: `before` to the left and above, `side` wide and high.
struct Window {
    int before, side;
    int after() const { return side - 1 - before; }
};

/// The columns of the span whose windows lie inside the picture; empty where the row's window doesn't.
Span insideOnly(Span s, int y, Window w, const Bits& bits)
{
    if (y < w.before || y + w.after() > bits.maxY()) return {s.x0, s.x0};
    const int x0 = std::max(s.x0, w.before);
    return {x0, std::max(x0, std::min(s.x1, bits.width() - w.after()))};
}

bool reachesOut(Span s, int y, Window w, const Bits& bits)
{
    return std::min(s.x0, y) - w.before < -Bits::kMargin || s.x1 + w.after() > bits.width() + Bits::kMargin ||
           y + w.after() >= bits.height() + Bits::kMargin;
}

constexpr std::size_t kMostSide = 1 << 12; // keeps 64-bit sums from overflowing; a wider mask exceeds the margin anyway

} // namespace

Bits cBitFilter::MaskFilter(const std::vector<std::vector<int>>& Mask, double Divisor, int AddRed, int AddGreen,
                            int AddBlue, bool Clip)
{
    const auto square = [&](const std::vector<int>& line) { return line.size() == Mask.size(); };
    if (Mask.empty() || Mask.size() > kMostSide || !std::ranges::all_of(Mask, square))
        throw RuntimeError(Fault::OutOfRange);
    const Window window{static_cast<int>(Mask.size() - 1) / 2, static_cast<int>(Mask.size())};
    const Bits in = bits_;
    MaskSum sum{{}, 0, {AddBlue, AddGreen, AddRed}};
    for (int j = 0; j < window.side; ++j)
        for (int i = 0; i < window.side; ++i)
            if (Mask[j][i] != 0)
                sum.taps.push_back({(j - window.before) * in.stride() + i - window.before, Mask[j][i]});

    // Integer division needs an integer divisor; its faults are those of the first pixel that needs it.
    std::optional<Fault> fault;
    try {
        sum.divisor = roundEven(Divisor);
        if (sum.divisor == 0) fault = Fault::DivisionByZero;
    } catch (const RuntimeError& error) {
        fault = error.fault();
    }
    return eachSpan(0, [&](const Pixel* from, Pixel* to, int x0, int x1, int y) {
        const Span done = Clip ? insideOnly({x0, x1}, y, window, in) : Span{x0, x1};
        copyPixels(from, to, x0, std::min(done.x0, x1));
        if (done.x0 >= done.x1) return copyPixels(from, to, x0, x1);
        if (fault) throw RuntimeError(*fault);
        if (reachesOut(done, y, window, in)) throw RuntimeError(Fault::OutOfRange);
        int x = done.x0;
        if (sum.isSmall()) x = maskPixels({from, in.stride(), to, done.x0, done.x1}, sum);
        for (; x < done.x1; ++x) to[x] = sum.at(from + x);
        copyPixels(from, to, done.x1, x1);
    });
}

} // namespace velara
