// Colour reduction: bits a pixel, palette, dither, colours or greys.
#pragma once
#include "pixels/IndexedPicture.h"
#include "reduce/EuroDepth.h"

namespace velara {

/// The palettes by number. The low part of a kCounted one is the number of colours; 0 means as many as the bits allow.
constexpr int kFixedColour = 0, kMapped = 0x1000, kOptimal = 0x4000, kCounted = 0x8000;
constexpr int kVgaPalette = 0x8210, kWebPalette = 0x84D8, kHalftonePalette = 0x8300, kGreyPalette = 0x88FF;

constexpr int kGreyscale = 2; // the colour mode in which every colour becomes a grey; any other keeps colours

/// The best palette of a picture, and the one for mixtures of colours; empty while unknown.
struct BestPalette {
    Palette plain, stretched;
};

struct ReduceWords {
    int colorMode = 0;
    int bitCount = 8;
    int paletteWord = kOptimal;
    int ditherWord = 0;
};

/// The result: indexed up to 8 bits, with no more colours than the bits allow; true colour for 16 and 24 bits, where 16
/// keeps the high five bits of each channel.
struct ReducedPicture {
    int bitCount = 0; // 0: nothing
    IndexedPicture indexed;
    Bits full;
};

/// The reduced picture in true colour.
Bits pictureOf(const ReducedPicture& picture);

/// bitCount: 1 to 8, 16, 24 (32 counts as 24); an empty result for others and for an empty picture. kMapped is never
/// dithered; at 2, 3, 5, 6 and 7 bits, which have no table, it uses a uniform palette. Palettes with more colours than
/// the bits allow are truncated; unknown palettes count as kFixedColour. In greyscale both picture and palette become
/// grey. best: cache of the palette for kOptimal, the slowest part; filled when empty.
/// A dither that mixes colours gets it stretched.
ReducedPicture reduceColours(const Bits& bits, const ReduceWords& words, const ReduceProgress& progress = {},
                             BestPalette* best = nullptr);

} // namespace velara
