#include "engine/copyPixels.h"
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

} // namespace velara
