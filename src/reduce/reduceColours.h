// Colour reduction by words: how many bits a pixel, which palette, which dither, colours or greys.
#pragma once
#include "pixels/IndexedPicture.h"
#include "reduce/EuroDepth.h"

namespace velara {

/// The words of the palettes. The low part of a kCounted word is a number of colours; 0 stands for all that the bits
/// can count.
constexpr int kFixedColour = 0, kMapped = 0x1000, kOptimal = 0x4000, kCounted = 0x8000;
constexpr int kVgaPalette = 0x8210, kWebPalette = 0x84D8, kHalftonePalette = 0x8300, kGreyPalette = 0x88FF;

constexpr int kGreyscale = 2; // the colour mode in which every colour becomes a grey; any other keeps colours

struct ReduceWords {
    int colorMode = 0;
    int bitCount = 8;
    int paletteWord = kOptimal;
    int ditherWord = 0;
};

/// What a picture became: of up to 8 bits indexed, with no more colours than the bits can count; of 16 and 24 bits a
/// picture, whose 16 bits are the highest five of each channel.
struct ReducedPicture {
    int bitCount = 0; // 0: nothing
    IndexedPicture indexed;
    Bits full;
};

/// bitCount: 1 to 8, 16, 24 (32 as 24); nothing for others and for an empty picture. kMapped takes no dither, and at 2,
/// 3, 5, 6 and 7 bits, for which there is no table, an even spread. Palettes of more colours than the bits can count
/// are cut short; other palette words count as kFixedColour. In greyscale both the picture and the palette become grey.
/// best: the palette that kOptimal takes, which costs more than all else; an empty one is made and left there.
ReducedPicture reduceColours(const Bits& bits, const ReduceWords& words, const ReduceProgress& progress = {},
                             Palette* best = nullptr);

} // namespace velara
