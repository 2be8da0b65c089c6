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

/// The pixel of a colour value, its fourth byte 0.
constexpr Pixel pixelFor(Colour colour)
{
    return {{std::uint8_t(blueOf(colour)), std::uint8_t(greenOf(colour)), std::uint8_t(redOf(colour)), 0}};
}

} // namespace velara
