// A relief laid into a picture, out of a texture or out of the picture itself.
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
/// A relief needs two pixels each way.
constexpr bool reliefFits(int width, int height) { return width >= 2 && height >= 2; }

/// The filter's picture with the relief, within its region. OutOfRange where the relief does not fit.
Bits texturized(cBitFilter& filter, const Texturing& texturing);

/// Those pixels of part that texturized(picture) has there, without the work for the others. Only where the picture is
/// its own texture may its last column and row differ, where the relief begins anew.
Bits texturizedPart(const Bits& picture, const Region& region, const Texturing& texturing, const Rect& part);

/// By its name: "fTexturize", with Texture, Weight and Depth (0 emboss, 1 engrave).
const Operation& texturizeOperation();

} // namespace velara
