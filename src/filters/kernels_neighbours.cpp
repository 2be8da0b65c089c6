#include "filters/kernels_neighbours.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "filters/kernels_neighbours.cpp"
#include <hwy/foreach_target.h>

#include "filters/pixels-inl.h"
#include <hwy/highway.h>

HWY_BEFORE_NAMESPACE();
namespace velara::HWY_NAMESPACE {

/// 8*c - S8 in signed 16-bit lanes.
template <class D> HWY_INLINE hn::Vec<D> ringDifference(D d, const Pixel* p, std::ptrdiff_t stride)
{
    const auto row = [&](const Pixel* q)
                         HWY_ATTR { return hn::Add(hn::Add(channels(d, q - 1), channels(d, q + 1)), channels(d, q)); };
    const auto c = channels(d, p);
    const auto sides = hn::Add(channels(d, p - 1), channels(d, p + 1));
    const auto eight = hn::Add(hn::Add(row(p - stride), row(p + stride)), sides);
    return hn::Sub(hn::ShiftLeft<3>(c), eight);
}

/// N + S + E + W - 4*c in signed 16-bit lanes.
template <class D> HWY_INLINE hn::Vec<D> crossDifference(D d, const Pixel* p, std::ptrdiff_t stride)
{
    const auto across = hn::Add(channels(d, p - 1), channels(d, p + 1));
    const auto down = hn::Add(channels(d, p - stride), channels(d, p + stride));
    return hn::Sub(hn::Add(across, down), hn::ShiftLeft<2>(channels(d, p)));
}

void weighted(const SpanOf& s, const Weighted& w)
{
    const auto run = [&](auto difference) HWY_ATTR {
        forPixels<std::int16_t>(s.to, s.x0, s.x1, [&](auto d, int x) HWY_ATTR {
            const hn::RebindToUnsigned<decltype(d)> du;
            const Pixel* p = s.from + x;
            const auto n = hn::And(difference(d, p), threeChannels(d));
            const auto u = hn::Add(hn::Mul(n, hn::Set(d, static_cast<std::int16_t>(2 * w.factor))),
                                   hn::Set(d, w.divisor.twiceBias));
            const auto high = hn::MulHigh(hn::BitCast(du, u), hn::Set(du, w.divisor.multiplier));
            const auto q = hn::BitCast(d, hn::ShiftRightSame(high, w.divisor.shift));
            return hn::DemoteTo(Bytes<decltype(d)>(), hn::Add(channels(d, p), hn::Sub(q, hn::Set(d, w.divisor.bias))));
        });
    };
    if (w.neighbours == Neighbours::Ring)
        run([&](auto d, const Pixel* p) HWY_ATTR { return ringDifference(d, p, s.stride); });
    else
        run([&](auto d, const Pixel* p) HWY_ATTR { return crossDifference(d, p, s.stride); });
}

void ring(const SpanOf& s, int radius)
{
    forPixels<std::int16_t>(s.to, s.x0, s.x1, [&](auto d, int x) HWY_ATTR {
        const Bytes<decltype(d)> d8;
        const Pixel* p = s.from + x;
        const auto side = [&](const Pixel* q)
                              HWY_ATTR { return hn::Add(channels(d, q - radius), channels(d, q + radius)); };
        const Pixel *up = p - radius * s.stride, *down = p + radius * s.stride;
        const auto corners = hn::Add(side(up), side(down));
        const auto sum = hn::Add(hn::Add(corners, side(p)), hn::Add(channels(d, up), channels(d, down)));
        return withFourthOf(d8, loadBytes(d8, p), hn::DemoteTo(d8, hn::ShiftRight<3>(sum)));
    });
}

void contour(const SpanOf& s, int thriceLevel, std::uint32_t background)
{
    forPixels<std::int16_t>(s.to, s.x0, s.x1, [&](auto d, int x) HWY_ATTR {
        const Bytes<decltype(d)> d8;
        const hn::Repartition<std::int32_t, decltype(d8)> d32;
        const auto i32 = [&](std::uint32_t v) HWY_ATTR { return hn::Set(d32, static_cast<std::int32_t>(v)); };
        const Pixel* p = s.from + x;
        const auto edges = hn::Add(ringDifference(d, p, s.stride), hn::Set(d, std::int16_t{255}));
        const auto v = hn::BitCast(d32, hn::DemoteTo(d8, edges));
        const auto redBlue = hn::And(v, i32(0x00FF00FF)), green = hn::And(hn::ShiftRight<8>(v), i32(0xFF));
        const auto sum = hn::Add(hn::And(redBlue, i32(0xFF)), hn::Add(hn::ShiftRight<16>(redBlue), green));
        const auto kept = hn::IfThenElse(hn::Lt(sum, hn::Set(d32, thriceLevel)), v, i32(background));
        return withFourthOf(d8, loadBytes(d8, p), hn::BitCast(d8, kept));
    });
}

/// The sum of the three channels of each pixel in both 32-bit halves of its 64 bits; the fourth lane must be zero.
template <class D> HWY_INLINE auto sumOfChannels(D d, hn::Vec<D> v)
{
    const hn::Repartition<std::int32_t, D> d32;
    auto unused = hn::Zero(d32);
    const auto pairs = hn::ReorderWidenMulAccumulate(d32, v, hn::Set(d, std::int16_t{1}), hn::Zero(d32), unused);
    return hn::Add(hn::Add(pairs, unused), hn::Shuffle2301(hn::Add(pairs, unused)));
}

void emboss(const SpanOf& s, const Relieved& r)
{
    forPixels<std::int16_t>(s.to, s.x0, s.x1, [&](auto d, int x) HWY_ATTR {
        const Bytes<decltype(d)> d8;
        const hn::RebindToUnsigned<decltype(d)> du;
        const auto i16 = [&](int v) HWY_ATTR { return hn::Set(d, static_cast<std::int16_t>(v)); };
        const Pixel* p = s.from + x;
        const auto difference = hn::Mul(hn::Sub(channels(d, p), channels(d, p + s.stride + 1)), i16(r.sign));
        const auto n = hn::Add(hn::Mul(hn::Abs(difference), i16(r.weight)), i16(r.half));
        // 52429 / 2^19 is a tenth, exact for all n below 2^16
        const auto tenth = hn::ShiftRight<3>(hn::MulHigh(hn::BitCast(du, n), hn::Set(du, std::uint16_t{52429})));
        auto rounded = hn::BitCast(d, tenth);
        if (r.evenTies) {
            const auto tie = hn::VecFromMask(d, hn::Eq(hn::Mul(rounded, i16(10)), n));
            rounded = hn::Sub(rounded, hn::And(hn::And(tie, rounded), i16(1)));
        }
        const auto negative = hn::BroadcastSignBit(difference);
        const auto v = hn::Abs(hn::Add(hn::Sub(hn::Xor(rounded, negative), negative), i16(128)));
        const auto sum = hn::BitCast(du, sumOfChannels(d, hn::And(v, threeChannels(d))));
        // 21846 / 2^16 is a third, exact for all sums below 2^15
        const auto grey = hn::MulHigh(sum, hn::Set(du, std::uint16_t{21846}));
        const auto all = hn::Or(
            grey, hn::BitCast(du, hn::ShiftLeft<16>(hn::BitCast(hn::Repartition<std::int32_t, decltype(d)>(), grey))));
        return withFourthOf(d8, loadBytes(d8, p), hn::DemoteTo(d8, hn::BitCast(d, all)));
    });
}

void relief(const SpanOf& s)
{
    forPixels<std::int16_t>(s.to, s.x0, s.x1, [&](auto d, int x) HWY_ATTR {
        const Bytes<decltype(d)> d8;
        const hn::Repartition<std::uint32_t, decltype(d8)> d32;
        const Pixel* p = s.from + x;
        const auto twice = [&](std::ptrdiff_t offset) HWY_ATTR { return hn::ShiftLeft<1>(channels(d, p + offset)); };
        const auto once = [&](std::ptrdiff_t offset) HWY_ATTR { return channels(d, p + offset); };
        const auto light = hn::Add(hn::Add(twice(-s.stride - 1), once(-s.stride)), hn::Add(once(-1), once(0)));
        const auto dark = hn::Add(hn::Add(twice(s.stride + 1), once(s.stride)), once(1));
        const auto sum = hn::Sub(light, dark);
        const auto half = hn::ShiftRight<1>(hn::Sub(sum, hn::BroadcastSignBit(sum))); // toward zero
        const auto v = hn::DemoteTo(d8, hn::Add(half, hn::Set(d, std::int16_t{50})));
        const auto blue = hn::BitCast(d8, hn::Set(d32, 0xFFu));
        return hn::Or(hn::And(blue, loadBytes(d8, p)), hn::AndNot(blue, v));
    });
}

void sketch(const SpanOf& s, int threshold, std::uint32_t on, std::uint32_t off, bool offKeeps)
{
    forPixels<std::int16_t>(s.to, s.x0, s.x1, [&](auto d, int x) HWY_ATTR {
        const Bytes<decltype(d)> d8;
        const hn::Repartition<std::int32_t, decltype(d)> d32;
        const hn::Repartition<std::uint32_t, decltype(d8)> dp;
        const Pixel* p = s.from + x;
        const auto e = sumOfChannels(d, hn::And(ringDifference(d, p, s.stride), threeChannels(d)));
        const auto isOff = hn::VecFromMask(d32, hn::Lt(e, hn::Set(d32, threshold)));
        const auto offBytes = hn::DemoteTo(hn::Rebind<std::int8_t, decltype(d)>(), hn::BitCast(d, isOff)); // 0 or -1
        const auto mask = hn::BitCast(dp, offBytes);
        const auto source = hn::BitCast(dp, loadBytes(d8, p));
        const auto otherwise = offKeeps ? source : hn::Set(dp, off);
        const auto colour = hn::Or(hn::And(mask, otherwise), hn::AndNot(mask, hn::Set(dp, on)));
        return withFourthOf(d8, hn::BitCast(d8, source), hn::BitCast(d8, colour));
    });
}

const NeighbourKernels& neighbourKernelTable()
{
    static constexpr NeighbourKernels table = {weighted, ring, contour, emboss, relief, sketch};
    return table;
}

} // namespace velara::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace velara {

HWY_EXPORT(neighbourKernelTable);
const NeighbourKernels& neighbourKernels() { return HWY_DYNAMIC_DISPATCH(neighbourKernelTable)(); }

} // namespace velara
#endif
