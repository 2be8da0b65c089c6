// A picture of at most 256 colours: what colour reduction makes and GIF files hold.
#pragma once
#include "pixels/Bits.h"
#include <cstdint>
#include <vector>

namespace velara {

struct IndexedPicture {
    int width = 0, height = 0;
    std::vector<std::uint8_t> indices; // row by row, without padding
    std::vector<Colour> palette;       // 1 to 256 colours
};

/// The picture in at most so many colours (2 to 256), each pixel the nearest of them, without dithering. A picture of
/// no more colours keeps them exactly, in the order of their first use; otherwise the palette is the one that suits it
/// best. std::bad_alloc when memory is short.
IndexedPicture reduceToBestColours(const Bits& bits, int colours);

} // namespace velara
