#include "engine/stylise/kernels_cells.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "engine/stylise/kernels_cells.cpp"
#include <hwy/foreach_target.h>

#include "engine/pixels-inl.h"
#include <algorithm>
#include <hwy/highway.h>

HWY_BEFORE_NAMESPACE();
namespace velara::HWY_NAMESPACE {

template <class D> HWY_INLINE void addAt(D d, const Pixel* from, std::uint16_t* sums)
{
    const auto one = hn::BitCast(d, hn::Set(hn::Repartition<std::uint64_t, D>(), std::uint64_t{1} << 48));
    const auto three = hn::BitCast(d, hn::Set(hn::Repartition<std::uint64_t, D>(), 0x0000FFFFFFFFFFFFu));
    const auto colour = hn::Or(hn::And(channels(d, from), three), one);
    hn::StoreU(hn::Add(hn::LoadU(d, sums), colour), d, sums);
}

void addColumns(const Pixel* from, std::uint16_t* sums, int count)
{
    const hn::ScalableTag<std::uint16_t> many;
    const int n = static_cast<int>(hn::Lanes(many)) / 4;
    int x = 0;
    for (; x + n <= count; x += n) addAt(many, from + x, sums + 4 * x);
    for (; x < count; ++x) addAt(hn::CappedTag<std::uint16_t, 4>(), from + x, sums + 4 * x);
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
    static constexpr CellKernels table = {addColumns, addCells, meansOf, meansOfFours, paintScaled, paintLine};
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
