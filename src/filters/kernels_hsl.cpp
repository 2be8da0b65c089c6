#include "filters/kernels_hsl.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "filters/kernels_hsl.cpp"
#include <hwy/foreach_target.h>

#include "filters/colours-inl.h"
#include <hwy/highway.h>

HWY_BEFORE_NAMESPACE();
namespace velara::HWY_NAMESPACE {

/// How much of a channel a hue holds, 0..1, at a distance of `away` around the circle of six.
template <class D, class V = hn::Vec<D>> HWY_INLINE V shareOfHue(D df, V away)
{
    const auto near = hn::Min(away, hn::Sub(hn::Set(df, 6), away));
    return hn::Min(hn::Max(hn::Sub(hn::Set(df, 2), near), hn::Zero(df)), hn::Set(df, 1));
}

void turn(const SpanOf& s, const HueTurn& hue)
{
    // Over the bytes instead of their singles, and without the detour over S: the difference stays below a thousandth,
    // and what is nearer than two to a half is redone.
    constexpr float kInDoubt = 0.498f;
    forPixels<std::uint8_t>(s, [&](auto d, int x) HWY_ATTR {
        const hn::Repartition<std::int32_t, decltype(d)> d32;
        const hn::Repartition<float, decltype(d)> df;
        const auto bytes = loadBytes(d, s.from + x);
        const auto v = hn::BitCast(d32, bytes);
        const auto b = channel<0>(d32, v), g = channel<1>(d32, v), r = channel<2>(d32, v);
        const auto most = hn::Max(hn::Max(r, g), b), least = hn::Min(hn::Min(r, g), b);
        const auto range = hn::Sub(most, least);
        const auto isRed = hn::Eq(most, r), isGreen = hn::Eq(most, g);
        const auto lead = hn::IfThenElse(isRed, hn::Sub(g, b), hn::IfThenElse(isGreen, hn::Sub(b, r), hn::Sub(r, g)));
        const auto base = hn::IfThenZeroElse(isRed, hn::IfThenElse(isGreen, hn::Set(d32, 2), hn::Set(d32, 4)));
        const auto wide = hn::ConvertTo(df, hn::Max(range, hn::Set(d32, 1)));
        const auto sum = hn::Add(hn::ConvertTo(df, base), hn::Set(df, hue.offset));
        const auto turned = hn::Add(hn::Div(hn::ConvertTo(df, lead), wide), sum);
        const auto h = hn::Sub(turned, hn::IfThenElseZero(hn::Gt(turned, hn::Set(df, 5)), hn::Set(df, 6)));
        const auto span = hn::Mul(hn::ConvertTo(df, range), hn::Set(df, hue.saturation));
        const auto low = hn::Mul(hn::Sub(hn::ConvertTo(df, hn::Add(most, least)), span), hn::Set(df, 0.5f));
        auto doubt = hn::Zero(df);
        const auto part = [&](float axis) HWY_ATTR {
            const auto share = shareOfHue(df, hn::Abs(hn::Sub(h, hn::Set(df, axis))));
            const auto value = hn::Add(low, hn::Mul(span, share));
            const auto rounded = hn::NearestInt(value);
            doubt = hn::Max(doubt, hn::Abs(hn::Sub(value, hn::ConvertTo(df, rounded))));
            return rounded;
        };
        const auto red = part(0), green = part(2), blue = part(4);
        const auto again = hn::RebindMask(d32, hn::Gt(doubt, hn::Set(df, kInDoubt)));
        return redone(d, withFourthOf(d, bytes, joined(d, d32, blue, green, red)), again,
                      [&](int i) { return hue(s.from[x + i]); });
    });
}

const HslKernels& hslKernelTable()
{
    static constexpr HslKernels table = {turn};
    return table;
}

} // namespace velara::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace velara {

HWY_EXPORT(hslKernelTable);
const HslKernels& hslKernels() { return HWY_DYNAMIC_DISPATCH(hslKernelTable)(); }

} // namespace velara
#endif
