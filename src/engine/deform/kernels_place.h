// Vector kernels that compute source positions. Results equal those of the plain double arithmetic in the comments, bit
// for bit; kernels that approximate return the lanes too close to a rounding boundary, which the caller recomputes.
#pragma once
#include "region/Region.h"
#include <cstdint>

namespace velara {

/// Positions are computed for at most this many targets of a row at a time, into arrays padded to whole vectors.
constexpr int kPlaces = 64;

/// round((d + i) * factor + shift + centre) for i = 0..n-1. All results must fit in 32 bits.
void lineOfPlaces(double d, double factor, double shift, double centre, int n, std::int32_t* places);

/// Sources along a straight line: (x, y) is the first one, the next ones are (stepX, stepY) apart.
struct Straight {
    double x, y, stepX, stepY;
};

/// The rounded sources of n targets. False where a coordinate comes too close to a half, or steps are too long: the
/// results are undefined then. The coordinates must fit in 31 bits.
bool straightPlaces(const Straight& line, int n, std::int32_t* sx, std::int32_t* sy);

/// round(factors[i] * d + centre) for i = 0..n-1. All results must fit in 32 bits.
void productsToPlaces(const double* factors, double d, double centre, int n, std::int32_t* places);

/// The same, split: places is the floor, beyond the fraction in single.
void lineOfSplitPlaces(double d, double factor, double shift, double centre, int n, std::int32_t* places,
                       float* beyond);

/// A twirl: for each integer radius the cosine and then the sine of the added angle.
struct Twirl {
    int cx, cy;
    const float* turns;
    float toleranceLeft, toleranceRight; // of the result, per pixel of the radius, on either side of the centre
};

/// Moves each (dx, dy) to its rounded radius and rotates it, for the n targets from (x0, y). Returns a bit for each
/// target to be recomputed.
std::uint64_t twirlPlaces(const Twirl& twirl, int x0, int y, int n, std::int32_t* sx, std::int32_t* sy);

/// The same in double: the angle that is added is -k a pixel of the radius, and to the left of the centre those of the
/// definition are less than they should be by `missing`.
struct ExactTwirl {
    static constexpr double kTolerance = 1e-8; // of the result

    int cx, cy;
    const double* turns;
    double k, missing;
};

/// For n <= kPlaces targets anywhere, (dx, dy) from the centre, with the roundings of the definition, which has angles
/// in single. The arrays are padded to whole vectors, by places within the table. Returns a bit for each target that is
/// still in doubt.
std::uint64_t twirlPlacesExactly(const ExactTwirl& twirl, const std::int32_t* dx, const std::int32_t* dy, int n,
                                 std::int32_t* sx, std::int32_t* sy);

/// A bend: k is pixels of height per pixel of radius.
struct Bend {
    int cx, cy, maxX, maxY;
    float k;
    float toleranceX, toleranceY, tolerancePerRadius; // of the result, and of its y per pixel of the radius
};

/// The angle as a fraction of the width and the radius measured from the bottom, for the n targets from (x0, y).
/// Returns a bit for each target to be recomputed.
std::uint64_t bendPlaces(const Bend& bend, int x0, int y, int n, std::int32_t* sx, std::int32_t* sy);

/// A lens: sources are depth times the distance from the centre, divided by the height of the sphere of radius.
struct Lens {
    std::int32_t cx, cy;
    double radius, depth;
    Rect within; // the readable pixels
    // round(depth * ox) for ox from -radius to radius + kPlaces, at 0, where all of these and of the centre's
    // coordinates are less than 2^24 and the radius is less than 2^15; otherwise null.
    const float* pulled;
};

/// round(depth * ox) \ z and round(depth * oy) \ z from the centre, z = round(sqrt(radius^2 - ox^2 - oy^2)), for the n
/// targets from (x0, y), all within the sphere. False when one of them faults: the results are undefined then.
bool lensPlaces(const Lens& lens, int x0, int y, int n, std::int32_t* sx, std::int32_t* sy);

/// Sines and cosines of 0, 1, 2, ... radians.
struct WaveTables {
    float sine[kPlaces], cosine[kPlaces];
    WaveTables();
};

/// round(-weight * sin(number + i)) for i = 0..n-1, by the addition theorem from sine and cosine of number. Returns a
/// bit for each to be recomputed.
std::uint64_t waveOffsets(const WaveTables& wave, double sine, double cosine, float weight, int n,
                          std::int32_t* offsets);

} // namespace velara
