// Pixels as vectors, and the loop over the pixels of a span. For kernel files only: included once a target.
#if defined(VELARA_PIXELS_INL) == defined(HWY_TARGET_TOGGLE)
#ifdef VELARA_PIXELS_INL
#undef VELARA_PIXELS_INL
#else
#define VELARA_PIXELS_INL
#endif

#include "filters/Bits.h"
#include <hwy/highway.h>

HWY_BEFORE_NAMESPACE();
namespace velara::HWY_NAMESPACE {

namespace hn = hwy::HWY_NAMESPACE;

/// The byte tag of as many lanes as d has.
template <class D> using Bytes = hn::Rebind<std::uint8_t, D>;

template <class D> HWY_INLINE hn::Vec<D> loadBytes(D d, const Pixel* p)
{
    return hn::LoadU(d, reinterpret_cast<const std::uint8_t*>(p));
}

/// The channels of the pixels from p on, one a lane of d.
template <class D> HWY_INLINE hn::Vec<D> channels(D d, const Pixel* p)
{
    return hn::PromoteTo(d, loadBytes(Bytes<D>(), p));
}

/// 16-bit lanes: all ones in the channels 0 to 2, zero in the fourth; to be used on signed lanes.
template <class D> HWY_INLINE hn::Vec<D> threeChannels(D d)
{
    return hn::BitCast(d, hn::Set(hn::Repartition<std::int64_t, D>(), 0x0000FFFFFFFFFFFF));
}

/// colour with the fourth bytes of source.
template <class D, class V = hn::Vec<D>> HWY_INLINE V withFourthOf(D d, V source, V colour)
{
    const auto three = hn::BitCast(d, hn::Set(hn::Repartition<std::uint32_t, D>(), 0x00FFFFFFu));
    return hn::Or(hn::And(three, colour), hn::AndNot(three, source));
}

/// Spans of this many pixels are written past the cache: such pictures do not fit into it.
constexpr int kStreamFrom = 1024;

/// Writes the pixels x0..x1-1 of the row at to. body(d, x) gives the bytes of the pixels from x on, four lanes of d a
/// pixel; d has lanes of type T, as many as a vector has or, at the ends of the span, those of one pixel.
template <class T, class Body> HWY_INLINE void forPixels(Pixel* HWY_RESTRICT to, int x0, int x1, Body body)
{
    const hn::ScalableTag<T> many;
    const hn::CappedTag<T, 4> one;
    const int n = static_cast<int>(hn::Lanes(many)) / 4;
    const auto at = [to](int x) HWY_ATTR { return reinterpret_cast<std::uint8_t*>(to + x); };
    int x = x0;
    if (x1 - x0 >= kStreamFrom) {
        const auto step = static_cast<std::uintptr_t>(n) * sizeof(Pixel);
        for (; reinterpret_cast<std::uintptr_t>(at(x)) % step != 0; ++x)
            hn::StoreU(body(one, x), Bytes<decltype(one)>(), at(x));
        for (; x + n <= x1; x += n) hn::Stream(body(many, x), Bytes<decltype(many)>(), at(x));
    } else {
        for (; x + n <= x1; x += n) hn::StoreU(body(many, x), Bytes<decltype(many)>(), at(x));
    }
    for (; x < x1; ++x) hn::StoreU(body(one, x), Bytes<decltype(one)>(), at(x));
}

} // namespace velara::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#endif
