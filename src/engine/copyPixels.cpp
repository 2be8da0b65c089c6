#include "engine/copyPixels.h"
#include <algorithm>

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "engine/copyPixels.cpp"
#include <hwy/foreach_target.h>

#include "engine/pixels-inl.h"
#include <hwy/highway.h>

HWY_BEFORE_NAMESPACE();
namespace velara::HWY_NAMESPACE {

/// Whole lines: targets that begin with one.
void streamLines(const Pixel* from, Pixel* to, int lines, std::ptrdiff_t ahead)
{
    const hn::CappedTag<std::uint8_t, kCacheLine> d;
    const int n = static_cast<int>(hn::Lanes(d) / sizeof(Pixel));
    for (int x = 0; x < lines * kLinePixels; x += kLinePixels) {
        if (ahead != 0) __builtin_prefetch(from + x + ahead);
        for (int i = x; i < x + kLinePixels; i += n) hn::Stream(loadBytes(d, from + i), d, to[i].c);
    }
}

} // namespace velara::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace velara {

HWY_EXPORT(streamLines);

void streamPixelsAhead(const Pixel* from, Pixel* to, int x0, int x1, std::ptrdiff_t ahead)
{
    constexpr int kLine = 64 / sizeof(Pixel);
    const auto before = static_cast<int>(reinterpret_cast<std::uintptr_t>(to + x0) / sizeof(Pixel) % kLine);
    const int first = std::min(x0 + (kLine - before) % kLine, x1), lines = (x1 - first) / kLine;
    copyPixels(from, to, x0, first);
    if (lines > 0) HWY_DYNAMIC_DISPATCH(streamLines)(from + first, to + first, lines, ahead);
    copyPixels(from, to, first + lines * kLine, x1);
}

void streamPixels(const Pixel* from, Pixel* to, int x0, int x1) { streamPixelsAhead(from, to, x0, x1, 0); }

} // namespace velara
#endif
