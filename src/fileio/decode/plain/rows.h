// Rows of samples, in the file or unpacked in memory, as rows of pixels.
#pragma once
#include "fileio/decode/decode.h"
#include <optional>

namespace velara::decode {

using Palette = std::array<Pixel, 256>;

constexpr Pixel pixelOf(int red, int green, int blue)
{
    return {{static_cast<std::uint8_t>(blue), static_cast<std::uint8_t>(green), static_cast<std::uint8_t>(red), 0}};
}
/// From black to white in `levels` steps (2 to 256); the rest is black.
Palette greys(int levels = 256);

/// A row of indices of 1, 2, 4 or 8 bits, the leftmost pixel in the high ones; each must have its colour.
void expandIndices(const std::uint8_t* from, Pixel* row, int width, int bits, const Palette& palette);
/// A row of blue, green and red bytes. width is at least 1.
void expandBgr(const std::uint8_t* from, Pixel* row, int width);

/// How a row's samples lie: indices with the leftmost pixel in the high bits, 16 bits in little order, or bytes of
/// colours in the order of the name (A is skipped).
enum class Layout { Index1, Index4, Index8, Rgb555, Rgb565, Bgr, Rgb, Bgra, Abgr, Argb };
/// Bits of a pixel.
int bitsOf(Layout layout);
inline std::size_t bytesOf(Layout layout, int width)
{
    return (static_cast<std::size_t>(width) * static_cast<std::size_t>(bitsOf(layout)) + 7) / 8;
}

struct Raster {
    int width, height;
    Layout layout;
    Palette palette = {};
    bool mirrored = false; // the first sample of a row is its rightmost pixel
};

/// Where the rows lie, one `stride` of bytes after the other.
struct Lines {
    std::size_t first, stride;
    bool bottomUp = false;
    /// Stands for each byte beyond the end of the file; none: the byte of the line before does.
    std::optional<std::uint8_t> missing = 0;
};

/// Produced on demand from the file's bytes. The reason says whether the file ends too early, or has been told to.
Decoded fromFile(const FileBytes& file, const Raster& raster, const Lines& lines, bool cutOff = false);
/// From rows unpacked in memory; bytes hold all of them.
Decoded fromMemory(std::vector<std::uint8_t>&& bytes, const Raster& raster, const Lines& lines, bool cutOff);

/// Tells sizeFound; returns the reason to refuse the size. Sizes below 1 have an empty one: damaged.
std::optional<QString> faultOfSize(std::int64_t width, std::int64_t height, int bits);

} // namespace velara::decode
