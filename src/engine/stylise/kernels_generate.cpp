#include "engine/stylise/kernels_generate.h"
#include <algorithm>
#include <cstring>
#include <type_traits>

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "engine/stylise/kernels_generate.cpp"
#include <hwy/foreach_target.h>
#include <hwy/highway.h>

#include "engine/pixels-inl.h"
#include "engine/random-inl.h"
#include "pixels/lanes-inl.h"
#include <hwy/contrib/math/math-inl.h>

HWY_BEFORE_NAMESPACE();
namespace velara::HWY_NAMESPACE {

namespace hn = hwy::HWY_NAMESPACE;

using Doubles = hn::ScalableTag<double>;
using HalfWords = hn::Rebind<std::int32_t, Doubles>; // as many as there are doubles
using HalfSingles = hn::Rebind<float, Doubles>;
using Singles = hn::ScalableTag<float>;
using Words = hn::ScalableTag<std::int32_t>;

void multiplyImpl(const Pixel* from, const Pixel* factors, int n, Pixel* to)
{
    const hn::ScalableTag<std::uint16_t> d;
    const hn::Rebind<std::uint8_t, decltype(d)> bytes;
    const hn::RebindToSigned<decltype(d)> signedWords;
    const int lanes = static_cast<int>(hn::Lanes(d) / sizeof(Pixel));
    const auto almostHalf = hn::Set(d, 63), one = hn::Set(d, 1);
    const auto multiply = [&](const Pixel* a, const Pixel* b, Pixel* target) {
        const auto product =
            hn::Mul(hn::PromoteTo(d, hn::LoadU(bytes, a->c)), hn::PromoteTo(d, hn::LoadU(bytes, b->c)));
        const auto odd = hn::And(hn::ShiftRight<7>(product), one);
        const auto rounded = hn::ShiftRight<7>(hn::Add(product, hn::Add(almostHalf, odd)));
        hn::StoreU(hn::DemoteTo(bytes, hn::BitCast(signedWords, rounded)), bytes, target->c);
    };
    int i = 0;
    for (; i + lanes <= n; i += lanes) multiply(from + i, factors + i, to + i);
    if (i == n) return;
    const std::size_t rest = sizeof(Pixel) * static_cast<std::size_t>(n - i);
    Pixel a[HWY_MAX_BYTES / sizeof(Pixel)] = {}, b[HWY_MAX_BYTES / sizeof(Pixel)] = {};
    std::memcpy(a, from + i, rest);
    std::memcpy(b, factors + i, rest);
    multiply(a, b, a);
    std::memcpy(to + i, a, rest);
}

/// Blends the three channels of n pixels in doubles: blend(channels, c, i) returns those of channel c of the pixels
/// from i on. The fourth byte is kept. False when a result is out of byte range.
template <class Blend> bool blendChannels(const Pixel* from, int n, Pixel* to, Blend&& blend)
{
    const Doubles d;
    const HalfWords words;
    const auto byte = hn::Set(words, 255);
    const auto zero = hn::Zero(d), most = hn::Set(d, 255.0);
    auto allGood = hn::Eq(zero, zero);
    eachVector(static_cast<int>(hn::Lanes(d)), from, n, to, [&](const Pixel* p, Pixel* target, int i) {
        const auto pixels = hn::LoadU(words, reinterpret_cast<const std::int32_t*>(p));
        const auto there = hn::FirstN(d, static_cast<std::size_t>(n - i));
        auto result = hn::AndNot(hn::Set(words, 0xFFFFFF), pixels);
        const auto channel = [&](auto index) {
            constexpr int kShift = 8 * decltype(index)::value;
            const auto channels = hn::PromoteTo(d, hn::And(hn::ShiftRight<kShift>(pixels), byte));
            const auto v = hn::IfThenElse(there, hn::Round(blend(channels, decltype(index)::value, i)), zero);
            const auto limited = hn::Min(hn::Max(v, zero), most);
            allGood = hn::And(allGood, hn::Eq(v, limited));
            result = hn::Or(result, hn::ShiftLeft<kShift>(hn::DemoteTo(words, limited)));
        };
        channel(std::integral_constant<int, 0>());
        channel(std::integral_constant<int, 1>());
        channel(std::integral_constant<int, 2>());
        hn::StoreU(result, words, reinterpret_cast<std::int32_t*>(target));
    });
    return hn::AllTrue(d, allGood);
}

bool overlayImpl(const Pixel* from, const Pixel* over, double rest, double part, std::int32_t key, int n, Pixel* to)
{
    const Doubles d;
    const HalfWords words;
    const auto a = hn::Set(d, rest), b = hn::Set(d, part), skipped = hn::Set(d, static_cast<double>(key));
    const auto byte = hn::Set(words, 255);
    return blendChannels(from, n, to, [&](auto channels, int c, int i) {
        const auto laid = hn::LoadU(words, reinterpret_cast<const std::int32_t*>(over + i));
        const auto colour = hn::And(laid, hn::Set(words, 0xFFFFFF));
        const auto own = hn::And(c == 0 ? laid : c == 1 ? hn::ShiftRight<8>(laid) : hn::ShiftRight<16>(laid), byte);
        const auto blended = hn::Add(hn::Mul(channels, a), hn::Mul(hn::PromoteTo(d, own), b));
        return hn::IfThenElse(hn::Eq(hn::PromoteTo(d, colour), skipped), channels, blended);
    });
}

bool rampImpl(const RampColours& ramp, const Pixel* from, const float* t, int n, Pixel* to)
{
    const Doubles d;
    const HalfSingles singles;
    const auto opacity = hn::Set(d, ramp.opacity), rest = hn::Set(d, ramp.rest);
    return blendChannels(from, n, to, [&](auto channels, int c, int i) {
        const auto at = hn::LoadU(singles, t + i);
        const auto second = hn::PromoteTo(d, at), first = hn::PromoteTo(d, hn::Sub(hn::Set(singles, 1.0f), at));
        const auto one = ramp.ownFirst ? channels : hn::Set(d, ramp.first[c]);
        const auto two = ramp.ownSecond ? channels : hn::Set(d, ramp.second[c]);
        const auto colour = hn::Mul(hn::Add(hn::Mul(one, first), hn::Mul(two, second)), opacity);
        return hn::Add(hn::Mul(channels, rest), colour);
    });
}

void linearImpl(double first, double ry, double sr, double cr, int n, float* t)
{
    const Doubles d;
    const HalfSingles singles;
    const auto down = hn::Set(d, ry * sr), across = hn::Set(d, cr);
    for (int i = 0; i < n; i += static_cast<int>(hn::Lanes(d))) {
        const auto rx = countedFrom(d, first + i);
        hn::StoreU(hn::DemoteTo(singles, hn::Add(down, hn::Mul(rx, across))), singles, t + i);
    }
}

void circularImpl(double first, double ry, double R, int n, float* t)
{
    const Doubles d;
    const HalfSingles singles;
    const auto down = hn::Set(d, ry * ry), radius = hn::Set(d, R);
    for (int i = 0; i < n; i += static_cast<int>(hn::Lanes(d))) {
        const auto rx = countedFrom(d, first + i);
        const auto distance = hn::Sqrt(hn::Add(hn::Mul(rx, rx), down));
        hn::StoreU(hn::DemoteTo(singles, hn::Div(distance, radius)), singles, t + i);
    }
}

std::uint64_t squareSinesImpl(double frequency, int n, float* t)
{
    const Doubles d;
    const HalfSingles singles;
    const auto f = hn::Set(d, frequency), error = hn::Set(d, 1e-12), farthest = hn::Set(d, 30000.0);
    std::uint64_t doubtful = 0;
    for (int i = 0; i < n; i += static_cast<int>(hn::Lanes(d))) {
        const auto angle = hn::Mul(f, hn::PromoteTo(d, hn::LoadU(singles, t + i)));
        const auto sine = hn::Sin(d, angle);
        const auto low = hn::Sub(sine, error), high = hn::Add(sine, error);
        const auto one = hn::DemoteTo(singles, hn::Mul(low, low)), other = hn::DemoteTo(singles, hn::Mul(high, high));
        // The caller still needs the t of uncertain pixels.
        const auto doubt =
            hn::Or(hn::Ne(hn::PromoteTo(d, one), hn::PromoteTo(d, other)), hn::Gt(hn::Abs(angle), farthest));
        alignas(64) float squares[HWY_MAX_BYTES / sizeof(float)];
        hn::Store(one, singles, squares);
        const std::uint64_t bits = laneBits(d, doubt);
        for (std::size_t j = 0; j < hn::Lanes(d); ++j)
            if (!(bits >> j & 1)) t[i + static_cast<int>(j)] = squares[j];
        doubtful |= bits << i;
    }
    return doubtful;
}

void noiseImpl(SpanOf s, const Random& of, std::uint32_t number, int amount, bool equalized)
{
    const Random random = of; // the stores cannot alias it
    forPixels<std::uint8_t>(s, [=](auto d8, int x) VELARA_INLINED {
        const hn::Repartition<std::int32_t, decltype(d8)> d;
        const hn::RebindToUnsigned<decltype(d)> u;
        const auto span = hn::Set(u, static_cast<std::uint32_t>(2 * amount + 1));
        const auto almostHalf = hn::Set(u, (1u << 23) - 1);
        const auto less = hn::Set(d, amount), byte = hn::Set(d, 255), one = hn::Set(d, 1);
        const auto at = countedFrom(u, number + static_cast<std::uint32_t>(x));
        const auto thrice = hn::Add(hn::Add(at, at), at);
        const auto pixels = hn::BitCast(d, loadBytes(d8, s.from + x));
        const auto common = hn::Mul(randomBits(u, random, at), span);
        const auto channel = [&](auto shift, std::uint32_t draw) HWY_ATTR {
            const auto scaled =
                equalized ? common : hn::Mul(randomBits(u, random, hn::Add(thrice, hn::Set(u, draw))), span);
            const auto c = hn::Sub(hn::And(hn::ShiftRight<decltype(shift)::value>(pixels), byte), less);
            const auto odd = hn::And(hn::Add(c, hn::BitCast(d, hn::ShiftRight<24>(scaled))), one);
            const auto rounded = hn::ShiftRight<24>(hn::Add(scaled, hn::Add(almostHalf, hn::BitCast(u, odd))));
            const auto v = hn::Add(c, hn::BitCast(d, rounded));
            return hn::ShiftLeft<decltype(shift)::value>(hn::Min(hn::Max(v, hn::Zero(d)), byte));
        };
        const auto red = channel(std::integral_constant<int, 16>(), 0),
                   green = channel(std::integral_constant<int, 8>(), 1);
        const auto blue = channel(std::integral_constant<int, 0>(), 2);
        return withFourthOf(d8, loadBytes(d8, s.from + x), hn::BitCast(d8, hn::Or(hn::Or(red, green), blue)));
    });
}

std::uint64_t lightImpl(float intensity, float slope, int ox, int oy, const Pixel* from, int n, Pixel* to)
{
    const Words d;
    const Singles singles;
    const auto top = hn::Set(singles, intensity), fall = hn::Set(singles, slope);
    const auto down = hn::Set(singles, static_cast<float>(oy) * static_cast<float>(oy));
    const auto surely = hn::Set(singles, 0.5f - 1.0f / 256); // singles near 4096 have steps of 2^-11
    const auto byte = hn::Set(d, 255);
    const int lanes = static_cast<int>(hn::Lanes(d));
    std::uint64_t doubtful = 0;
    eachVector(lanes, from, n, to, [&](const Pixel* p, Pixel* target, int i) {
        const auto dx = hn::ConvertTo(singles, countedFrom(d, ox + i));
        const auto light = hn::NegMulAdd(hn::Sqrt(hn::MulAdd(dx, dx, down)), fall, top);
        const auto rounded = hn::Round(light);
        doubtful |= laneBits(singles, hn::Gt(hn::Abs(hn::Sub(light, rounded)), surely)) << i;
        const auto k = hn::ConvertTo(d, rounded);
        const auto pixels = hn::LoadU(d, reinterpret_cast<const std::int32_t*>(p));
        const auto channel = [&](auto shift) {
            const auto c = hn::And(hn::ShiftRight<decltype(shift)::value>(pixels), byte);
            return hn::ShiftLeft<decltype(shift)::value>(hn::And(hn::Min(hn::Add(c, k), byte), byte));
        };
        const auto lit =
            hn::Or(hn::Or(channel(std::integral_constant<int, 0>()), channel(std::integral_constant<int, 8>())),
                   channel(std::integral_constant<int, 16>()));
        hn::StoreU(hn::Or(lit, hn::AndNot(hn::Set(d, 0xFFFFFF), pixels)), d, reinterpret_cast<std::int32_t*>(target));
    });
    return doubtful;
}

} // namespace velara::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace velara {

