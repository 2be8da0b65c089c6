#include "engine/deform/kernels_resample.h"
#include "pixels/numbers.h"
#include <cmath>

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "engine/deform/kernels_resample.cpp"
#include <hwy/foreach_target.h>
#include <hwy/highway.h>

HWY_BEFORE_NAMESPACE();
namespace velara::HWY_NAMESPACE {

namespace hn = hwy::HWY_NAMESPACE;

using Singles = hn::CappedTag<float, 8>; // a vector of one or two pixels
using Words = hn::RebindToUnsigned<Singles>;
using Four = hn::CappedTag<float, 4>;
constexpr int kAhead = 128; // pixels

void blendRowsImpl(const Pixel* upper, const Pixel* lower, float part, int n, float* to)
{
    const Singles d;
    const hn::RebindToSigned<Singles> words;
    const hn::Rebind<std::uint8_t, Singles> bytes;
    const auto by = hn::Set(d, part);
    const int pixels = static_cast<int>(hn::Lanes(d)) / 4;
    for (int i = 0; i < n; i += pixels) {
        if (i % kAhead == 0) // stretches of rows are too short for the processor to foresee the next
            for (int j = i + kAhead; j < i + 2 * kAhead; j += 16) {
                __builtin_prefetch(upper + j);
                __builtin_prefetch(lower + j);
            }
        const auto channels = [&](const Pixel* p)
                                  HWY_ATTR { return hn::ConvertTo(d, hn::PromoteTo(words, hn::LoadU(bytes, p[i].c))); };
        const auto above = channels(upper), below = channels(lower);
        hn::StoreU(hn::Round(hn::MulAdd(by, hn::Sub(below, above), above)), d, to + 4 * i);
    }
}

/// The four singles at `low`; in vectors of two pixels also those at `high`.
HWY_INLINE hn::Vec<Singles> loadTwo([[maybe_unused]] const float* high, const float* low)
{
#if HWY_MAX_BYTES >= 32 && HWY_TARGET != HWY_SCALAR
    return hn::Combine(Singles(), hn::LoadU(Four(), high), hn::LoadU(Four(), low));
#else
    return hn::LoadU(Singles(), low);
#endif
}

void blendColumnsImpl(const float* from, const std::int32_t* at, const float* parts, int n, Pixel* to)
{
    const Singles d;
    const Words words;
    const hn::Repartition<std::uint8_t, Singles> bytes;
    // Added to a single, it leaves the number rounded half to even in the low bits.
    const auto rounding = hn::Set(d, 8388608.0f);
    alignas(HWY_MAX_BYTES) static constexpr std::uint8_t kTurned[] = {
        0, 4, 8, 12, 1, 5, 9, 13, 2, 6, 10, 14, 3, 7, 11, 15, 0, 4, 8, 12, 1, 5, 9, 13, 2, 6, 10, 14, 3, 7, 11, 15};
    const auto turned = hn::LoadU(bytes, kTurned);
    const auto colour = hn::Set(words, 0xFFFFFF), byte = hn::Set(words, 0xFF);
    const int lanes = static_cast<int>(hn::Lanes(d));
    for (int i = 0; i < n; i += lanes) { // as many pixels as lanes: k and, in the upper half, k + 4
        const auto part = hn::LoadU(d, parts + i);
        const auto pixel = [&](auto by, int k) HWY_ATTR {
            const int low = i + k, high = i + (k + 4) % lanes;
            const float *const first = from + 4 * std::ptrdiff_t{at[low]}, *const second =
                                                                               from + 4 * std::ptrdiff_t{at[high]};
            const auto a = loadTwo(second, first), b = loadTwo(second + 4, first + 4);
            return hn::BitCast(words, hn::Add(hn::MulAdd(by, hn::Sub(b, a), a), rounding));
        };
        const auto p0 = hn::And(pixel(hn::Broadcast<0>(part), 0), byte);
        const auto p1 = hn::ShiftLeft<8>(pixel(hn::Broadcast<1>(part), 1));
        const auto p2 = hn::ShiftLeft<16>(pixel(hn::Broadcast<2>(part), 2));
        const auto p3 = hn::ShiftLeft<24>(pixel(hn::Broadcast<3>(part), 3));
        const auto channels = hn::BitCast(bytes, hn::Or(hn::Or(p0, p1), hn::Or(p2, p3))); // of four pixels each
        const auto four = hn::BitCast(words, hn::TableLookupBytes(channels, turned));
        hn::StoreU(hn::And(four, colour), words, reinterpret_cast<std::uint32_t*>(to + i));
    }
}

} // namespace velara::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace velara {

HWY_EXPORT(blendRowsImpl);
HWY_EXPORT(blendColumnsImpl);

bool isClear(double part)
{
    // Singles near 255 have steps of 2^-16: half of one for the part, the product and the sum.
    constexpr std::uint32_t kHalf = 1u << 31, kTolerance = 1u << 17; // 2^-15 and a half in units of 2^-32
    const auto step = static_cast<std::uint32_t>(std::ldexp(part, 32));
    std::uint32_t near = 0, fraction = 0;
    for (int difference = 1; difference < 256; ++difference) {
        fraction += step;
        near |= static_cast<std::uint32_t>(fraction - (kHalf - kTolerance) < 2 * kTolerance);
    }
    return !near;
}

void blendRows(const Pixel* upper, const Pixel* lower, double part, int n, float* to)
{
    HWY_DYNAMIC_DISPATCH(blendRowsImpl)(upper, lower, static_cast<float>(part), n, to);
}

void blendRowsExactly(const Pixel* upper, const Pixel* lower, double part, int n, float* to)
{
    for (int i = 0; i < n; ++i)
        for (int c = 0; c < 4; ++c)
            *to++ = static_cast<float>(roundToEven((1 - part) * upper[i].c[c] + part * lower[i].c[c]));
}

void blendColumns(const float* from, const std::int32_t* at, const float* parts, int n, Pixel* to)
{
    HWY_DYNAMIC_DISPATCH(blendColumnsImpl)(from, at, parts, n, to);
}

Pixel blendColumn(const float* from, double part)
{
    Pixel to{};
    for (int c = 0; c < 3; ++c) to.c[c] = clamp(roundEven((1 - part) * double{from[c]} + part * double{from[c + 4]}));
    return to;
}

} // namespace velara
#endif
