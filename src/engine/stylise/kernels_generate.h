// Vector kernels of the generators. Results equal the plain arithmetic, bit for bit; kernels that approximate return a
// bit for each pixel to be recomputed.
#pragma once
#include "engine/SpanOf.h"
#include "pixels/random.h"
#include <cstdint>

namespace velara {

/// Each byte times a 128th of the factor's, rounded half to even, at most 255.
void multiplyPixels(const Pixel* from, const Pixel* factors, int n, Pixel* to);

/// A blend of three channels: from * rest + over * part, rounded half to even. Where over has the colour `key`,
/// 0x00RRGGBB, from is kept; -1 for none. Up to 7 pixels after the last of over are read and ignored. False when a
/// result is out of byte range; `to` is undefined then.
bool overlayPixels(const Pixel* from, const Pixel* over, double rest, double part, std::int32_t key, int n, Pixel* to);

/// A ramp between two colours as doubles, blue first; an own colour is that of each pixel.
struct RampColours {
    double first[3], second[3];
    bool ownFirst, ownSecond;
    double opacity, rest;
};

/// from * rest + (first * (1 - t) + second * t) * opacity, 1 - t in single. False when a result is out of byte range;
/// `to` is undefined then.
bool rampPixels(const RampColours& ramp, const Pixel* from, const float* t, int n, Pixel* to);

/// The same two in single precision, for n <= 64: a bit for each pixel to be recomputed, as its rounding is not
/// certain. All of rest, part and opacity are within 0..1, and t is off by `error` at most.
std::uint64_t overlayNearly(const Pixel* from, const Pixel* over, float rest, float part, std::int32_t key, int n,
                            Pixel* to);
std::uint64_t rampNearly(const RampColours& ramp, const Pixel* from, const float* t, float error, int n, Pixel* to);
/// near := the square of sin(frequency * t) in single, for n <= 64; returns how far it may be off.
float squareSinesNearly(double frequency, const float* t, int n, float* near);

/// ry * sr + rx * cr in single, rx = first, first + 1, ...
void linearRamp(double first, double ry, double sr, double cr, int n, float* t);
/// sqrt(rx^2 + ry^2) / R in single.
void circularRamp(double first, double ry, double R, int n, float* t);
/// t := the square of sin(frequency * t), for n <= 64; those to be recomputed keep their t.
std::uint64_t squareSines(double frequency, int n, float* t);

/// Noise of 0 <= amount <= 127; number is the index of the row's pixel 0.
void noisePixels(SpanOf span, const Random& random, std::uint32_t number, int amount, bool equalized);

/// Adds round(intensity - slope * distance) to the channels, at most 255, and stores the low byte; the distances are
/// those of (ox, oy), (ox + 1, oy), ... n <= 64; no sum may exceed 4096.
std::uint64_t lightPixels(float intensity, float slope, int ox, int oy, const Pixel* from, int n, Pixel* to);

} // namespace velara
