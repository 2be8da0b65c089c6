// Maps a picture to a palette, with the choice of how the quantisation error is spread.
#pragma once
#include "pixels/IndexedPicture.h"
#include "reduce/EuroDepth.h"
#include "reduce/mixing/DotScreen.h"

namespace velara {

/// The dithers, by the numbers that are stored and passed.
enum class Dither {
    None = 0,            // nearest colour, no dither
    Binary = 1,          // each channel thresholded at its middle first
    Ordered = 2,         // ordered, 8x8 dispersed dots
    Haftone = 4,         // ordered, 8x8 clustered dots
    ForwardDiag = 8,     // error to the pixel below right
    BackwardDiag = 0x10, // to the pixel below left
    Horizontal = 0x20,   // to the next pixel of the row
    Vertical = 0x40,     // to the pixel below
    Odd = 0x100,         // to four neighbours (Floyd-Steinberg), odd rows from right to left
    Even = 0x200,        // the same, even rows from right to left
};

/// True for those that show a colour as a mixture of others; false for None, Binary and unknown ones.
bool mixesColours(Dither dither);

/// Squared distance, ties to the lowest index; with diffused error the match may be approximate. Colours of the palette
/// map to themselves. All but Binary keep the mean of a flat area whose colour lies in the palette's gamut. An unknown
/// dither counts as None. Diffused error spares plain places that the palette has to within a level. palette: 1 to 256
/// colours.
IndexedPicture dithered(const Bits& bits, const Palette& palette, Dither dither, const ReduceProgress& progress = {},
                        PaletteOf origin = PaletteOf::Any);

} // namespace velara
