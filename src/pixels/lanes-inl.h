// Single lanes: masks as bits, loads from scattered addresses, and the vectors of a run of pixels. For kernel files
// only: included once per target.
#if defined(VELARA_LANES_INL) == defined(HWY_TARGET_TOGGLE)
#ifdef VELARA_LANES_INL
#undef VELARA_LANES_INL
#else
#define VELARA_LANES_INL
#endif

#include "pixels/Bits.h"
#include <array>
#include <cstdint>
#include <cstring>
#include <hwy/highway.h>

HWY_BEFORE_NAMESPACE();
namespace velara::HWY_NAMESPACE {

namespace hn = hwy::HWY_NAMESPACE;

/// The lanes of mask as bits, lane 0 lowest.
template <class D, class M> HWY_INLINE std::uint64_t laneBits(D d, M mask)
{
    alignas(8) std::uint8_t bits[8] = {};
    hn::StoreMaskBits(d, mask, bits);
    std::uint64_t all;
    std::memcpy(&all, bits, sizeof all);
    return all & ((std::uint64_t(1) << hn::Lanes(d)) - 1);
}

/// first, first + 1, ... The library's own function writes the lanes one by one and waits for them.
template <class D, class T = hn::TFromD<D>> HWY_INLINE hn::Vec<D> countedFrom(D d, T first)
{
    static constexpr auto kSteps = [] {
        std::array<T, HWY_MAX_BYTES / sizeof(T)> steps{};
        for (std::size_t i = 0; i < steps.size(); ++i) steps[i] = static_cast<T>(i);
        return steps;
    }();
    return hn::Add(hn::LoadU(d, kSteps.data()), hn::Set(d, first));
}

/// Calls body(from, to, i) for whole vectors of `lanes` pixels; the remainder goes through a buffer.
template <class Body> void eachVector(int lanes, const Pixel* from, int n, Pixel* to, Body&& body)
{
    int i = 0;
    for (; i + lanes <= n; i += lanes) body(from + i, to + i, i);
    if (i == n) return;
    Pixel tail[HWY_MAX_BYTES / sizeof(Pixel)] = {};
    std::memcpy(tail, from + i, sizeof(Pixel) * static_cast<std::size_t>(n - i));
    body(tail, tail, i);
    std::memcpy(to + i, tail, sizeof(Pixel) * static_cast<std::size_t>(n - i));
}

/// The words at the n indices (n even), in pairs: half as many stores, and no gather instruction, which is slower than
/// scalar loads on the machines measured.
HWY_INLINE void loadWords(const std::int32_t* base, const std::int32_t* indices, int n, std::int32_t* found)
{
    for (int i = 0; i < n; i += 2) {
        std::uint64_t two;
        std::memcpy(&two, indices + i, sizeof two);
        const auto word = [&](std::uint64_t index) {
            return static_cast<std::uint32_t>(base[static_cast<std::int32_t>(index)]);
        };
        const std::uint64_t pair = word(two & 0xFFFFFFFF) | std::uint64_t(word(two >> 32)) << 32;
        std::memcpy(found + i, &pair, sizeof pair);
    }
}

/// The elements that begin at the words base[indices[0]], base[indices[1]], ..., one per lane. Put together in
/// registers: half the time of copies through memory, which a vector load has to wait for, and of the gather
/// instruction.
template <class D> HWY_INLINE hn::Vec<D> loadScattered(D d, const std::int32_t* base, const std::int32_t* indices)
{
    if constexpr (hn::MaxLanes(D()) == 1) {
        return hn::LoadU(d, reinterpret_cast<const hn::TFromD<D>*>(base + indices[0]));
    } else {
        const hn::Half<D> half;
        return hn::Combine(d, loadScattered(half, base, indices + hn::Lanes(half)), loadScattered(half, base, indices));
    }
}

/// The words base[index] of one lane, or of four or more: for indices that have just been computed, which would be
/// waited for if they went through memory.
template <class D, class V> HWY_INLINE hn::Vec<D> loadComputed(D d, const std::int32_t* base, V indices)
{
    const hn::Half<D> half;
    if constexpr (hn::MaxLanes(D()) == 1) {
        return hn::LoadU(d, base + hn::GetLane(indices));
    } else if constexpr (hn::MaxLanes(D()) == 4) {
        const auto pairs = hn::BitCast(hn::FixedTag<std::int64_t, 2>(), indices);
        const std::int64_t first = hn::GetLane(pairs), last = hn::ExtractLane(pairs, 1);
        const auto word = [&](std::int64_t index)
                              HWY_ATTR { return hn::LoadU(hn::FixedTag<std::int32_t, 1>(), base + index); };
        const auto two = [&](std::int64_t both) HWY_ATTR {
            return hn::Combine(half, word(both >> 32), word(static_cast<std::int32_t>(both)));
        };
        return hn::Combine(d, two(last), two(first));
    } else {
        return hn::Combine(d, loadComputed(half, base, hn::UpperHalf(half, indices)),
                           loadComputed(half, base, hn::LowerHalf(half, indices)));
    }
}

/// base[index] of each lane, of 4 bytes. By scalar loads, which take half the time of the gather instruction on the
/// machines measured.
template <class D, class T, class V> HWY_INLINE hn::Vec<D> loadEach(D d, const T* base, V index)
{
    alignas(HWY_MAX_BYTES) std::int32_t at[HWY_MAX_BYTES / 4];
    alignas(HWY_MAX_BYTES) T found[HWY_MAX_BYTES / 4];
    hn::Store(index, hn::RebindToSigned<D>(), at);
    for (std::size_t lane = 0; lane < hn::Lanes(d); ++lane) found[lane] = base[at[lane]];
    return hn::Load(d, found);
}

} // namespace velara::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#endif
