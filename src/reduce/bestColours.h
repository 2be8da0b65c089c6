// Palettes made from the picture itself.
#pragma once
#include "pixels/IndexedPicture.h"
#include "reduce/EuroDepth.h"
#include <optional>

namespace velara {

/// The best palette of at most count colours (2 to 256). A picture with no more colours than that yields exactly its
/// own, in order of first use. std::bad_alloc when memory is short.
Palette bestPalette(const Bits& bits, int colours, const ReduceProgress& progress = {});

/// The picture mapped to its best palette, each pixel to the nearest colour, without dithering.
IndexedPicture reduceToBestColours(const Bits& bits, int colours, const ReduceProgress& progress = {});

} // namespace velara
