// Palettes made from the picture itself.
#pragma once
#include "pixels/IndexedPicture.h"
#include "reduce/EuroDepth.h"
#include <optional>

namespace velara {

/// The palette of at most so many colours (2 to 256) that suits the picture best. A picture of no more colours gives
/// exactly its own, in the order of their first use. std::bad_alloc when memory is short.
Palette bestPalette(const Bits& bits, int colours, const ReduceProgress& progress = {});

/// The picture in its best palette, each pixel the nearest of its colours, without dithering.
IndexedPicture reduceToBestColours(const Bits& bits, int colours, const ReduceProgress& progress = {});

} // namespace velara
