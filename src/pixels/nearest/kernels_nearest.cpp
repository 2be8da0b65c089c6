#include "pixels/nearest/kernels_nearest.h"
#include <cstring>

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "pixels/nearest/kernels_nearest.cpp"
#include <hwy/foreach_target.h>
#include <hwy/highway.h>

HWY_BEFORE_NAMESPACE();
namespace velara::HWY_NAMESPACE {

namespace hn = hwy::HWY_NAMESPACE;

using Words = hn::ScalableTag<std::uint32_t>;
using V = hn::Vec<Words>;
constexpr int kLanes = static_cast<int>(hn::MaxLanes(Words()));

/// The cubes with the numbers at[0], at[4], ..., one a block of 128 bits.
template <class D> HWY_INLINE hn::Vec<D> blocksOf(D d, const NearestCube* cubes, const std::uint32_t* at)
{
    if constexpr (hn::MaxLanes(d) == NearestCube::kFew) {
        return hn::Load(d, reinterpret_cast<const std::uint32_t*>(cubes + *at));
    } else {
        const hn::Half<D> half;
        return hn::Combine(d, blocksOf(half, cubes, at + hn::MaxLanes(half)), blocksOf(half, cubes, at));
    }
}

/// Absolute differences of the channels, squared or not, and summed; a lane per pixel.
template <bool squares> HWY_INLINE V distances(V a, V b)
{
    constexpr Words d;
    const auto byte = [&](V v) HWY_ATTR { return hn::And(v, hn::Set(d, 255u)); };
    if constexpr (squares) {
        const hn::Repartition<std::int16_t, Words> d16;
        const auto outer = [&](V v) HWY_ATTR { return hn::BitCast(d16, hn::And(v, hn::Set(d, 0x00FF00FFu))); };
        const auto middle = [&](V v) HWY_ATTR { return hn::BitCast(d16, byte(hn::ShiftRight<8>(v))); };
        const auto two = hn::Sub(outer(a), outer(b)), one = hn::Sub(middle(a), middle(b));
        const auto square = hn::Mul(one, one); // the square of a byte fits into 16 bits without a sign
#if HWY_ARCH_X86
        const hn::RebindToSigned<Words> d32;
        auto unused = hn::Zero(d32);
        return hn::BitCast(d, hn::ReorderWidenMulAccumulate(d32, two, two, hn::BitCast(d32, square), unused));
#else
        const auto both = hn::BitCast(d, hn::Mul(two, two));
        return hn::Add(hn::BitCast(d, square), hn::Add(hn::And(both, hn::Set(d, 0xFFFFu)), hn::ShiftRight<16>(both)));
#endif
    } else {
        const hn::Repartition<std::uint8_t, Words> d8;
        const auto p = hn::BitCast(d8, a), q = hn::BitCast(d8, b);
        const auto off = hn::BitCast(d, hn::Or(hn::SaturatedSub(p, q), hn::SaturatedSub(q, p)));
        return hn::Add(hn::Add(byte(off), byte(hn::ShiftRight<8>(off))), byte(hn::ShiftRight<16>(off)));
    }
}

/// The nearest candidate of each pixel of a vector, and as bits the pixels whose cubes have some.
struct Found {
    V nearest;
    std::uint64_t bits;
};

template <bool squares> HWY_INLINE Found nearestOf(V pixels, const NearestCube* cubes)
{
    constexpr Words d;
    const hn::RebindToSigned<Words> d32;
    const auto part = [&](auto shift, std::uint32_t mask) HWY_ATTR {
        return hn::And(hn::ShiftRight<decltype(shift)::value>(pixels), hn::Set(d, mask));
    };
    alignas(HWY_MAX_BYTES) std::uint32_t at[kLanes];
    hn::Store(
        hn::Or(hn::Or(part(std::integral_constant<int, 3>(), 31u), part(std::integral_constant<int, 6>(), 31u << 5)),
               part(std::integral_constant<int, 9>(), 31u << 10)),
        d, at);
    // Cubes of four pixels in each block, turned: a vector of first candidates, one of second ones, and so on.
    const auto c0 = blocksOf(d, cubes, at), c1 = blocksOf(d, cubes, at + 1), c2 = blocksOf(d, cubes, at + 2),
               c3 = blocksOf(d, cubes, at + 3);
    const hn::Repartition<std::uint64_t, Words> d64;
    const auto wide = [&](V v) HWY_ATTR { return hn::BitCast(d64, v); };
    const auto low01 = wide(hn::InterleaveLower(d, c0, c1)), low23 = wide(hn::InterleaveLower(d, c2, c3)),
               high01 = wide(hn::InterleaveUpper(d, c0, c1)), high23 = wide(hn::InterleaveUpper(d, c2, c3));
    const V candidates[] = {hn::BitCast(d, hn::InterleaveLower(d64, low01, low23)),
                            hn::BitCast(d, hn::InterleaveUpper(d64, low01, low23)),
                            hn::BitCast(d, hn::InterleaveLower(d64, high01, high23)),
                            hn::BitCast(d, hn::InterleaveUpper(d64, high01, high23))};
    auto nearest = candidates[0];
    auto least = hn::BitCast(d32, distances<squares>(nearest, pixels));
    for (int i = 1; i < NearestCube::kFew; ++i) {
        const auto distance = hn::BitCast(d32, distances<squares>(candidates[i], pixels));
        nearest = hn::IfThenElse(hn::RebindMask(d, hn::Lt(distance, least)), candidates[i], nearest);
        least = hn::Min(least, distance);
    }
    const auto entry = [&](V v) HWY_ATTR { return hn::BitCast(d32, hn::ShiftRight<24>(v)); };
    std::uint8_t bits[8] = {};
    hn::StoreMaskBits(d32, hn::Not(hn::Gt(entry(candidates[0]), entry(candidates[NearestCube::kFew - 1]))), bits);
    std::uint64_t all;
    std::memcpy(&all, bits, sizeof all);
    return {nearest, all & ((std::uint64_t{1} << kLanes) - 1)};
}

/// put(i, pixels, nearest) for each vector; the remainder goes through a buffer.
template <bool squares, class Put>
HWY_INLINE std::uint64_t eachVectorOf(const Pixel* from, int n, const NearestCube* cubes, Put put)
{
    constexpr Words d;
    std::uint64_t known = 0;
    for (int i = 0; i < n; i += kLanes) {
        __builtin_prefetch(from + i + 512);
        alignas(HWY_MAX_BYTES) std::uint32_t rest[kLanes] = {};
        const bool whole = i + kLanes <= n;
        if (!whole) std::memcpy(rest, from + i, sizeof(Pixel) * static_cast<std::size_t>(n - i));
        const auto pixels = hn::LoadU(d, whole ? reinterpret_cast<const std::uint32_t*>(from + i) : rest);
        const Found found = nearestOf<squares>(pixels, cubes);
        known |= found.bits << i;
        put(i, whole ? kLanes : n - i, pixels, found.nearest);
    }
    return known;
}

template <class Put>
HWY_INLINE std::uint64_t eachVector(const Pixel* from, int n, const NearestCube* cubes, bool squares, Put put)
{
    return squares ? eachVectorOf<true>(from, n, cubes, put) : eachVectorOf<false>(from, n, cubes, put);
}

std::uint64_t coloursImpl(const Pixel* from, int n, const NearestCube* cubes, bool squares, Pixel* to)
{
    constexpr Words d;
    return eachVector(from, n, cubes, squares, [&](int i, int count, V pixels, V nearest) HWY_ATTR {
        __builtin_prefetch(to + i + 512, 1);
        const auto three = hn::Set(d, 0x00FFFFFFu);
        const auto colour = hn::Or(hn::And(three, nearest), hn::AndNot(three, pixels));
        if (HWY_LIKELY(count == kLanes)) return hn::StoreU(colour, d, reinterpret_cast<std::uint32_t*>(to + i));
        alignas(HWY_MAX_BYTES) std::uint32_t rest[kLanes];
        hn::Store(colour, d, rest);
        std::memcpy(to + i, rest, sizeof(Pixel) * static_cast<std::size_t>(count));
    });
}

std::uint64_t entriesImpl(const Pixel* from, int n, const NearestCube* cubes, bool squares, std::uint8_t* to)
{
    const hn::RebindToSigned<Words> d32;
    const hn::Rebind<std::uint8_t, Words> d8;
    return eachVector(from, n, cubes, squares, [&](int i, int count, V, V nearest) HWY_ATTR {
        const auto entries = hn::DemoteTo(d8, hn::BitCast(d32, hn::ShiftRight<24>(nearest)));
        if (HWY_LIKELY(count == kLanes)) return hn::StoreU(entries, d8, to + i);
        std::uint8_t rest[kLanes];
        hn::StoreU(entries, d8, rest);
        std::memcpy(to + i, rest, static_cast<std::size_t>(count));
    });
}

const NearestKernels& nearestKernelTable()
{
    static constexpr NearestKernels kernels = {coloursImpl, entriesImpl};
    return kernels;
}

} // namespace velara::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace velara {

HWY_EXPORT(nearestKernelTable);
const NearestKernels& nearestKernels() { return HWY_DYNAMIC_DISPATCH(nearestKernelTable)(); }

} // namespace velara
#endif
