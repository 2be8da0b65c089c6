// A colour for text that can be seen on what lies beneath it.
#pragma once
#include "pixels/Bits.h"
#include "region/Region.h"

namespace velara {

/// The wanted colour, or black or white if a third of the picture's pixels in part are too near to it to read it there.
Colour visibleColour(Colour wanted, const Bits& picture, const Rect& part);

} // namespace velara
