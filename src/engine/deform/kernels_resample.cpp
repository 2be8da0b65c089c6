#include "engine/deform/kernels_resample.h"
#include "engine/copyPixels.h"
#include "pixels/numbers.h"
#include <algorithm>
#include <bit>
#include <cmath>
#include <type_traits>

#ifndef VELARA_KERNELS_RESAMPLE_NUMBERS
#define VELARA_KERNELS_RESAMPLE_NUMBERS
namespace velara {

/// Singles from this one on have no fraction: what is added to it is rounded, ties to even, and lies in its low bits.
constexpr float kWhole = 8388608;
constexpr auto kWholeBits = std::bit_cast<std::uint32_t>(kWhole);
constexpr int kLinePixels = 16;

} // namespace velara
#endif

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
using Many = hn::ScalableTag<std::uint32_t>;
using ManySingles = hn::ScalableTag<float>;
constexpr int kAhead = 128;       // pixels
constexpr int kPairsAhead = 1024; // pixels

void blendRowsImpl(const Pixel* upper, const Pixel* lower, float part, int n, float* to)
{
    const Singles d;
    const Words words;
    const hn::Rebind<std::uint8_t, Singles> bytes;
    const auto by = hn::Set(d, part);
    const auto whole = hn::Set(words, kWholeBits);
    const int pixels = static_cast<int>(hn::Lanes(d)) / 4;
    for (int i = 0; i < n; i += pixels) {
        if (i % kAhead == 0) // stretches of rows are too short for the processor to foresee the next
            for (int j = i + kAhead; j < i + 2 * kAhead; j += 16) {
                __builtin_prefetch(upper + j);
                __builtin_prefetch(lower + j);
            }
        const auto channels = [&](const Pixel* p) HWY_ATTR {
            return hn::BitCast(d, hn::Or(whole, hn::PromoteTo(words, hn::LoadU(bytes, p[i].c))));
        };
        const auto above = channels(upper), below = channels(lower);
        hn::StoreU(hn::MulAdd(by, hn::Sub(below, above), above), d, to + 4 * i);
    }
}

