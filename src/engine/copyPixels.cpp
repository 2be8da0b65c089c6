#include "engine/copyPixels.h"
#include "pixels/threads/parallelFor.h"
#include <hwy/highway.h>

namespace velara {

void streamPixels(const Pixel* from, Pixel* to, int x0, int x1)
{
    namespace hn = hwy::HWY_NAMESPACE; // the baseline's: memory is what limits it
    constexpr int kLine = 16;          // pixels
    const hn::FixedTag<std::uint32_t, 4> four;
    while (x0 < x1 && reinterpret_cast<std::uintptr_t>(to + x0) % (kLine * sizeof(Pixel)) != 0) {
        to[x0] = from[x0];
        ++x0;
    }
    for (; x0 + kLine <= x1; x0 += kLine)
        for (int i = x0; i < x0 + kLine; i += 4)
            hn::Stream(hn::LoadU(four, reinterpret_cast<const std::uint32_t*>(from + i)), four,
                       reinterpret_cast<std::uint32_t*>(to + i));
    copyPixels(from, to, x0, x1);
}

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
