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

template <class D8> using Sums = Taps<hn::Vec<hn::Repartition<std::int16_t, D8>>>;

/// The bytes of v as sums of one.
template <class D8> HWY_INLINE Sums<D8> bytesOf(D8, hn::Vec<D8> v)
{
    const hn::Repartition<std::int16_t, D8> d;
    return {hn::BitCast(d, v), hn::BitCast(d, hn::ShiftRight<8>(hn::BitCast(hn::RebindToUnsigned<decltype(d)>(), v)))};
}

/// The sum of f(pixel) over a window; f returns bytes. pixels(row, column) gives its pixels, from 0 to 2 each.
template <class D8, class Pixels, class F> HWY_INLINE Sums<D8> windowSum(D8 d8, Pixels pixels, F f)
{
    const auto at = [&](int row, int column) HWY_ATTR { return bytesOf(d8, f(pixels(row, column))); };
    const auto three = [&](int row) HWY_ATTR { return at(row, 0) + at(row, 1) + at(row, 2); };
    return three(0) + three(1) + three(2);
}

/// The windows of the sums all, of the pixels given as above.
template <class D8, class Pixels>
HWY_INLINE void windowAt(D8 d8, Pixels pixels, const Sums<D8>& all, int x, WindowRow& to)
{
    const hn::Repartition<std::int16_t, D8> d;
    const hn::RebindToUnsigned<decltype(d)> du;
    using V = hn::Vec<decltype(d)>;
    const auto sum = all.split();
    const auto mean = each(sum, [&](V v) HWY_ATTR { // 7282 / 2^16 is a ninth, exact for all sums below 2^15
        return hn::BitCast(d, hn::MulHigh(hn::BitCast(du, v), hn::Set(du, std::uint16_t{7282})));
    });
    const auto bytes = joined(d8, mean);
    // The sum above the mean exceeds the sum below it by the remainder of the mean's division.
    const auto above = windowSum(d8, pixels, [&](auto v) HWY_ATTR { return hn::SaturatedSub(v, bytes); }).split();
    const auto remainder =
        each(sum, mean, [&](V s, V m) HWY_ATTR { return hn::Sub(s, hn::Add(hn::ShiftLeft<3>(m), m)); });
    const auto distances =
        each(above, remainder, [](V a, V r) HWY_ATTR { return hn::ShiftLeft<2>(hn::Sub(hn::Add(a, a), r)); });
    storeAt(d8, bytes, to.means() + x);
    storeAt(d8, hn::BitCast(d8, distances.even), to.even() + x);
    storeAt(d8, hn::BitCast(d8, distances.odd), to.odd() + x);
}

#if HWY_TARGET == HWY_AVX3_DL

/// Whole vectors of windows, each row of pixels loaded once, as most loads would cross a cache line, and each column of
/// three added up once. Returns the first x not done.
int slide(const Pixel* from, std::ptrdiff_t stride, int x0, int x1, WindowRow& to)
{
    const hn::ScalableTag<std::uint8_t> d8;
    using V = hn::Vec<decltype(d8)>;
    constexpr int n = 16;
    const auto load = [&](int row, int x) HWY_ATTR { return loadBytes(d8, from + (row - 1) * stride + x); };
    int x = x0;
    if (x + 2 * n > x1 + 1) return x; // the vector after the last one would be outside
    // one vector to the left and to the right: the last pixel of before and v, and v without its first and one of after
    const auto toRight = [](auto v, auto before)
                             HWY_ATTR { return decltype(v){_mm512_alignr_epi32(v.raw, before.raw, n - 1)}; };
    const auto toLeft = [](auto v, auto after)
                            HWY_ATTR { return decltype(v){_mm512_alignr_epi32(after.raw, v.raw, 1)}; };
    const auto column = [&](const V(&rows)[3])
                            HWY_ATTR { return bytesOf(d8, rows[0]) + bytesOf(d8, rows[1]) + bytesOf(d8, rows[2]); };
    V left[3], here[3];
    for (int row = 0; row < 3; ++row) {
        here[row] = load(row, x);
        left[row] = V{_mm512_maskz_loadu_epi32(0x8000, from + (row - 1) * stride + x - n)};
    }
    auto sumsLeft = column(left), sumsHere = column(here);
    for (; x + 2 * n <= x1 + 1; x += n) {
        const V right[3] = {load(0, x + n), load(1, x + n), load(2, x + n)};
        const auto pixels = [&](int row, int place) HWY_ATTR {
            return place == 0 ? toRight(here[row], left[row]) : place == 1 ? here[row] : toLeft(here[row], right[row]);
        };
        const auto sumsRight = column(right);
        const auto beside = [&](auto part) HWY_ATTR {
            const auto v = sumsHere.*part;
            return hn::Add(hn::Add(toRight(v, sumsLeft.*part), v), toLeft(v, sumsRight.*part));
        };
        using S = Sums<decltype(d8)>;
        windowAt(d8, pixels, S{beside(&S::whole), beside(&S::odd)}, x, to);
        __builtin_prefetch(from + 2 * stride + x); // of the next row of windows
        for (int row = 0; row < 3; ++row) left[row] = here[row], here[row] = right[row];
        sumsLeft = sumsHere, sumsHere = sumsRight;
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
        windowAt(d8, pixels, windowSum(d8, pixels, [](auto v) HWY_ATTR { return v; }), x, to);
        __builtin_prefetch(from + 2 * stride + x);
    };
    int x = slide(from, stride, x0, x1, to);
    for (; x + n <= x1; x += n) at(many, x);
    for (; x < x1; ++x) at(one, x);
}

void choose(SpanOf s, const WindowRow& above, const WindowRow& below, bool four)
{
    const WindowRow* const rows[] = {&above, &above, &below, &below};
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
        // The corner's number in the two bits below the distance: the least of all is the first of the nearest.
        const auto numbered = [&](int i) HWY_ATTR {
            const auto of = [&](const Pixel* p) HWY_ATTR {
                return hn::Or(hn::BitCast(d, loadBytes(d8, p + x)), hn::Set(d, static_cast<std::int16_t>(i)));
            };
            return Halves<V>{of(corners[i].even), of(corners[i].odd)};
        };
        const auto lesser = [](V a, V b) HWY_ATTR { return hn::Min(a, b); };
        auto least = each(each(numbered(0), numbered(1), lesser), numbered(2), lesser);
        if (four) least = each(least, numbered(3), lesser);
        const auto number = joined(d8, Halves<V>{hn::And(least.even, hn::Set(d, 3)), least.odd});
        const auto isRight = hn::TestBit(number, hn::Set(d8, 1)), isBelow = hn::TestBit(number, hn::Set(d8, 2));
        const auto mean = [&](int i) HWY_ATTR { return loadBytes(d8, corners[i].means + x); };
        const auto upper = hn::IfThenElse(isRight, mean(1), mean(0));
        const auto lower = four ? hn::IfThenElse(isRight, mean(3), mean(2)) : mean(2);
        return withFourthOf(d8, loadBytes(d8, s.from + x), hn::IfThenElse(isBelow, lower, upper));
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
