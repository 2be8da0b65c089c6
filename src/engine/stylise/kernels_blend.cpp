// The blends of kernels_generate.h in single precision.
#include "engine/stylise/kernels_generate.h"
#include <algorithm>
#include <cmath>
#include <type_traits>

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "engine/stylise/kernels_blend.cpp"
#include <hwy/foreach_target.h>
#include <hwy/highway.h>

#include "pixels/lanes-inl.h"

HWY_BEFORE_NAMESPACE();
namespace velara::HWY_NAMESPACE {

namespace hn = hwy::HWY_NAMESPACE;

using Singles = hn::ScalableTag<float>;
using Words = hn::ScalableTag<std::int32_t>;

/// Blends the three channels of n pixels: blend(channels, index, i) returns those of the channel whose number is the
/// type of index, of the pixels from i on, within 0..255 and off by `error` at most, or exactly where all of
/// exactChannels or isExact(i) say so. The fourth byte is kept. Returns a bit for each pixel that is too close to a
/// half.
template <class Blend, class Exact>
HWY_INLINE std::uint64_t blendNearly(const Pixel* from, float error, const bool (&exactChannels)[3], int n, Pixel* to,
                                     Blend&& blend, Exact&& isExact)
{
    const Singles d;
    const Words words;
    const auto byte = hn::Set(words, 255);
    const auto surely = hn::Set(d, 0.5f - error);
    const auto rounding = hn::Set(d, 8388608.0f); // leaves the number rounded half to even in the low bits
    const auto sizeOf = [&](int c)
                            HWY_ATTR { return hn::BitCast(d, hn::Set(words, exactChannels[c] ? 0 : 0x7FFFFFFF)); };
    const hn::Vec<Singles> sizes[] = {sizeOf(0), sizeOf(1), sizeOf(2)};
    std::uint64_t doubtful = 0;
    eachVector(static_cast<int>(hn::Lanes(d)), from, n, to, [&](const Pixel* p, Pixel* target, int i) HWY_ATTR {
        const auto pixels = hn::LoadU(words, reinterpret_cast<const std::int32_t*>(p));
        auto doubt = hn::Zero(d);
        const auto channel = [&](auto index) HWY_ATTR {
            constexpr int kShift = 8 * decltype(index)::value;
            const auto v = blend(hn::ConvertTo(d, hn::And(hn::ShiftRight<kShift>(pixels), byte)), index, i);
            const auto rounded = hn::Add(v, rounding);
            const auto off = hn::Sub(v, hn::Sub(rounded, rounding));
            doubt = hn::Max(doubt, hn::And(off, sizes[decltype(index)::value]));
            return hn::ShiftLeft<kShift>(hn::And(hn::BitCast(words, rounded), byte));
        };
        const auto blended =
            hn::Or(hn::Or(channel(std::integral_constant<int, 0>()), channel(std::integral_constant<int, 1>())),
                   channel(std::integral_constant<int, 2>()));
        const auto fourth = hn::AndNot(hn::Set(words, 0xFFFFFF), pixels);
        hn::StoreU(hn::Or(blended, fourth), words, reinterpret_cast<std::int32_t*>(target));
        doubtful |= laneBits(d, hn::And(hn::Gt(doubt, surely), hn::Not(isExact(i)))) << i;
    });
    return n < 64 ? doubtful & ((std::uint64_t(1) << n) - 1) : doubtful;
}

/// Products of a byte and this number are exact in single, and so are sums of two.
bool isShort(double factor) { return factor * 256 == std::floor(factor * 256); }

// Singles near 255 have steps of 2^-16; up to eight halves of them add up.
constexpr float kRounding = 1.0f / 8192;

std::uint64_t overlayNearlyImpl(const Pixel* from, const Pixel* over, float rest, float part, std::int32_t key, int n,
                                Pixel* to)
{
    const Singles d;
    const Words words;
    const auto a = hn::Set(d, rest), b = hn::Set(d, part);
    const auto skipped = hn::Set(words, key), byte = hn::Set(words, 255), colour = hn::Set(words, 0xFFFFFF);
    const bool exact = isShort(rest) && isShort(part);
    const auto lanes = static_cast<int>(hn::Lanes(words));
    Pixel tail[HWY_MAX_BYTES / sizeof(Pixel)] = {}; // the last of them, of which there may be fewer than a vector has
    std::copy_n(over + n / lanes * lanes, n % lanes, tail);
    const auto blend = [&](auto channels, auto index, int i) HWY_ATTR {
        const Pixel* from = i + lanes <= n ? over + i : tail;
        const auto laid = hn::LoadU(words, reinterpret_cast<const std::int32_t*>(from));
        const auto own = hn::ConvertTo(d, hn::And(hn::ShiftRight<8 * decltype(index)::value>(laid), byte));
        const auto isSkipped = hn::RebindMask(d, hn::Eq(hn::And(laid, colour), skipped));
        return hn::IfThenElse(isSkipped, channels, hn::MulAdd(channels, a, hn::Mul(own, b)));
    };
    return blendNearly(from, kRounding, {exact, exact, exact}, n, to, blend,
                       [&](int) HWY_ATTR { return hn::MaskFromVec(hn::Zero(d)); });
}

std::uint64_t rampNearlyImpl(const RampColours& ramp, const Pixel* from, const float* t, float error, int n, Pixel* to)
{
    const Singles d;
    const auto opacity = hn::Set(d, static_cast<float>(ramp.opacity)), rest = hn::Set(d, static_cast<float>(ramp.rest));
    const bool exact = isShort(ramp.opacity) && isShort(ramp.rest);
    // Beyond the ends of the ramp its colours are exact; a channel that both don't have is so everywhere.
    const auto zero = hn::Zero(d), one = hn::Set(d, exact && error == 0 ? 1.0f : 0.0f);
    const auto isExact = [&](int i) HWY_ATTR {
        const auto at = hn::LoadU(d, t + i);
        return hn::And(hn::Or(hn::Eq(at, zero), hn::Eq(at, one)), hn::Gt(one, zero));
    };
    bool exactChannels[3];
    for (int c = 0; c < 3; ++c)
        exactChannels[c] =
            isShort(ramp.rest) && !ramp.ownFirst && !ramp.ownSecond && ramp.first[c] == 0 && ramp.second[c] == 0;
    const auto blend = [&](auto channels, auto index, int i) HWY_ATTR {
        constexpr int kChannel = decltype(index)::value;
        const auto first = ramp.ownFirst ? channels : hn::Set(d, static_cast<float>(ramp.first[kChannel]));
        const auto second = ramp.ownSecond ? channels : hn::Set(d, static_cast<float>(ramp.second[kChannel]));
        const auto colour = hn::MulAdd(hn::LoadU(d, t + i), hn::Sub(second, first), first);
        return hn::MulAdd(channels, rest, hn::Mul(colour, opacity));
    };
    return blendNearly(from, kRounding + 256 * error, exactChannels, n, to, blend, isExact);
}

float squareSinesNearlyImpl(double frequency, const float* t, int n, float* near)
{
    const Singles d;
    constexpr double kPi = 3.14159265358979323846;
    // sin(pi x) / x by its series in x^2, within 1e-7 for x up to a half.
    constexpr double kSeries[] = {-0.00737043094571435, 0.0821458866111282, -0.599264529320792,
                                  2.55016403987735,     -5.16771278004997,  kPi};
    const auto turns = hn::Set(d, static_cast<float>(frequency / kPi));
    auto most = hn::Zero(d);
    for (int i = 0; i < n; i += static_cast<int>(hn::Lanes(d))) {
        const auto u = hn::Mul(hn::LoadU(d, t + i), turns);
        const auto x = hn::Sub(u, hn::Round(u)), x2 = hn::Mul(x, x);
        auto series = hn::Set(d, static_cast<float>(kSeries[0]));
        for (int j = 1; j < 6; ++j) series = hn::MulAdd(series, x2, hn::Set(d, static_cast<float>(kSeries[j])));
        hn::StoreU(hn::Mul(x2, hn::Mul(series, series)), d, near + i);
        most = hn::Max(most, hn::Abs(u));
    }
    // The square of the sine changes by pi a turn at most; turns are rounded twice, by 2^-24 of them each.
    return 4e-7f * (1 + hn::GetLane(hn::MaxOfLanes(d, most)));
}

} // namespace velara::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace velara {

HWY_EXPORT(overlayNearlyImpl);
HWY_EXPORT(rampNearlyImpl);
HWY_EXPORT(squareSinesNearlyImpl);

std::uint64_t overlayNearly(const Pixel* from, const Pixel* over, float rest, float part, std::int32_t key, int n,
                            Pixel* to)
{
    return HWY_DYNAMIC_DISPATCH(overlayNearlyImpl)(from, over, rest, part, key, n, to);
}

std::uint64_t rampNearly(const RampColours& ramp, const Pixel* from, const float* t, float error, int n, Pixel* to)
{
    return HWY_DYNAMIC_DISPATCH(rampNearlyImpl)(ramp, from, t, error, n, to);
}

float squareSinesNearly(double frequency, const float* t, int n, float* near)
{
    return HWY_DYNAMIC_DISPATCH(squareSinesNearlyImpl)(frequency, t, n, near);
}

} // namespace velara
#endif
