// Pixels as vectors, and the loop over the pixels of a span. For kernel files only: included once per target.
#if defined(VELARA_PIXELS_INL) == defined(HWY_TARGET_TOGGLE)
#ifdef VELARA_PIXELS_INL
#undef VELARA_PIXELS_INL
#else
#define VELARA_PIXELS_INL
#endif

#include "engine/SpanOf.h"
#include <hwy/highway.h>

/// After the parameters of a large body of forPixels: forces inlining, since a called body would set up all its
/// constants for each vector.
#define VELARA_INLINED __attribute__((always_inline)) HWY_ATTR

HWY_BEFORE_NAMESPACE();
namespace velara::HWY_NAMESPACE {

namespace hn = hwy::HWY_NAMESPACE;

/// The byte tag with as many lanes as d.
template <class D> using Bytes = hn::Rebind<std::uint8_t, D>;

template <class D> HWY_INLINE hn::Vec<D> loadBytes(D d, const Pixel* p)
{
    return hn::LoadU(d, reinterpret_cast<const std::uint8_t*>(p));
}

/// The channels of the pixels from p on, one per lane of d.
template <class D> HWY_INLINE hn::Vec<D> channels(D d, const Pixel* p)
{
    return hn::PromoteTo(d, loadBytes(Bytes<D>(), p));
}

/// The channels of pixels in signed 16-bit lanes: even holds blue and red, odd green and the fourth byte of each.
template <class V> struct Halves {
    V even, odd;
};

template <class V, class F> HWY_INLINE Halves<V> each(const Halves<V>& h, F f) { return {f(h.even), f(h.odd)}; }

template <class V, class F> HWY_INLINE Halves<V> each(const Halves<V>& a, const Halves<V>& b, F f)
{
    return {f(a.even, b.even), f(a.odd, b.odd)};
}

/// A weighted sum of pixels, not yet split into lanes: whole = even + 256 * odd, modulo 2^16.
template <class V> struct Taps {
    V whole, odd;
    friend HWY_INLINE Taps operator+(const Taps& a, const Taps& b)
    {
        return {hn::Add(a.whole, b.whole), hn::Add(a.odd, b.odd)};
    }
    friend HWY_INLINE Taps operator-(const Taps& a, const Taps& b)
    {
        return {hn::Sub(a.whole, b.whole), hn::Sub(a.odd, b.odd)};
    }
    template <int kBits> HWY_INLINE Taps times() const
    {
        return {hn::ShiftLeft<kBits>(whole), hn::ShiftLeft<kBits>(odd)};
    }
    HWY_INLINE Halves<V> split() const { return {hn::Sub(whole, hn::ShiftLeft<8>(odd)), odd}; }
};

/// The pixels from p on; d has signed 16-bit lanes, two per pixel.
template <class D> HWY_INLINE Taps<hn::Vec<D>> tap(D d, const Pixel* p)
{
    const hn::RebindToUnsigned<D> du;
    const auto v = hn::BitCast(du, loadBytes(hn::Repartition<std::uint8_t, D>(), p));
    return {hn::BitCast(d, v), hn::BitCast(d, hn::ShiftRight<8>(v))};
}

/// Back to bytes; all lanes must be within 0..255.
template <class D8, class V> HWY_INLINE hn::Vec<D8> joined(D8 d8, const Halves<V>& h)
{
    return hn::BitCast(d8, hn::Or(h.even, hn::ShiftLeft<8>(h.odd)));
}

/// Back to bytes, clamped to 0..255.
template <class D8, class V> HWY_INLINE hn::Vec<D8> clampedToBytes(D8 d8, const Halves<V>& h)
{
    const hn::Repartition<std::int16_t, D8> d;
    return joined(
        d8, each(h, [&](V v) HWY_ATTR { return hn::Min(hn::Max(v, hn::Zero(d)), hn::Set(d, std::int16_t{255})); }));
}

/// sum, with the products of two neighbouring 16-bit lanes added to each of its 32-bit lanes.
template <class D32, class V16, class V32> HWY_INLINE V32 plusPairs(D32 d, V16 a, V16 b, V32 sum)
{
#if HWY_ARCH_X86
    V32 unused = hn::Zero(d);
    return hn::ReorderWidenMulAccumulate(d, a, b, sum, unused); // elsewhere its order is another one
#else
    const auto even = [&](V16 v) HWY_ATTR { return hn::ShiftRight<16>(hn::ShiftLeft<16>(hn::BitCast(d, v))); };
    const auto odd = [&](V16 v) HWY_ATTR { return hn::ShiftRight<16>(hn::BitCast(d, v)); };
    return hn::Add(sum, hn::Add(hn::Mul(even(a), even(b)), hn::Mul(odd(a), odd(b))));
#endif
}

/// The sum of the three channels of each pixel, a 32-bit lane per pixel.
template <class D, class V> HWY_INLINE auto sumOfChannels(D d, const Halves<V>& h)
{
    const hn::Repartition<std::int32_t, D> d32;
    const auto redBlue = plusPairs(d32, h.even, hn::Set(d, std::int16_t{1}), hn::Zero(d32));
    return plusPairs(d32, h.odd, hn::BitCast(d, hn::Set(d32, 1)), redBlue);
}

/// colour with the fourth bytes of source.
template <class D, class V = hn::Vec<D>> HWY_INLINE V withFourthOf(D d, V source, V colour)
{
    const auto three = hn::BitCast(d, hn::Set(hn::Repartition<std::uint32_t, D>(), 0x00FFFFFFu));
    return hn::Or(hn::And(three, colour), hn::AndNot(three, source));
}

/// Spans of at least this many pixels use non-temporal stores: such pictures do not fit into the cache. Whole cache
/// lines only, as partial lines cost more than they save.
constexpr int kStreamFrom = 1024;
constexpr std::uintptr_t kCacheLine = 64;
constexpr int kLinePixels = 16;

/// For bodies that load more neighbours than they compute with: a longer vector lies in two cache lines wherever it
/// doesn't begin with one, and takes twice as long to load.
constexpr std::size_t kHalfALine = 32;

/// Writes the pixels of the span. body(d, x) returns the bytes of the pixels from x on, four lanes of d per pixel; d
/// has lanes of type T, a full vector or, at the ends of the span, four pixels or one. The row `below` is prefetched:
/// the one after the lowest that the kernel reads. A vector has kBytes at the most.
template <class T, std::size_t kBytes = kCacheLine, class Body>
HWY_INLINE void forPixels(SpanOf s, Body body, int below = 2)
{
    const hn::CappedTag<T, kBytes / sizeof(T)> many;
    const hn::CappedTag<T, 16 / sizeof(T)> four;
    const hn::CappedTag<T, 4> one;
    const int n = static_cast<int>(hn::Lanes(many)) / 4;
    constexpr int kFour = static_cast<int>(hn::MaxLanes(four)) / 4;
    const auto at = [&](int x) HWY_ATTR { return reinterpret_cast<std::uint8_t*>(s.to + x); };
    const auto address = [&](int x) HWY_ATTR { return reinterpret_cast<std::uintptr_t>(at(x)); };
    const auto store = [&](auto d, int x) HWY_ATTR { hn::StoreU(body(d, x), Bytes<decltype(d)>(), at(x)); };
    int x = s.x0;
    if (s.x1 - s.x0 >= kStreamFrom) {
        const Pixel* ahead = s.from + below * s.stride;
        for (; address(x) % (kFour * sizeof(Pixel)) != 0; ++x) store(one, x);
        for (; address(x) % kCacheLine != 0; x += kFour) store(four, x);
        for (; x + kLinePixels <= s.x1; x += kLinePixels) {
            __builtin_prefetch(ahead + x);
            for (int i = 0; i < kLinePixels; i += n) hn::Stream(body(many, x + i), Bytes<decltype(many)>(), at(x + i));
        }
    }
    for (; x + n <= s.x1; x += n) store(many, x);
    if (n > kFour)
        for (; x + kFour <= s.x1; x += kFour) store(four, x);
    for (; x < s.x1; ++x) store(one, x);
}

} // namespace velara::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#endif
