// A picture in the colours of a palette, by one of the ways to spread what each pixel loses.
#pragma once
#include "pixels/IndexedPicture.h"
#include "reduce/EuroDepth.h"

namespace velara {

/// The words by which dithers are known.
enum class Dither {
    None = 0,            // the nearest colour
    Binary = 1,          // each channel black or white first, at its middle
    Ordered = 2,         // an 8x8 matrix of dispersed dots
    Haftone = 4,         // an 8x8 screen of growing dots
    ForwardDiag = 8,     // the error goes down and to the right
    BackwardDiag = 0x10, // down and to the left
    Horizontal = 0x20,   // along the row
    Vertical = 0x40,     // down the column
    Odd = 0x100,         // to four neighbours, every odd row from right to left
    Even = 0x200,        // every even row from right to left
};

/// Nearest is by squared distance, the lowest of equals; pixels that carry an error take a neighbour of it. Colours of
/// the palette stay as they are. All but Binary keep the mean of an even area that the palette
/// can mix. Words that are none count as None. palette: 1 to 256 colours.
IndexedPicture dithered(const Bits& bits, const Palette& palette, Dither dither, const ReduceProgress& progress = {});

} // namespace velara
