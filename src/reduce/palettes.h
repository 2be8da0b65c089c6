// The fixed palettes of colour reduction.
#pragma once
#include "pixels/Bits.h"
#include <vector>

namespace velara {

using Palette = std::vector<Colour>;

Palette blackAndWhite();
/// The 16 colours of VGA in the order of their numbers, dark grey (7) before light grey (8).
Palette vgaColours();
/// The halftone palette of 256: 0 to 9 and 246 to 255 are the twenty colours of the system, entry i between them has
/// red (i & 7) << 5, green (i & 56) << 2, blue i & 192.
Palette halftoneColours();
/// The cube of 216: six levels, 51 apart, of each channel; blue changes fastest.
Palette webSafeColours();

/// A uniform palette of at most count colours (2 to 256): levels of red times green times blue, as many as fit with
/// green at most two levels ahead of blue; blue varies fastest. Black and white are always in it.
///
///     8: 2x2x2   12: 2x3x2   16: 2x4x2   18: 3x3x2   27: 3x3x3   32: 4x4x2   36: 3x4x3   48: 4x4x3   64: 4x4x4
///     80: 4x5x4  100: 5x5x4  125: 5x5x5  150: 5x6x5  180: 6x6x5  216: 6x6x6  252: 6x7x6
///
/// Below 8 colours blue has no levels of its own and is the mean of red and green: 2 and 3 give greys, 4 and 5 2x2, 6
/// and 7 2x3.
Palette fixedColours(int count);
/// count greys (2 to 256) from black to white, evenly spaced.
Palette greyRamp(int count);

/// Luminance of a colour, 0 to 255; a grey gives its own level.
constexpr int greyOf(int red, int green, int blue) { return (77 * red + 150 * green + 29 * blue + 128) >> 8; }

} // namespace velara
