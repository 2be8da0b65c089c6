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

/// The filter's picture with the overlay, within its region; the picture itself without one.
Bits merged(cBitFilter& filter, const Merging& merging);

/// What merged() makes of the picture, seen in a box: every so many pixels of it, in the time that the box takes.
Bits mergedView(const Bits& picture, const Region& region, const Merging& merging, QSize box);

} // namespace velara
