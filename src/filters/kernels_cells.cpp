#include "filters/kernels_cells.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "filters/kernels_cells.cpp"
#include <hwy/foreach_target.h>

#include "filters/pixels-inl.h"
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
        for (int c = 0; c < 3; ++c) cells[k].c[c] += parts[c];
        cells[k].count += parts[3];
    }
}

void paintLine(SpanOf s, const Pixel* line)
{
    forPixels<std::uint8_t>(
        s, [=](auto d, int x) HWY_ATTR { return withFourthOf(d, loadBytes(d, s.from + x), loadBytes(d, line + x)); });
}

const CellKernels& cellKernelTable()
{
    static constexpr CellKernels table = {addColumns, addCells, paintLine};
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
