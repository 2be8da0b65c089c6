#include "engine/stylise/kernels_quadrants.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "engine/stylise/kernels_quadrants.cpp"
#include <hwy/foreach_target.h>

#include "engine/pixels-inl.h"
#include <hwy/highway.h>

HWY_BEFORE_NAMESPACE();
namespace velara::HWY_NAMESPACE {

template <class D8> HWY_INLINE void storeAt(D8 d8, hn::Vec<D8> v, Pixel* p)
{
    hn::StoreU(v, d8, reinterpret_cast<std::uint8_t*>(p));
}

/// The sum of f(pixel) over a window; f returns bytes, the sums are 16 bits wide. pixels(row, column) gives its pixels,
/// from 0 to 2 each.
template <class D8, class Pixels, class F> HWY_INLINE auto windowSum(D8, Pixels pixels, F f)
{
    const hn::Repartition<std::int16_t, D8> d;
    const hn::RebindToUnsigned<decltype(d)> du;
    const auto at = [&](int row, int column) HWY_ATTR {
        const auto v = hn::BitCast(du, f(pixels(row, column)));
        return Taps<hn::Vec<decltype(d)>>{hn::BitCast(d, v), hn::BitCast(d, hn::ShiftRight<8>(v))};
    };
    const auto three = [&](int row) HWY_ATTR { return at(row, 0) + at(row, 1) + at(row, 2); };
    return (three(0) + three(1) + three(2)).split();
}

template <class D8, class Pixels> HWY_INLINE void windowAt(D8 d8, Pixels pixels, int x, WindowRow& to)
{
    const hn::Repartition<std::int16_t, D8> d;
    const hn::RebindToUnsigned<decltype(d)> du;
    using V = hn::Vec<decltype(d)>;
    const auto sum = windowSum(d8, pixels, [](auto v) HWY_ATTR { return v; });
    const auto mean = each(sum, [&](V v) HWY_ATTR { // 7282 / 2^16 is a ninth, exact for all sums below 2^15
        return hn::BitCast(d, hn::MulHigh(hn::BitCast(du, v), hn::Set(du, std::uint16_t{7282})));
    });
    const auto bytes = joined(d8, mean);
    // The sum above the mean exceeds the sum below it by the remainder of the mean's division.
    const auto above = windowSum(d8, pixels, [&](auto v) HWY_ATTR { return hn::SaturatedSub(v, bytes); });
    const auto remainder =
        each(sum, mean, [&](V s, V m) HWY_ATTR { return hn::Sub(s, hn::Add(hn::ShiftLeft<3>(m), m)); });
    const auto distances = each(above, remainder, [](V a, V r) HWY_ATTR { return hn::Sub(hn::Add(a, a), r); });
    storeAt(d8, bytes, to.means() + x);
    storeAt(d8, hn::BitCast(d8, distances.even), to.even() + x);
    storeAt(d8, hn::BitCast(d8, distances.odd), to.odd() + x);
}

#if HWY_TARGET == HWY_AVX3_DL

/// Whole vectors of windows, each row of pixels loaded once: most loads would cross a cache line. Returns the first x
/// not done.
int slide(const Pixel* from, std::ptrdiff_t stride, int x0, int x1, WindowRow& to)
{
    const hn::ScalableTag<std::uint8_t> d8;
    using V = hn::Vec<decltype(d8)>;
    constexpr int n = 16;
    const auto load = [&](int row, int x) HWY_ATTR { return loadBytes(d8, from + (row - 1) * stride + x); };
    int x = x0;
    if (x + 2 * n > x1 + 1) return x; // the vector after the last one would be outside
    V left[3], here[3];
    for (int row = 0; row < 3; ++row) {
        here[row] = load(row, x);
        left[row] = V{_mm512_maskz_loadu_epi32(0x8000, from + (row - 1) * stride + x - n)};
    }
    for (; x + 2 * n <= x1 + 1; x += n) {
        const V right[3] = {load(0, x + n), load(1, x + n), load(2, x + n)};
        const auto pixels = [&](int row, int column) HWY_ATTR {
            return column == 0   ? V{_mm512_alignr_epi32(here[row].raw, left[row].raw, n - 1)}
                   : column == 1 ? here[row]
                                 : V{_mm512_alignr_epi32(right[row].raw, here[row].raw, 1)};
        };
        windowAt(d8, pixels, x, to);
        __builtin_prefetch(from + 2 * stride + x); // of the next row of windows
        for (int row = 0; row < 3; ++row) left[row] = here[row], here[row] = right[row];
    }
    return x;
}

#else

int slide(const Pixel*, std::ptrdiff_t, int x0, int, WindowRow&) { return x0; }

#endif

void windows(const Pixel* from, std::ptrdiff_t stride, int x0, int x1, WindowRow& to)
{
    const hn::ScalableTag<std::uint8_t> many;
    const hn::CappedTag<std::uint8_t, 4> one;
    const int n = static_cast<int>(hn::Lanes(many)) / 4;
    const auto at = [&](auto d8, int x) HWY_ATTR {
        const auto pixels = [&](int row, int column)
                                HWY_ATTR { return loadBytes(d8, from + (row - 1) * stride + x + column - 1); };
        windowAt(d8, pixels, x, to);
        __builtin_prefetch(from + 2 * stride + x);
    };
    int x = slide(from, stride, x0, x1, to);
    for (; x + n <= x1; x += n) at(many, x);
    for (; x < x1; ++x) at(one, x);
}

void choose(SpanOf s, const WindowRow& above, const WindowRow& below, bool four)
{
    const WindowRow* const rows[] = {&above, &above, &below, &below};
    const int count = four ? 4 : 3;
    struct Corner {
        const Pixel *means, *even, *odd;
    } corners[4];
    for (int i = 0; i < 4; ++i) {
        const int dx = i % 2 == 0 ? -1 : 1;
        corners[i] = {rows[i]->means() + dx, rows[i]->even() + dx, rows[i]->odd() + dx};
    }
    forPixels<std::uint8_t>(s, [=](auto d8, int x) HWY_ATTR {
        const hn::Repartition<std::int16_t, decltype(d8)> d;
        using V = hn::Vec<decltype(d)>;
        const auto distances = [&](const Corner& c) HWY_ATTR {
            return Halves<V>{hn::BitCast(d, loadBytes(d8, c.even + x)), hn::BitCast(d, loadBytes(d8, c.odd + x))};
        };
        auto best = distances(corners[0]);
        auto means = tap(d, corners[0].means + x).split();
        const auto against = [&](const Corner& c) HWY_ATTR {
            const auto other = distances(c), otherMeans = tap(d, c.means + x).split();
            means.even = hn::IfThenElse(hn::Lt(other.even, best.even), otherMeans.even, means.even);
            means.odd = hn::IfThenElse(hn::Lt(other.odd, best.odd), otherMeans.odd, means.odd);
            best = each(best, other, [](V a, V b) HWY_ATTR { return hn::Min(a, b); });
        };
        against(corners[1]);
        against(corners[2]);
        if (count == 4) against(corners[3]);
        return withFourthOf(d8, loadBytes(d8, s.from + x), joined(d8, means));
    });
}

const QuadrantKernels& quadrantKernelTable()
{
    static constexpr QuadrantKernels table = {windows, choose};
    return table;
}

} // namespace velara::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace velara {

HWY_EXPORT(quadrantKernelTable);
const QuadrantKernels& quadrantKernels() { return HWY_DYNAMIC_DISPATCH(quadrantKernelTable)(); }

} // namespace velara
#endif
