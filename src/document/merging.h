// One picture laid over another.
#pragma once
#include "engine/cBitFilter.h"
#include <QSize>

namespace velara {

struct Merging {
    Bits overlay;
    int left = 0, top = 0;
    bool tiled = false;
    int transparency = 50; // percent of the picture below that shows through
    Colour key = -1;       // overlay pixels of this colour are left out; -1: none
};

/// The filter's picture with the overlay, within its region; unchanged without an overlay.
Bits merged(cBitFilter& filter, const Merging& merging);

/// A preview of merged() that fits a box, from subsampled pixels: its cost depends on the box only.
Bits mergedView(const Bits& picture, const Region& region, const Merging& merging, QSize box);

} // namespace velara
