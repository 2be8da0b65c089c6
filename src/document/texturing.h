// A relief laid into a picture, made from a texture or from the picture itself.
#pragma once
#include "engine/cBitFilter.h"
#include "engine/operations.h"

namespace velara {

struct Texturing {
    Bits texture;         // null: the picture itself
    int intensity = 25;   // 0 to 100
    bool engrave = false; // light from the other side
};

constexpr int kMostIntensity = 100;
/// A relief needs at least two pixels each way.
constexpr bool reliefFits(int width, int height) { return width >= 2 && height >= 2; }

/// The filter's picture with the relief, within its region. OutOfRange when reliefFits() is false.
Bits texturized(cBitFilter& filter, const Texturing& texturing);

/// The pixels of texturized(picture) in part, without computing the others. They may differ only when the picture is
/// its own texture, in the last column and row, where the relief repeats.
Bits texturizedPart(const Bits& picture, const Region& region, const Texturing& texturing, const Rect& part);

/// The operation named "fTexturize", with Texture, Weight and Depth (0 emboss, 1 engrave).
const Operation& texturizeOperation();

} // namespace velara
