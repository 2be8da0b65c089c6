#include "engine/neighbours/kernels_mask.h"
#include <algorithm>
#include <bit>
#include <cstdlib>

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "engine/neighbours/kernels_mask.cpp"
#include <hwy/foreach_target.h>

#include "engine/pixels-inl.h"
#include <hwy/highway.h>

HWY_BEFORE_NAMESPACE();
namespace velara::HWY_NAMESPACE {

using ByteTag = hn::ScalableTag<std::uint8_t>;
using ShortTag = hn::Repartition<std::int16_t, ByteTag>;
using IntTag = hn::Repartition<std::int32_t, ByteTag>;
using FloatTag = hn::RebindToFloat<IntTag>;
using Shorts = hn::Vec<ShortTag>;
using Ints = hn::Vec<IntTag>;

/// The sums of one half of the channels. Interleaving, pairwise sums and demotion work within 128 bits each, so
/// their orders cancel.
struct Sums {
    Ints lower, upper;
    HWY_INLINE void add(Shorts a, Shorts b, Shorts factors)
    {
        lower = plusPairs(IntTag(), hn::InterleaveLower(ShortTag(), a, b), factors, lower);
        upper = plusPairs(IntTag(), hn::InterleaveUpper(ShortTag(), a, b), factors, upper);
    }
};

/// sum \ divisor: with a half added away from zero, no quotient is closer to an integer than the rounding error.
HWY_INLINE Ints divided(Ints sum, hn::Vec<FloatTag> reciprocal)
{
    const FloatTag d;
    const auto v = hn::ConvertTo(d, sum);
    return hn::ConvertTo(IntTag(), hn::Mul(hn::Add(v, hn::CopySignToAbs(hn::Set(d, 0.5f), v)), reciprocal));
}

HWY_INLINE Shorts finished(const Sums& sums, hn::Vec<FloatTag> reciprocal, Ints add)
{
    const auto v = hn::ReorderDemote2To(ShortTag(), hn::Add(divided(sums.lower, reciprocal), add),
                                        hn::Add(divided(sums.upper, reciprocal), add));
    return hn::Min(hn::Max(v, hn::Zero(ShortTag())), hn::Set(ShortTag(), std::int16_t{255}));
}

/// Sums that fit into 16 bits: both channels of a lane are multiplied at once, modulo 2^16, and told apart at the end.
/// The divisor as in ShortDivider, with no bias: the magnitude is divided.
void shortSums(const SpanOf& s, const MaskSum& sum)
{
    const std::vector<MaskTap> taps = sum.taps; // the stores cannot alias them
    const auto divisor = static_cast<std::uint32_t>(std::min<std::int64_t>(std::abs(sum.divisor), 1 << 15));
    const int shift = std::bit_width(divisor - 1);
    const auto multiplier = static_cast<std::uint16_t>(((1u << (15 + shift)) + divisor - 1) / divisor);
    const auto two = [&](int low, int high) {
        return (low & 0xFFFF) | static_cast<std::int32_t>(static_cast<std::uint32_t>(high) << 16);
    };
    const std::int32_t evenAdd = two(sum.add[0], sum.add[2]), oddAdd = two(sum.add[1], 0);
    forPixels<std::uint8_t>(s, [&](auto d8, int x) HWY_ATTR {
        const hn::Repartition<std::int16_t, decltype(d8)> d;
        const hn::RebindToUnsigned<decltype(d)> du;
        const hn::Repartition<std::int32_t, decltype(d8)> d32;
        using V = hn::Vec<decltype(d)>;
        const Pixel* p = s.from + x;
        Taps<V> total{hn::Zero(d), hn::Zero(d)};
        for (const MaskTap& t : taps) {
            const auto factor = hn::Set(d, static_cast<std::int16_t>(t.factor));
            const auto v = tap(d, p + t.offset);
            total = total + Taps<V>{hn::Mul(v.whole, factor), hn::Mul(v.odd, factor)};
        }
        const auto flip = hn::Set(d, static_cast<std::int16_t>(sum.divisor < 0 ? -1 : 0));
        const auto finish = [&](V v, std::int32_t add) HWY_ATTR {
            const auto twice = hn::BitCast(du, hn::ShiftLeft<1>(hn::Abs(v)));
            const auto high = hn::MulHigh(twice, hn::Set(du, multiplier));
            const auto quotient = hn::BitCast(d, hn::ShiftRightSame(high, shift));
            const auto sign = hn::Xor(hn::BroadcastSignBit(v), flip);
            return hn::SaturatedAdd(hn::Sub(hn::Xor(quotient, sign), sign), hn::BitCast(d, hn::Set(d32, add)));
        };
        const auto sums = total.split();
        const Halves<V> v{finish(sums.even, evenAdd), finish(sums.odd, oddAdd)};
        return withFourthOf(d8, loadBytes(d8, p), clampedToBytes(d8, v));
    });
}

int maskPixels(SpanOf s, const MaskSum& sum)
{
    if (sum.isShort()) {
        shortSums(s, sum);
        return s.x1;
    }
    struct Pair {
        std::ptrdiff_t first, second;
        std::int32_t factors; // 16 bits each
    };
    std::vector<Pair> list;
    for (std::size_t i = 0; i < sum.taps.size(); i += 2) {
        const MaskTap a = sum.taps[i], b = i + 1 < sum.taps.size() ? sum.taps[i + 1] : MaskTap{a.offset, 0};
        list.push_back({a.offset, b.offset, (a.factor & 0xFFFF) | static_cast<std::int32_t>(b.factor) * 0x10000});
    }
    const Pair *const first = list.data(), *const last = first + list.size();
    const auto reciprocal = hn::Set(FloatTag(), 1.0f / static_cast<float>(sum.divisor));
    alignas(16) const std::int32_t evenAdd[4] = {sum.add[0], sum.add[2], sum.add[0], sum.add[2]};
    alignas(16) const std::int32_t oddAdd[4] = {sum.add[1], 0, sum.add[1], 0};
    const auto addToEven = hn::LoadDup128(IntTag(), evenAdd), addToOdd = hn::LoadDup128(IntTag(), oddAdd);
    constexpr ByteTag d8;
    const int n = static_cast<int>(hn::Lanes(d8)) / 4;
    int x = s.x0;
    for (; x + n <= s.x1; x += n) {
        const Pixel* p = s.from + x;
        const auto zero = hn::Zero(IntTag());
        Sums even{zero, zero}, odd{zero, zero};
        for (const Pair* pair = first; pair != last; ++pair) {
            const auto a = tap(ShortTag(), p + pair->first), b = tap(ShortTag(), p + pair->second);
            const auto factors = hn::BitCast(ShortTag(), hn::Set(IntTag(), pair->factors));
            even.add(a.split().even, b.split().even, factors);
            odd.add(a.odd, b.odd, factors);
        }
        const Halves<Shorts> v{finished(even, reciprocal, addToEven), finished(odd, reciprocal, addToOdd)};
        hn::StoreU(withFourthOf(d8, loadBytes(d8, p), joined(d8, v)), d8, reinterpret_cast<std::uint8_t*>(s.to + x));
    }
    return x;
}

} // namespace velara::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace velara {

HWY_EXPORT(maskPixels);
int maskPixels(SpanOf s, const MaskSum& sum) { return HWY_DYNAMIC_DISPATCH(maskPixels)(s, sum); }

} // namespace velara
#endif
