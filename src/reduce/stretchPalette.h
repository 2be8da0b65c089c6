// Fits a palette to mixtures of its colours instead of to the colours alone.
#pragma once
#include "reduce/EuroDepth.h"

namespace velara {

/// Moves the colours of a palette that was made for a picture, so that mixtures of them reach the picture's colours,
/// the outermost ones, too. As many colours as before. Call it when the picture is to be dithered.
Palette stretchedPalette(const Bits& bits, const Palette& palette, const ReduceProgress& progress = {});

} // namespace velara