void blendRowsExactlyImpl(const Pixel* upper, const Pixel* lower, double part, int n, float* to)
{
    const hn::CappedTag<double, 4> d; // a pixel, or half of one
    const hn::Rebind<std::int32_t, decltype(d)> words;
    const hn::Rebind<std::uint8_t, decltype(d)> bytes;
    const hn::Rebind<float, decltype(d)> singles;
    const auto ofLower = hn::Set(d, part), ofUpper = hn::Set(d, 1 - part);
    const auto* above = upper->c;
    const auto* below = lower->c;
    const int lanes = static_cast<int>(hn::Lanes(d));
    for (int i = 0; i < 4 * n; i += lanes) {
        const auto channels = [&](const std::uint8_t* p)
                                  HWY_ATTR { return hn::PromoteTo(d, hn::PromoteTo(words, hn::LoadU(bytes, p + i))); };
        const auto sum = hn::Add(hn::Mul(ofUpper, channels(above)), hn::Mul(ofLower, channels(below)));
        hn::StoreU(hn::Add(hn::DemoteTo(singles, hn::Round(sum)), hn::Set(singles, kWhole)), singles, to + i);
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
            return hn::BitCast(words, hn::MulAdd(by, hn::Sub(b, a), a));
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

/// A vector of targets between pairs of pixels from (upper, lower) on, channel by channel: sources and targets stay
/// words.
HWY_INLINE hn::Vec<Many> blendedPairs(const Pixel* upper, const Pixel* lower, hn::Vec<ManySingles> along,
                                      const float* parts)
{
    const Many words;
    const ManySingles d;
    const auto byte = hn::Set(words, 0xFF), whole = hn::Set(words, kWholeBits);
    const auto load = [&](const Pixel* p)
                          HWY_ATTR { return hn::LoadU(words, reinterpret_cast<const std::uint32_t*>(p)); };
    const int lanes = static_cast<int>(hn::Lanes(words));
    const auto above0 = load(upper), above1 = load(upper + lanes), below0 = load(lower), below1 = load(lower + lanes);
    const auto leftAbove = hn::ConcatEven(words, above1, above0), rightAbove = hn::ConcatOdd(words, above1, above0);
    const auto leftBelow = hn::ConcatEven(words, below1, below0), rightBelow = hn::ConcatOdd(words, below1, below0);
    const auto across = hn::LoadU(d, parts);
    const auto blend = [&](auto part, auto a, auto b) HWY_ATTR { return hn::MulAdd(part, hn::Sub(b, a), a); };
    const auto channel = [&](auto shift) HWY_ATTR {
        const auto of = [&](auto p) HWY_ATTR {
            return hn::BitCast(d, hn::OrAnd(whole, hn::ShiftRight<decltype(shift)::value>(p), byte));
        };
        const auto left = blend(along, of(leftAbove), of(leftBelow));
        const auto right = blend(along, of(rightAbove), of(rightBelow));
        return hn::BitCast(words, blend(across, left, right));
    };
    const auto blue = channel(std::integral_constant<int, 0>()), green = channel(std::integral_constant<int, 8>());
    const auto red = channel(std::integral_constant<int, 16>());
    return hn::OrAnd(hn::Or(hn::ShiftLeft<8>(green), hn::ShiftLeft<16>(red)), blue, byte);
}

void blendPairsImpl(const Pixel* upper, const Pixel* lower, float part, const float* parts, int n, bool streams,
                    Pixel* to)
{
    const Many words;
    const int lanes = static_cast<int>(hn::Lanes(words));
    const auto along = hn::Set(ManySingles(), part);
    const auto from = [&](int i) HWY_ATTR { return blendedPairs(upper + 2 * i, lower + 2 * i, along, parts + i); };
    const auto some = [&](int i, int first, int count) HWY_ATTR { // of the vector from target i on
        Pixel all[HWY_MAX_BYTES / sizeof(Pixel)];
        hn::StoreU(from(i), words, reinterpret_cast<std::uint32_t*>(all));
        copyPixels(all + first, to + i + first, 0, count);
    };
    const auto at = [&](int i) { return reinterpret_cast<std::uint32_t*>(to + i); };
    int i = 0;
    if (streams) {
        const auto beyond = static_cast<int>(reinterpret_cast<std::uintptr_t>(to) / sizeof(Pixel) % kLinePixels);
        for (const int head = (kLinePixels - beyond) % kLinePixels; i < head;) {
            const int count = std::min(lanes, head - i);
            some(i, 0, count);
            i += count;
        }
        for (; i + kLinePixels <= n; i += kLinePixels) {
            for (int j = 2 * i + kPairsAhead; j < 2 * (i + kLinePixels) + kPairsAhead; j += kLinePixels) {
                __builtin_prefetch(upper + j);
                __builtin_prefetch(lower + j);
            }
            for (int j = i; j < i + kLinePixels; j += lanes) hn::Stream(from(j), words, at(j));
        }
    }
    for (; i + lanes <= n; i += lanes) hn::StoreU(from(i), words, at(i));
    if (i < n) some(n - lanes, lanes - (n - i), n - i);
}

bool fusesImpl() { return HWY_NATIVE_FMA; }

} // namespace velara::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace velara {

HWY_EXPORT(blendRowsImpl);
HWY_EXPORT(blendRowsExactlyImpl);
HWY_EXPORT(blendColumnsImpl);
HWY_EXPORT(blendPairsImpl);
HWY_EXPORT(fusesImpl);

bool isClear(double part)
{
    // Blends of singles that the part is one of are rounded once, where product and sum are: to the whole number.
    if (part == double{static_cast<float>(part)} && HWY_DYNAMIC_DISPATCH(fusesImpl)()) return true;
    // Otherwise singles near 255 have steps of 2^-16: half of one for the part and the product.
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
    HWY_DYNAMIC_DISPATCH(blendRowsExactlyImpl)(upper, lower, part, n, to);
}

void blendColumns(const float* from, const std::int32_t* at, const float* parts, int n, Pixel* to)
{
    HWY_DYNAMIC_DISPATCH(blendColumnsImpl)(from, at, parts, n, to);
}

Pixel blendColumn(const float* from, double part)
{
    Pixel to{};
    const auto channel = [&](int c) { return double{from[c]} - double{kWhole}; };
    for (int c = 0; c < 3; ++c) to.c[c] = clamp(roundEven((1 - part) * channel(c) + part * channel(c + 4)));
    return to;
}

void blendPairs(const Pixel* upper, const Pixel* lower, double part, const float* parts, int n, bool streams, Pixel* to)
{
    HWY_DYNAMIC_DISPATCH(blendPairsImpl)(upper, lower, static_cast<float>(part), parts, n, streams, to);
}

} // namespace velara
#endif
