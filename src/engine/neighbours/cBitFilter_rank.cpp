// Filters that take the minimum or maximum of a pixel and its neighbours, channel by channel.
#include "engine/neighbours/kernels_rank.h"
#include "engine/passes.h"

namespace velara {

namespace {

auto ranked(bool greatest, RankWindow window)
{
    return [window, run = greatest ? rankKernels().greatest : rankKernels().least](const SpanOf& s) { run(s, window); };
}

/// 1 - mode, limited for the box's arithmetic: no picture is as wide.
int marginOf(int mode) { return 1 - std::clamp(mode, -(1 << 20), 1); }

} // namespace

Bits cBitFilter::DILATE() { return eachSpan(0, ranked(true, RankWindow::Square)); }
Bits cBitFilter::ERODE() { return eachSpan(0, ranked(false, RankWindow::Square)); }

Bits cBitFilter::rankFilter(int Mode, RankWindow window)
{
    if (Mode != 0 && Mode != 1) return eachSpan(marginOf(Mode), blacken); // neither comparison is made: all is 0
    return eachSpan(marginOf(Mode), ranked(Mode == 1, window));
}

Bits cBitFilter::RankFilterN4(int Mode) { return rankFilter(Mode, RankWindow::Sides); }
Bits cBitFilter::RankFilterND(int Mode) { return rankFilter(Mode, RankWindow::Diagonals); }

} // namespace velara
