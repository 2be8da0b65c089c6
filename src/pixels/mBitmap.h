// Pictures as plain byte arrays without the margin, and the size that fits a box.
#pragma once
#include "pixels/Bits.h"
#include "pixels/fitSize.h"
#include <cstdint>
#include <vector>

namespace velara {

/// The first 40 bytes of a bitmap in memory, little-endian.
struct BitmapHeader {
    std::uint32_t biSize = 40;
    std::int32_t biWidth = 0, biHeight = 0; // a negative height: rows run top down
    std::uint16_t biPlanes = 1, biBitCount = 32;
    std::uint32_t biCompression = 0, biSizeImage = 0;
    std::int32_t biXPelsPerMeter = 0, biYPelsPerMeter = 0;
    std::uint32_t biClrUsed = 0, biClrImportant = 0;
};
static_assert(sizeof(BitmapHeader) == 40);

/// Four bytes a pixel, blue first, rows top down without padding.
struct ByteArray {
    BitmapHeader header;
    std::vector<std::uint8_t> bytes;
};

/// Zeroed pixels of width by height with their header; empty below 1 by 1.
ByteArray byteArrayFor(int width, int height);
ByteArray bytesOfPicture(const Bits& bits);

} // namespace velara
