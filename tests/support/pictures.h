// Small pictures and an exact comparer for tests.
#pragma once
#include "pixels/Bits.h"
#include <cstdint>
#include <gtest/gtest.h>

namespace velara {

/// Fills the whole buffer with random bytes, margin and fourth byte included.
Bits randomBits(int width, int height, std::uint32_t seed);
/// Fills a small rectangle somewhere with random bytes; it may reach into the margin.
void drawStroke(Bits& bits, std::uint32_t seed);
/// One colour 0xFFBBGGRR-like: fourth byte, blue, green, red from the high byte down; the margin stays 0.
Bits flatBits(int width, int height, std::uint8_t blue, std::uint8_t green, std::uint8_t red, std::uint8_t fourth = 0);
/// Each pixel is the function's value at x, y; the margin is 0.
template <class PixelAt> Bits drawnBits(int width, int height, PixelAt pixelAt)
{
    Bits bits(width, height);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) bits.at(x, y) = pixelAt(x, y);
    return bits;
}
/// The picture as returned by files and the clipboard: no margin, no fourth byte.
Bits plain(const Bits& bits);

/// The pixel's colour on the screen, 0xRRGGBB.
inline std::uint32_t colourAt(const Bits& bits, int x, int y)
{
    const Pixel p = bits.at(x, y);
    return std::uint32_t(p.c[2] << 16 | p.c[1] << 8 | p.c[0]);
}

/// Equal in size and in every byte, margin included; a failure names the first differing pixel: x, y, channel,
/// expected, actual.
::testing::AssertionResult sameBits(const Bits& wanted, const Bits& got);

} // namespace velara
