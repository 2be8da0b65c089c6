// Colour depth as a step of velara-batch.
#pragma once
#include "engine/operations.h"

namespace velara {

/// SetDepth(Depth): reduces the whole picture, whatever is selected, to 1, 4, 8, 15, 16, 24 or 32 bits; other depths
/// raise std::invalid_argument.
const Operation& setDepthOperation();

} // namespace velara
