// Vector kernels of the slanting glass: sources displaced by the sine of the pixel's number.
#pragma once
#include "engine/deform/kernels_place.h"
#include "pixels/Bits.h"
#include <cstddef>

namespace velara {

/// The waves of kPlaces pixels of a row: round(-weight * sin(number + i)).
struct SlantWave {
    const WaveTables& tables;
    double sine, cosine; // of number
    int weight;
};
constexpr int kWeightX = 3, kWeightY = 10;

/// Each of the kPlaces pixels from `from` on takes the colour of the one that its wave is away in its row; the weight
/// is kWeightX. Reads kWeightX pixels to the left and 2 * kWeightX to the right. False where a wave comes too close to
/// a half: the results are undefined then.
bool slantAlongRow(const SlantWave& wave, const Pixel* from, Pixel* to, bool streams);

/// Where the kPlaces pixels from `from` on come from, of those their wave is away in their columns: places from `from`
/// on; rows are stride pixels apart. False where a wave comes too close to a half. Prefetches for the run to the right.
bool slantedPlaces(const SlantWave& wave, const Pixel* from, std::ptrdiff_t stride, std::int32_t* places);

/// Each of the kPlaces pixels from `from` on takes the colour of the one at its place. Apart from the above, and for
/// several runs at a time: the single loads would wait for the long way from a run's wave to its places.
void takePlaces(const Pixel* from, const std::int32_t* places, Pixel* to, bool streams);

} // namespace velara
