// Vector kernels that work out source positions. Results are those of the plain double arithmetic in the comments,
// bit for bit; kernels that approximate return the lanes that lie too near to a rounding boundary, to be worked out
// again.
#pragma once
#include "region/Region.h"
#include <cstdint>

namespace velara {

/// Positions are worked out for at most this many targets of a row at a time, into arrays of whole vectors.
constexpr int kPlaces = 64;

/// round((d + i) * factor + shift + centre) for i = 0..n-1. All results must fit in 32 bits.
void lineOfPlaces(double d, double factor, double shift, double centre, int n, std::int32_t* places);

/// round(factors[i] * d + centre) for i = 0..n-1. All results must fit in 32 bits.
void productsToPlaces(const double* factors, double d, double centre, int n, std::int32_t* places);

/// The same, split: places is the floor, beyond the rest in single.
void lineOfSplitPlaces(double d, double factor, double shift, double centre, int n, std::int32_t* places,
                       float* beyond);

/// A twirl: by whole radius the cosine and then the sine of the angle that it adds.
struct Twirl {
    int cx, cy;
    const float* turns;
    float tolerance; // of the result, by pixel of the radius
};

/// Each (dx, dy) set on its rounded radius and turned, for the n targets from (x0, y). Returns a bit for each target
/// that is to be worked out again.
std::uint64_t twirlPlaces(const Twirl& twirl, int x0, int y, int n, std::int32_t* sx, std::int32_t* sy);

/// A bend: k is pixels of height by pixel of radius.
struct Bend {
    int cx, cy, maxX, maxY;
    float k;
    float toleranceX, toleranceY;
};

/// The angle as a part of the width and the radius counted from the bottom, for the n targets from (x0, y). Returns a
/// bit for each target that is to be worked out again.
std::uint64_t bendPlaces(const Bend& bend, int x0, int y, int n, std::int32_t* sx, std::int32_t* sy);

/// A lens: sources are depth times the distance from the centre, over the height of the sphere of radius.
struct Lens {
    std::int32_t cx, cy;
    double radius, depth;
    Rect within; // what can be read
};

/// round(depth * ox) \ z and round(depth * oy) \ z from the centre, z = round(sqrt(radius^2 - ox^2 - oy^2)), for the n
/// targets from (x0, y), all within the sphere. False when one is to raise a fault: then nothing is said of any.
bool lensPlaces(const Lens& lens, int x0, int y, int n, std::int32_t* sx, std::int32_t* sy);

/// Sines and cosines of 0, 1, 2, ... radians.
struct WaveTables {
    float sine[kPlaces], cosine[kPlaces];
    WaveTables();
};

/// round(-weight * sin(number + i)) for i = 0..n-1, by the sum of angles. Returns a bit for each that is to be worked
/// out again.
std::uint64_t waveOffsets(const WaveTables& wave, double number, float weight, int n, std::int32_t* offsets);

} // namespace velara
