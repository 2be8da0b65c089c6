#include "fileio/web/ReducedDib.h"
#include <FreeImage.h>
#include <algorithm>
#include <cstring>

namespace velara {

namespace {

void fillPalette(FIBITMAP* dib, const std::vector<Colour>& colours)
{
    RGBQUAD* palette = FreeImage_GetPalette(dib);
    for (unsigned i = 0; i < FreeImage_GetColorsUsed(dib); ++i) { // black after the colours
        const Colour c = i < colours.size() ? colours[i] : 0;
        palette[i] = {std::uint8_t(blueOf(c)), std::uint8_t(greenOf(c)), std::uint8_t(redOf(c)), 0};
    }
}

/// Packs indices of the given bits, the first one in the highest bits.
void packRow(const std::uint8_t* from, std::uint8_t* to, int width, int bits)
{
    if (bits == 8) {
        std::memcpy(to, from, static_cast<std::size_t>(width));
        return;
    }
    const int inByte = 8 / bits;
    for (int x = 0; x < width; x += inByte) {
        int byte = 0;
        for (int i = 0; i < inByte; ++i) byte = byte << bits | (x + i < width ? from[x + i] : 0);
        *to++ = static_cast<std::uint8_t>(byte);
    }
}

FIBITMAP* indexedDib(const IndexedPicture& picture, int bits)
{
    FIBITMAP* dib = FreeImage_Allocate(picture.width, picture.height, bits);
    if (!dib) return nullptr;
    fillPalette(dib, picture.palette);
    const std::uint8_t* from = picture.indices.data();
    for (int y = 0; y < picture.height; ++y, from += picture.width)
        packRow(from, FreeImage_GetScanLine(dib, picture.height - 1 - y), picture.width, bits);
    return dib;
}

FIBITMAP* dibOf15Bits(const Bits& picture)
{
    FIBITMAP* dib = FreeImage_Allocate(picture.width(), picture.height(), 16, FI16_555_RED_MASK, FI16_555_GREEN_MASK,
                                       FI16_555_BLUE_MASK);
    for (int y = 0; dib && y < picture.height(); ++y) {
        auto* to = reinterpret_cast<std::uint16_t*>(FreeImage_GetScanLine(dib, picture.height() - 1 - y));
        std::transform(picture.row(y), picture.row(y) + picture.width(), to, [](const Pixel& p) {
            return static_cast<std::uint16_t>(p.c[2] >> 3 << 10 | p.c[1] >> 3 << 5 | p.c[0] >> 3);
        });
    }
    return dib;
}

} // namespace

ReducedDib::ReducedDib(const ReducedPicture& picture)
{
    const int bits = picture.bitCount;
    if (bits >= 1 && bits <= 8)
        dib_ = indexedDib(picture.indexed, bits == 1 ? 1 : bits <= 4 ? 4 : 8);
    else if (bits == 16)
        dib_ = dibOf15Bits(picture.full);
    else if (bits == 24)
        full_.emplace(picture.full);
}

ReducedDib::~ReducedDib()
{
    if (dib_) FreeImage_Unload(dib_);
}

Bits pictureOf(const ReducedPicture& picture)
{
    if (picture.bitCount > 8) return picture.full;
    const IndexedPicture& indexed = picture.indexed;
    Bits bits(indexed.width, indexed.height);
    const std::uint8_t* from = indexed.indices.data();
    for (int y = 0; y < indexed.height; ++y, from += indexed.width)
        std::transform(from, from + indexed.width, bits.row(y),
                       [&](std::uint8_t i) { return pixelFor(indexed.palette[i]); });
    return bits;
}

} // namespace velara
