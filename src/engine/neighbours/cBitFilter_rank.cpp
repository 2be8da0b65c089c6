// Filters that take the minimum or maximum of a pixel and its neighbours, channel by channel.
#include "engine/neighbours/kernels_rank.h"
#include "engine/passes.h"

namespace velara {

namespace {

auto ranked(bool greatest, RankWindow window, std::ptrdiff_t stride)
{
    return [=](const Pixel* from, Pixel* to, int x0, int x1) {
        const auto run = greatest ? rankKernels().greatest : rankKernels().least;
        run({from, stride, to, x0, x1}, window);
    };
}

/// 1 - mode, limited for the box's arithmetic: no picture is as wide.
int marginOf(int mode) { return 1 - std::clamp(mode, -(1 << 20), 1); }

} // namespace

Bits cBitFilter::DILATE() { return eachSpan(0, ranked(true, RankWindow::Square, bits_.stride())); }
Bits cBitFilter::ERODE() { return eachSpan(0, ranked(false, RankWindow::Square, bits_.stride())); }

Bits cBitFilter::rankFilter(int Mode, RankWindow window)
{
    if (Mode != 0 && Mode != 1) return eachSpan(marginOf(Mode), blacken); // neither comparison is made: all is 0
    return eachSpan(marginOf(Mode), ranked(Mode == 1, window, bits_.stride()));
}

Bits cBitFilter::RankFilterN4(int Mode) { return rankFilter(Mode, RankWindow::Sides); }
Bits cBitFilter::RankFilterND(int Mode) { return rankFilter(Mode, RankWindow::Diagonals); }

} // namespace velara
