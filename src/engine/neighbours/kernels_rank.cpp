#include "engine/neighbours/kernels_rank.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "engine/neighbours/kernels_rank.cpp"
#include <hwy/foreach_target.h>

#include "engine/pixels-inl.h"
#include <hwy/highway.h>

HWY_BEFORE_NAMESPACE();
namespace velara::HWY_NAMESPACE {

template <class Better> HWY_INLINE void rank(SpanOf s, RankWindow window, Better better)
{
    const auto run = [&](auto ofNeighbours) HWY_ATTR {
        forPixels<std::uint8_t, kHalfALine>(s, [&](auto d, int x) HWY_ATTR {
            const Pixel* p = s.from + x;
            const auto pair = [&](std::ptrdiff_t offset)
                                  HWY_ATTR { return better(loadBytes(d, p - offset), loadBytes(d, p + offset)); };
            const auto centre = loadBytes(d, p);
            return withFourthOf(d, centre, better(centre, ofNeighbours(pair)));
        });
    };
    const std::ptrdiff_t row = s.stride;
    const auto sides = [&](auto pair) HWY_ATTR { return better(pair(1), pair(row)); };
    const auto diagonals = [&](auto pair) HWY_ATTR { return better(pair(row - 1), pair(row + 1)); };
    if (window == RankWindow::Sides)
        run(sides);
    else if (window == RankWindow::Diagonals)
        run(diagonals);
    else
        run([&](auto pair) HWY_ATTR { return better(sides(pair), diagonals(pair)); });
}

void least(SpanOf s, RankWindow window)
{
    rank(s, window, [](auto a, auto b) HWY_ATTR { return hn::Min(a, b); });
}

void greatest(SpanOf s, RankWindow window)
{
    rank(s, window, [](auto a, auto b) HWY_ATTR { return hn::Max(a, b); });
}

const RankKernels& rankKernelTable()
{
    static constexpr RankKernels table = {least, greatest};
    return table;
}

} // namespace velara::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace velara {

HWY_EXPORT(rankKernelTable);
const RankKernels& rankKernels() { return HWY_DYNAMIC_DISPATCH(rankKernelTable)(); }

} // namespace velara
#endif
