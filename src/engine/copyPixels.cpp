#include "engine/copyPixels.h"
#include "pixels/threads/parallelFor.h"
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

void copyRows(const Bits& from, Bits& to, int y0, int y1)
{
    constexpr std::size_t kMany = 4 << 20; // bytes
    if (y1 <= y0) return;
    const std::ptrdiff_t pitch = from.stride();
    const Pixel* const source = from.row(y0) - Bits::kMargin;
    Pixel* const target = to.row(y0) - Bits::kMargin;
    const std::size_t bytes = sizeof(Pixel) * static_cast<std::size_t>(pitch) * static_cast<std::size_t>(y1 - y0);
    if (bytes < kMany) {
        std::memcpy(target, source, bytes);
        return;
    }
    parallelFor(y1 - y0, turnsTogether(pitch),
                [&](int i) { streamPixels(source + i * pitch, target + i * pitch, 0, static_cast<int>(pitch)); });
}

} // namespace velara
#endif
