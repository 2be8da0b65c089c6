#include "engine/stylise/kernels_cells.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "engine/stylise/kernels_cells.cpp"
#include <hwy/foreach_target.h>

#include "engine/pixels-inl.h"
#include <algorithm>
#include <cmath>
#include <hwy/highway.h>

HWY_BEFORE_NAMESPACE();
namespace velara::HWY_NAMESPACE {

template <class D> HWY_INLINE void addAt(D d, const Pixel* from, std::ptrdiff_t stride, int rows, std::uint16_t* sums)
{
    const hn::Repartition<std::uint64_t, D> pixels;
    const auto counts = hn::BitCast(d, hn::Set(pixels, static_cast<std::uint64_t>(rows) << 48));
    const auto three = hn::BitCast(d, hn::Set(pixels, 0x0000FFFFFFFFFFFFu));
    auto sum = channels(d, from);
    for (int y = 1; y < rows; ++y) sum = hn::Add(sum, channels(d, from + y * stride));
    hn::StoreU(hn::Add(hn::LoadU(d, sums), hn::Or(hn::And(sum, three), counts)), d, sums);
}

void addColumns(const Pixel* from, std::ptrdiff_t stride, int rows, std::uint16_t* sums, int count)
{
    const hn::ScalableTag<std::uint16_t> many;
    const hn::CappedTag<std::uint16_t, 16> few;
    const hn::CappedTag<std::uint16_t, 4> one;
    const int n = static_cast<int>(hn::Lanes(many)) / 4, fewer = static_cast<int>(hn::Lanes(few)) / 4;
    constexpr int kAhead = 8 * kLinePixels; // several rows are too many to be foreseen by the processor
    int x = 0;
    for (; x + kLinePixels <= count; x += kLinePixels) {
        for (int y = 0; y < rows; ++y) __builtin_prefetch(from + y * stride + x + kAhead);
        for (int i = x; i < x + kLinePixels; i += n) addAt(many, from + i, stride, rows, sums + 4 * i);
    }
    for (; x + fewer <= count; x += fewer) addAt(few, from + x, stride, rows, sums + 4 * x);
    for (; x < count; ++x) addAt(one, from + x, stride, rows, sums + 4 * x);
}

void addCells(const std::uint16_t* columns, std::int64_t step, std::int64_t side, CellSum* cells, std::size_t count)
{
    const hn::FixedTag<std::uint32_t, 4> d;
    const hn::FixedTag<std::uint16_t, 4> d16;
    for (std::size_t k = 0; k < count; ++k, columns += 4 * step) {
        auto sum = hn::Zero(d);
        for (std::int64_t i = 0; i < side; ++i) sum = hn::Add(sum, hn::PromoteTo(d, hn::LoadU(d16, columns + 4 * i)));
        alignas(16) std::uint32_t parts[4];
        hn::Store(sum, d, parts);
        for (int c = 0; c < 4; ++c) cells[k].c[c] += parts[c];
    }
}

void meansOf(const CellSum* cells, std::int32_t parts, bool whole, Pixel* means, std::size_t count)
{
    const hn::FixedTag<std::uint64_t, 2> d64;
    const hn::FixedTag<std::uint32_t, 4> d32;
    const hn::FixedTag<std::int32_t, 4> d;
    const hn::FixedTag<float, 4> df;
    const auto divisor = hn::Set(df, static_cast<float>(parts));
    for (std::size_t k = 0; k < count; ++k) {
        const auto low = hn::BitCast(d32, hn::LoadU(d64, cells[k].c));
        const auto high = hn::BitCast(d32, hn::LoadU(d64, cells[k].c + 2)); // the third sum and the count
        const auto sums = hn::ConvertTo(df, hn::BitCast(d, hn::ConcatEven(d32, high, low)));
        const auto quotient = hn::Div(sums, divisor);
        const auto mean = hn::Min(whole ? hn::ConvertTo(d, quotient) : hn::NearestInt(quotient), hn::Set(d, 255));
        hn::StoreU(hn::DemoteTo(hn::FixedTag<std::uint8_t, 4>(), mean), hn::FixedTag<std::uint8_t, 4>(), means[k].c);
    }
}

void meansOfFours(const Pixel* upper, const Pixel* lower, Pixel* line, int x0, int x1)
{
    const hn::ScalableTag<std::int16_t> d;
    const hn::Repartition<std::uint8_t, decltype(d)> bytes;
    const hn::Repartition<std::uint32_t, decltype(d)> pixels;
    const int n = static_cast<int>(hn::Lanes(pixels));
    const auto mean = [&](auto sums) HWY_ATTR {
        const auto others = hn::BitCast(d, hn::Shuffle2301(hn::BitCast(pixels, sums)));
        return hn::ShiftRight<2>(hn::Add(sums, others));
    };
    int x = x0;
    for (; x + n <= x1; x += n) {
        const auto four = each((tap(d, upper + x) + tap(d, lower + x)).split(), mean);
        hn::StoreU(joined(bytes, four), bytes, line[x].c);
    }
    for (; x < x1; x += 2) {
        const int columns = std::min(2, x1 - x);
        for (int c = 0; c < 3; ++c) {
            int sum = 0;
            for (int i = x; i < x + columns; ++i) sum += upper[i].c[c] + lower[i].c[c];
            for (int i = x; i < x + columns; ++i) line[i].c[c] = static_cast<std::uint8_t>(sum / (2 * columns));
        }
    }
}

/// The last cells of meansOfNines.
void meansOfLastNines(const Pixel* upper, std::ptrdiff_t stride, std::int32_t parts, std::int32_t lastParts,
                      Pixel* line, int x0, int x1)
{
    for (int x = x0; x < x1; x += 2) {
        const int columns = std::min(3, x1 - x);
        const auto divisor = static_cast<float>(columns == 3 ? parts : lastParts);
        for (int c = 0; c < 3; ++c) {
            int sum = 0;
            for (int i = 0; i < 3 * columns; ++i) sum += upper[x + i % columns + i / columns * stride].c[c];
            const long mean = std::min(std::lrint(static_cast<float>(sum) / divisor), 255L);
            for (int i = x; i < std::min(x + 2, x1); ++i) line[i].c[c] = static_cast<std::uint8_t>(mean);
        }
    }
}

void meansOfNines(const Pixel* upper, std::ptrdiff_t stride, std::int32_t parts, std::int32_t lastParts, Pixel* line,
                  int x0, int x1)
{
    const hn::ScalableTag<std::int32_t> d;
    const hn::Repartition<std::int16_t, decltype(d)> shorts;
    const hn::RebindToFloat<decltype(d)> singles;
    const hn::Repartition<std::uint64_t, decltype(d)> pairs;
    const hn::Half<hn::RebindToUnsigned<decltype(d)>> half;
    const int n = static_cast<int>(hn::Lanes(d));
    const auto divisor = hn::Set(singles, static_cast<float>(parts));
    const auto low = hn::Set(d, 0xFFFF), most = hn::Set(d, 255);
    const auto sums = [&](int x) HWY_ATTR { // of the nine to the right of and below each pixel
        const auto three = [&](const Pixel* p) HWY_ATTR {
            return tap(shorts, p) + tap(shorts, p + stride) + tap(shorts, p + 2 * stride);
        };
        return (three(upper + x) + three(upper + x + 1) + three(upper + x + 2)).split();
    };
    const auto mean = [&](auto sum) HWY_ATTR {
        return hn::Min(hn::NearestInt(hn::Div(hn::ConvertTo(singles, sum), divisor)), most);
    };
    int x = x0;
    for (; x + 2 * n < x1; x += 2 * n) { // every second pixel begins a cell
        const auto first = sums(x), last = sums(x + n);
        const auto even = hn::ConcatEven(d, hn::BitCast(d, last.even), hn::BitCast(d, first.even));
        const auto odd = hn::ConcatEven(d, hn::BitCast(d, last.odd), hn::BitCast(d, first.odd));
        const auto blue = mean(hn::And(even, low)), green = mean(hn::And(odd, low)),
                   red = mean(hn::ShiftRight<16>(even));
        const auto cells = hn::BitCast(hn::RebindToUnsigned<decltype(d)>(),
                                       hn::Or(blue, hn::Or(hn::ShiftLeft<8>(green), hn::ShiftLeft<16>(red))));
        const auto twice = [&](auto some, Pixel* to) HWY_ATTR {
            const auto wide = hn::PromoteTo(pairs, some);
            hn::StoreU(hn::Or(wide, hn::ShiftLeft<32>(wide)), pairs, reinterpret_cast<std::uint64_t*>(to));
        };
        twice(hn::LowerHalf(half, cells), line + x);
        twice(hn::UpperHalf(half, cells), line + x + n);
    }
    meansOfLastNines(upper, stride, parts, lastParts, line, x, x1);
}

void paintScaled(SpanOf s, const Pixel* line, const float* factors)
{
    forPixels<std::uint8_t>(s, [=](auto d8, int x) HWY_ATTR {
        const hn::Repartition<std::int32_t, decltype(d8)> d;
        const hn::RebindToFloat<decltype(d)> df;
        const auto colour = hn::BitCast(d, loadBytes(d8, line + x));
        const auto factor = hn::LoadU(df, factors + x), low = hn::Set(d, 255);
        const auto scaled = [&](auto channel) HWY_ATTR {
            return hn::NearestInt(hn::Mul(hn::ConvertTo(df, hn::And(channel, low)), factor));
        };
        const auto blue = scaled(colour), green = scaled(hn::ShiftRight<8>(colour)),
                   red = scaled(hn::ShiftRight<16>(colour));
        const auto all = hn::Or(blue, hn::Or(hn::ShiftLeft<8>(green), hn::ShiftLeft<16>(red)));
        return withFourthOf(d8, loadBytes(d8, s.from + x), hn::BitCast(d8, all));
    });
}

void paintLine(SpanOf s, const Pixel* line)
{
    forPixels<std::uint8_t>(
        s, [=](auto d, int x) HWY_ATTR { return withFourthOf(d, loadBytes(d, s.from + x), loadBytes(d, line + x)); });
}

const CellKernels& cellKernelTable()
{
    static constexpr CellKernels table = {addColumns,   addCells,    meansOf,  meansOfFours,
                                          meansOfNines, paintScaled, paintLine};
    return table;
}

} // namespace velara::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace velara {

HWY_EXPORT(cellKernelTable);
const CellKernels& cellKernels() { return HWY_DYNAMIC_DISPATCH(cellKernelTable)(); }

} // namespace velara
#endif
