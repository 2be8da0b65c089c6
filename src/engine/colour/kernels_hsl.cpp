#include "engine/colour/kernels_hsl.h"
#include <type_traits>

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "engine/colour/kernels_hsl.cpp"
#include <hwy/foreach_target.h>

#include "engine/colour/colours-inl.h"
#include "pixels/lanes-inl.h"
#include <hwy/highway.h>

HWY_BEFORE_NAMESPACE();
namespace velara::HWY_NAMESPACE {

/// A channel of the result: the rounded value, and its properties. Masks are lanes of all ones.
template <class V> struct Part {
    V rounded, isHigh, isLow, inDoubt;
};

/// kOften: without a branch that would be taken for every other vector.
template <bool kOften> void turn(const SpanOf& s, const HueTurn& hue, const std::int32_t* ends)
{
    // Computed from the bytes, not from their singles, and without going through S: the difference is below a
    // thousandth, and values within two thousandths of a half are looked up or redone. A hue within kSeam of a corner
    // of the circle counts as neither end.
    constexpr float kInDoubt = 0.498f, kSeam = 1e-3f;
    forPixels<std::uint8_t>(s, [&](auto d, int x) VELARA_INLINED {
        const hn::Repartition<std::int32_t, decltype(d)> d32;
        const hn::Repartition<float, decltype(d)> df;
        const auto single = [&](float v) HWY_ATTR { return hn::Set(df, v); };
        const auto bytes = loadBytes(d, s.from + x);
        const auto v = hn::BitCast(d32, bytes);
        const auto b = channel<0>(d32, v), g = channel<1>(d32, v), r = channel<2>(d32, v);
        const auto most = hn::Max(hn::Max(r, g), b), least = hn::Min(hn::Min(r, g), b);
        const auto range = hn::Sub(most, least);
        const auto turned = hn::Add(hueOf(d32, r, g, b, most, range), single(hue.offset));
        const auto h = hn::Sub(turned, hn::IfThenElseZero(hn::Gt(turned, single(5)), single(6)));
        // From the least channel to the greatest.
        const auto span = hn::Mul(hn::ConvertTo(df, range), single(hue.saturation));
        const auto low = hn::Mul(hn::Sub(hn::ConvertTo(df, hn::Add(most, least)), span), single(0.5f));
        const auto lanes = [&](auto mask) HWY_ATTR { return hn::BitCast(d32, hn::VecFromMask(df, mask)); };
        const auto part = [&](float axis) HWY_ATTR {
            const auto away = hn::Abs(hn::Sub(h, single(axis)));
            const auto near = hn::Min(away, hn::Sub(single(6), away)); // the hue circle has six units
            const auto share = hn::Sub(single(2), near);
            const auto held = hn::Min(hn::Max(share, hn::Zero(df)), single(1));
            const auto value = hn::Add(low, hn::Mul(span, held));
            const auto r = rounded(d32, value);
            return Part<decltype(r.whole)>{r.whole, lanes(hn::Gt(share, single(1 + kSeam))),
                                           lanes(hn::Lt(share, single(-kSeam))),
                                           lanes(hn::Gt(r.off, single(kInDoubt)))};
        };
        auto red = part(0), green = part(2), blue = part(4);
        const auto anyDoubt = hn::Or(hn::Or(red.inDoubt, green.inDoubt), blue.inDoubt);
        if (kOften || !hn::AllFalse(d32, hn::MaskFromVec(anyDoubt))) {
            const auto end = loadComputed(d32, ends, hn::Or(hn::ShiftLeft<8>(most), least));
            const auto endHigh = hn::ShiftRight<8>(end), endLow = hn::And(end, hn::Set(d32, 255));
            for (auto* p : {&red, &green, &blue}) {
                p->rounded = hn::IfThenElse(hn::MaskFromVec(p->isHigh), endHigh, p->rounded);
                p->rounded = hn::IfThenElse(hn::MaskFromVec(p->isLow), endLow, p->rounded);
                p->inDoubt = hn::AndNot(hn::Or(p->isHigh, p->isLow), p->inDoubt);
            }
        }
        const auto again = hn::MaskFromVec(hn::Or(hn::Or(red.inDoubt, green.inDoubt), blue.inDoubt));
        return redone(d, withFourthOf(d, bytes, joined(d, d32, blue.rounded, green.rounded, red.rounded)), again,
                      [&](int i) { return hue(s.from[x + i]); });
    });
}

const HslKernels& hslKernelTable()
{
    static constexpr HslKernels table = {turn<false>, turn<true>};
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
