// The dialogs that reshape a picture, as steps.
#pragma once
#include "engine/operations.h"
#include <span>

namespace velara {

/// CanvasSize(Width,Height,Left,Top), Orientation(Turns,Vertical,Horizontal), RotateImage(Degrees,Smooth): see
/// document/resizing.h. Sizes that no picture may have raise std::invalid_argument or NotEnoughMemory.
std::span<const Operation> geometryOperations();

} // namespace velara
