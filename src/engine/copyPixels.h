// Copies of pixels, rows and margins.
#pragma once
#include "pixels/Bits.h"
#include <cstring>

namespace velara {

/// Copies the columns x0 to x1-1.
inline void copyPixels(const Pixel* from, Pixel* to, int x0, int x1)
{
    if (x1 > x0) std::memcpy(to + x0, from + x0, sizeof(Pixel) * static_cast<std::size_t>(x1 - x0));
}

/// The same by non-temporal stores, in whole cache lines: for pictures that do not fit into the cache and whose other
/// pixels are written the same way.
void streamPixels(const Pixel* from, Pixel* to, int x0, int x1);
/// For pieces of rows between others, which the processor doesn't foresee: what lies `ahead` pixels further on in the
/// source is prefetched, unless it is 0.
void streamPixelsAhead(const Pixel* from, Pixel* to, int x0, int x1, std::ptrdiff_t ahead);

/// Copies the rows y0 to y1-1, margin columns included; many by all cores.
void copyRows(const Bits& from, Bits& to, int y0, int y1);

/// Zeroes the margin of two pixels around the picture.
inline void clearMargin(Bits& bits)
{
    const auto columns = static_cast<std::size_t>(bits.stride());
    for (const int y : {-2, -1, bits.height(), bits.height() + 1})
        std::memset(bits.row(y) - Bits::kMargin, 0, sizeof(Pixel) * columns);
    for (int y = 0; y < bits.height(); ++y) {
        std::memset(bits.row(y) - Bits::kMargin, 0, sizeof(Pixel) * Bits::kMargin);
        std::memset(bits.row(y) + bits.width(), 0, sizeof(Pixel) * Bits::kMargin);
    }
}

} // namespace velara
