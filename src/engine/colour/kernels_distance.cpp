#include "engine/colour/kernels_distance.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "engine/colour/kernels_distance.cpp"
#include <hwy/foreach_target.h>

#include "engine/colour/colours-inl.h"
#include <hwy/highway.h>

HWY_BEFORE_NAMESPACE();
namespace velara::HWY_NAMESPACE {

/// d2 of each pixel.
template <class D, class V = hn::Vec<D>> HWY_INLINE V distance(D d32, V pixels, std::uint32_t reference)
{
    const hn::Repartition<std::int16_t, D> d16;
    const V from = hn::Set(d32, static_cast<std::int32_t>(reference));
    const auto less = [&](V a, V b) HWY_ATTR { return hn::Sub(hn::BitCast(d16, a), hn::BitCast(d16, b)); };
    const auto two = less(outerChannels(d32, pixels), outerChannels(d32, from));
    const auto one = less(channel<1>(d32, pixels), channel<1>(d32, from));
    return plusPairs(d32, two, two, hn::BitCast(d32, hn::Mul(one, one))); // the one square in all of 16 bits
}

/// Lanes with d2 <= limit.
template <class D, class V = hn::Vec<D>> HWY_INLINE auto isNear(D d32, V d2, const Near& near)
{
    return hn::Not(hn::Gt(d2, hn::Set(d32, near.limit)));
}

void isolate(const SpanOf& s, const Near& near, std::uint32_t fill)
{
    forPixels<std::uint8_t>(s, [&](auto d, int x) HWY_ATTR {
        const hn::Repartition<std::int32_t, decltype(d)> d32;
        const auto source = hn::BitCast(d32, loadBytes(d, s.from + x));
        const auto colour = hn::Or(hn::Set(d32, static_cast<std::int32_t>(fill)),
                                   hn::And(source, hn::Set(d32, static_cast<std::int32_t>(kFourthByte))));
        const auto stays = isNear(d32, distance(d32, source, near.reference), near);
        return hn::BitCast(d, hn::IfThenElse(stays, source, colour));
    });
}

/// Whether hue and saturation are within reach, and the lanes too close to the border for single precision to decide.
template <class M> struct Reach {
    M within, inDoubt;
};
template <class D, class V = hn::Vec<D>> HWY_INLINE auto reachOf(D d32, V pixels, const Blend& blend)
{
    constexpr float kNear = 1e-3f;
    const hn::Rebind<float, D> df;
    const auto b = channel<0>(d32, pixels), g = channel<1>(d32, pixels), r = channel<2>(d32, pixels);
    const auto most = hn::Max(hn::Max(r, g), b), least = hn::Min(hn::Min(r, g), b);
    const auto range = hn::Sub(most, least), sum = hn::Add(most, least);
    const auto hue = hueOf(d32, r, g, b, most, range);
    const auto whole = hn::Max(hn::Min(sum, hn::Sub(hn::Set(d32, 510), sum)), hn::Set(d32, 1));
    const auto saturation = hn::Div(hn::ConvertTo(df, range), hn::ConvertTo(df, whole));
    const auto beyond = [&](auto v, float wanted, float reach)
                            HWY_ATTR { return hn::Sub(hn::Abs(hn::Sub(v, hn::Set(df, wanted))), hn::Set(df, reach)); };
    const auto out =
        hn::Max(beyond(hue, blend.hue, blend.hueReach), beyond(saturation, blend.saturation, blend.satReach));
    const auto within = hn::RebindMask(d32, hn::Not(hn::Gt(out, hn::Zero(df))));
    const auto doubt = hn::RebindMask(d32, hn::Lt(hn::Abs(out), hn::Set(df, kNear)));
    return Reach<std::remove_const_t<decltype(within)>>{within, doubt};
}

void blend(const SpanOf& s, const Blend& b)
{
    // Singles are off by less than 6.2e-5: k by 1.5e-7, times 255, a rounding of the product and of the sum by 2^-17
    // each, and k as a single. Results within 1e-4 of a half are redone.
    constexpr float kInDoubt = 0.4999f;
    const float perDistance = 1.0f / static_cast<float>(b.range);
    forPixels<std::uint8_t>(s, [&](auto d, int x) VELARA_INLINED {
        const hn::Repartition<std::int32_t, decltype(d)> d32;
        const hn::Repartition<std::uint32_t, decltype(d)> du;
        const hn::Repartition<float, decltype(d)> df;
        const auto bytes = loadBytes(d, s.from + x);
        const auto source = hn::BitCast(d32, bytes);
        const auto d2 = distance(d32, source, b.near.reference);
        auto inside = isNear(d32, d2, b.near);
        if (b.lumTolerance < Blend::kAnyLum) {
            const hn::Repartition<std::uint16_t, decltype(d)> d16;
            const auto third = hn::BitCast(d32, hn::MulHigh(hn::BitCast(d16, sumOf(d32, source)), hn::Set(d16, 21846)));
            const auto off = hn::Abs(hn::Sub(third, hn::Set(d32, b.lum)));
            inside = hn::And(inside, hn::Not(hn::Gt(off, hn::Set(d32, b.lumTolerance))));
        }
        if (hn::AllFalse(d32, inside)) return bytes;
        auto unsure = hn::MaskFromVec(hn::Zero(d32));
        if (b.byHue) {
            const auto reach = reachOf(d32, source, b);
            unsure = hn::And(inside, reach.inDoubt);
            inside = hn::And(inside, reach.within);
        }
        auto aim = hn::BitCast(d32, hn::Set(du, b.to));
        if (!b.fixed)
            aim = hn::BitCast(d32, hn::SaturatedSub(hn::SaturatedAdd(bytes, hn::BitCast(d, hn::Set(du, b.plus))),
                                                    hn::BitCast(d, hn::Set(du, b.minus))));
        const auto k = hn::Sub(hn::Set(df, 1), hn::Mul(hn::ConvertTo(df, d2), hn::Set(df, perDistance)));
        auto doubt = hn::Zero(df);
        const auto drawn = [&](auto c, auto t) HWY_ATTR {
            const auto v = hn::Add(hn::Mul(hn::ConvertTo(df, hn::Sub(t, c)), k), hn::ConvertTo(df, c));
            const auto r = rounded(d32, v);
            doubt = hn::Max(doubt, r.off);
            return r.whole;
        };
        const auto c0 = drawn(channel<0>(d32, source), channel<0>(d32, aim));
        const auto c1 = drawn(channel<1>(d32, source), channel<1>(d32, aim));
        const auto c2 = drawn(channel<2>(d32, source), channel<2>(d32, aim));
        const auto colour = hn::BitCast(d32, withFourthOf(d, bytes, joined(d, d32, c0, c1, c2)));
        const auto result = hn::BitCast(d, hn::IfThenElse(inside, colour, source));
        const auto halves = hn::And(inside, hn::RebindMask(d32, hn::Gt(doubt, hn::Set(df, kInDoubt))));
        const auto again = hn::Or(halves, unsure);
        return redone(d, result, again, [&](int i) { return b(s.from[x + i]); });
    });
}

const DistanceKernels& distanceKernelTable()
{
    static constexpr DistanceKernels table = {isolate, blend};
    return table;
}

} // namespace velara::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace velara {

HWY_EXPORT(distanceKernelTable);
const DistanceKernels& distanceKernels() { return HWY_DYNAMIC_DISPATCH(distanceKernelTable)(); }

} // namespace velara
#endif