HWY_EXPORT(multiplyImpl);
HWY_EXPORT(overlayImpl);
HWY_EXPORT(rampImpl);
HWY_EXPORT(linearImpl);
HWY_EXPORT(circularImpl);
HWY_EXPORT(squareSinesImpl);
HWY_EXPORT(noiseImpl);
HWY_EXPORT(lightImpl);

void multiplyPixels(const Pixel* from, const Pixel* factors, int n, Pixel* to)
{
    HWY_DYNAMIC_DISPATCH(multiplyImpl)(from, factors, n, to);
}

bool overlayPixels(const Pixel* from, const Pixel* over, double rest, double part, std::int32_t key, int n, Pixel* to)
{
    return HWY_DYNAMIC_DISPATCH(overlayImpl)(from, over, rest, part, key, n, to);
}

bool rampPixels(const RampColours& ramp, const Pixel* from, const float* t, int n, Pixel* to)
{
    return HWY_DYNAMIC_DISPATCH(rampImpl)(ramp, from, t, n, to);
}

void linearRamp(double first, double ry, double sr, double cr, int n, float* t)
{
    HWY_DYNAMIC_DISPATCH(linearImpl)(first, ry, sr, cr, n, t);
}

void circularRamp(double first, double ry, double R, int n, float* t)
{
    HWY_DYNAMIC_DISPATCH(circularImpl)(first, ry, R, n, t);
}

std::uint64_t squareSines(double frequency, int n, float* t)
{
    return HWY_DYNAMIC_DISPATCH(squareSinesImpl)(frequency, n, t);
}

void noisePixels(SpanOf span, const Random& random, std::uint32_t number, int amount, bool equalized)
{
    HWY_DYNAMIC_DISPATCH(noiseImpl)(span, random, number, amount, equalized);
}

std::uint64_t lightPixels(float intensity, float slope, int ox, int oy, const Pixel* from, int n, Pixel* to)
{
    return HWY_DYNAMIC_DISPATCH(lightImpl)(intensity, slope, ox, oy, from, n, to);
}

} // namespace velara
#endif
