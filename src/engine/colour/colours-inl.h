// Channels of pixels as 32-bit lanes, one pixel a lane. For kernel files only: included once per target.
#if defined(VELARA_COLOURS_INL) == defined(HWY_TARGET_TOGGLE)
#ifdef VELARA_COLOURS_INL
#undef VELARA_COLOURS_INL
#else
#define VELARA_COLOURS_INL
#endif

#include "engine/colour/kernels_colour.h"
#include "engine/pixels-inl.h"
#include <hwy/highway.h>
#include <type_traits>

HWY_BEFORE_NAMESPACE();
namespace velara::HWY_NAMESPACE {

/// Channel c of each pixel, 0..255.
template <int c, class D, class V = hn::Vec<D>> HWY_INLINE V channel(D d32, V pixels)
{
    return hn::And(hn::ShiftRight<8 * c>(pixels), hn::Set(d32, 255));
}

/// c0+c1+c2.
template <class D, class V = hn::Vec<D>> HWY_INLINE V sumOf(D d32, V pixels)
{
    return hn::Add(hn::Add(channel<0>(d32, pixels), channel<1>(d32, pixels)), channel<2>(d32, pixels));
}

/// Channels 0 and 2 of each pixel, in the halves of its lane.
template <class D, class V = hn::Vec<D>> HWY_INLINE V outerChannels(D d32, V pixels)
{
    return hn::And(pixels, hn::Set(d32, 0x00FF00FF));
}

template <class D, class V = hn::Vec<D>> HWY_INLINE V weighed(D d32, V pixels, const Weights& w)
{
    const hn::Repartition<std::int16_t, D> d16;
    const auto plus = [&](V channels, int low, int high, V sum) HWY_ATTR {
        return plusPairs(d32, hn::BitCast(d16, channels), hn::BitCast(d16, hn::Set(d32, low | high << 16)), sum);
    };
    return plus(channel<1>(d32, pixels), w.c1, 0, plus(outerChannels(d32, pixels), w.c0, w.c2, hn::Zero(d32)));
}

/// The channels, 0..255 each, as bytes; the fourth is 0.
template <class D8, class D, class V> HWY_INLINE hn::Vec<D8> joined(D8 d8, D, V c0, V c1, V c2)
{
    return hn::BitCast(d8, hn::Or(hn::Or(c0, hn::ShiftLeft<8>(c1)), hn::ShiftLeft<16>(c2)));
}

/// Values within 2^22 of 0 rounded, halves to even, and how far each is off. By an addition that leaves no fraction: a
/// conversion, and the one back, take three times as many instructions.
template <class V, class Whole> struct RoundedValue {
    Whole whole;
    V off;
};
template <class D, class V> HWY_INLINE auto rounded(D d32, V value)
{
    const hn::Rebind<float, D> df;
    const auto noFraction = hn::Set(df, 0x1.8p23f);
    const auto sum = hn::Add(value, noFraction);
    const auto whole = hn::Sub(hn::BitCast(d32, sum), hn::BitCast(d32, noFraction));
    const auto off = hn::Abs(hn::Sub(value, hn::Sub(sum, noFraction)));
    return RoundedValue<std::remove_const_t<decltype(off)>, std::remove_const_t<decltype(whole)>>{whole, off};
}

/// The hue of mHSLRGB in single precision: the error is less than 1e-4. most and range are those of the three channels.
template <class D, class V> HWY_INLINE auto hueOf(D d32, V r, V g, V b, V most, V range)
{
    const hn::Rebind<float, D> df;
    const auto isRed = hn::Eq(most, r), isGreen = hn::Eq(most, g);
    const auto lead = hn::IfThenElse(isRed, hn::Sub(g, b), hn::IfThenElse(isGreen, hn::Sub(b, r), hn::Sub(r, g)));
    const auto base = hn::IfThenZeroElse(isRed, hn::IfThenElse(isGreen, hn::Set(d32, 2), hn::Set(d32, 4)));
    const auto wide = hn::ConvertTo(df, hn::Max(range, hn::Set(d32, 1)));
    // grey has no leading channel; red takes precedence
    return hn::Add(hn::Div(hn::ConvertTo(df, lead), wide), hn::ConvertTo(df, base));
}

/// The pixels of bytes, with those under the mask replaced by pixel(lane): for the few whose vector result is
/// uncertain.
template <class D8, class Mask, class Function>
HWY_INLINE hn::Vec<D8> redone(D8 d8, hn::Vec<D8> bytes, Mask mask, Function pixel)
{
    const hn::Repartition<std::int32_t, D8> d32;
    if (HWY_LIKELY(hn::AllFalse(d32, mask))) return bytes;
    constexpr std::size_t kMost = 16;
    HWY_ALIGN Pixel pixels[kMost];
    HWY_ALIGN std::int32_t doubtful[kMost];
    hn::StoreU(bytes, d8, pixels[0].c);
    hn::StoreU(hn::VecFromMask(d32, mask), d32, doubtful);
    for (std::size_t i = 0; i < hn::Lanes(d32); ++i)
        if (doubtful[i]) pixels[i] = pixel(static_cast<int>(i));
    return hn::LoadU(d8, pixels[0].c);
}

} // namespace velara::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#endif
