// The picture used by the gallery, the golden results and the first start: made by integer arithmetic, so that it is
// the same on every machine.
#pragma once
#include "pixels/Bits.h"

namespace velara {

/// A landscape of 480 by 320 pixels with sky, sun, hills, a house, a lake, fine texture, colour swatches and a grey
/// wedge.
Bits samplePicture();

} // namespace velara
