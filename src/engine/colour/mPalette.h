// mPalette: the palette that PaletteApply maps to, and its nearest-colour lookup.
#pragma once
#include <cstdint>
#include <vector>

namespace velara {

struct PaletteColor {
    std::int32_t red, green, blue;
};

/// The palette of the colour window. Empty until it is filled.
std::vector<PaletteColor>& PaletteColors();

/// The entry nearest to the colour by the sum of absolute differences, ties to the first. Distances of 765 or more
/// never replace entry 0. OutOfRange when the palette is empty.
PaletteColor NearestColor(std::int32_t red, std::int32_t green, std::int32_t blue);

} // namespace velara
