// Channel arithmetic: filters that add to, swap, kill or complement the channels of each pixel by itself.
#include "filters/numbers.h"
#include "filters/passes.h"

namespace velara {

Bits cBitFilter::Invert()
{
    return eachSpan(0, [](const Pixel* from, Pixel* to, int x0, int x1) {
        for (int x = x0; x < x1; ++x) {
            for (int c = 0; c < 3; ++c) to[x].c[c] = static_cast<std::uint8_t>(255 - from[x].c[c]);
            to[x].c[3] = from[x].c[3];
        }
    });
}

} // namespace velara
