// Vector kernels of the generators. Results are those of the plain arithmetic, bit for bit; kernels that approximate
// return a bit for each pixel that is to be worked out again.
#pragma once
#include "pixels/Bits.h"
#include "pixels/random.h"
#include <cstdint>

namespace velara {

/// Each byte times a 128th of the factor's, rounded to even, at most 255.
void multiplyPixels(const Pixel* from, const Pixel* factors, int n, Pixel* to);

/// A blend of three channels: from * rest + over * part, rounded to even. Where over has the colour `key`, 0x00RRGGBB,
/// from stays; -1 for none. Up to 15 pixels behind the last of over are read and dropped. False when a result is no
/// byte; then `to` is worthless.
bool overlayPixels(const Pixel* from, const Pixel* over, double rest, double part, std::int32_t key, int n, Pixel* to);

/// A ramp between two colours of double channels, blue first; an own colour is that of each pixel.
struct RampColours {
    double first[3], second[3];
    bool ownFirst, ownSecond;
    double opacity, rest;
};

/// from * rest + (first * (1 - t) + second * t) * opacity, 1 - t in single. False when a result is no byte; then `to`
/// is worthless.
bool rampPixels(const RampColours& ramp, const Pixel* from, const float* t, int n, Pixel* to);

/// ry * sr + rx * cr in single, rx = first, first + 1, ...
void linearRamp(double first, double ry, double sr, double cr, int n, float* t);
/// sqrt(rx^2 + ry^2) / R in single.
void circularRamp(double first, double ry, double R, int n, float* t);
/// t := the square of sin(frequency * t), for n <= 64.
std::uint64_t squareSines(double frequency, int n, float* t);

/// Noise of 0 <= amount <= 127; number is that of the first pixel.
void noisePixels(const Random& random, std::uint32_t number, int amount, bool equalized, const Pixel* from, int n,
                 Pixel* to);

/// Adds round(intensity - slope * distance), each pixel's distance being that of (ox, oy), (ox + 1, oy), ..., to the
/// channels, at most 255, and stores the low byte. n <= 64; no sum beyond 4096.
std::uint64_t lightPixels(float intensity, float slope, int ox, int oy, const Pixel* from, int n, Pixel* to);

} // namespace velara
