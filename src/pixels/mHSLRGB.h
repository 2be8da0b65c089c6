// Conversions between bytes and hue, saturation, lightness. The hue scale is this system's own: -1 to 5, one unit a
// sixth of a turn, red at 0; S and L from 0 to 1. All values are stored as singles.
#pragma once
#include "pixels/numbers.h"
#include <algorithm>

namespace velara {

struct Hsl {
    float h, s, l;
};
struct Rgb {
    int r, g, b;
    friend bool operator==(const Rgb&, const Rgb&) = default;
};

inline float MaxOf3(float a, float b, float c) { return std::max(std::max(a, b), c); }
inline float MinOf3(float a, float b, float c) { return std::min(std::min(a, b), c); }

/// r, g, b 0..255. Greys give H = S = 0; reds below the red axis give hues down to -1.
Hsl RGBToHSL(int r, int g, int b);
/// Inverse of RGBToHSL. No clamp: H in -1..5, S and L in 0..1 give 0..255.
Rgb HSLToRGB(float h, float s, float l);

/// Folds a hue on a 0..240 scale to -39..200; over 40 it is the H of Hsl.
constexpr int HueFromScale(int v) { return v < 201 ? v : v - 240; }

} // namespace velara
