// Vector kernels of the nearest-colour search: pixels whose cubes of colour space have few candidates.
#pragma once
#include "pixels/Bits.h"
#include <array>
#include <cstdint>

namespace velara {

/// The candidates of one cube: colours with their entries as fourth bytes, by ascending entry. Where the first entry is
/// greater than the last one, the cube has none to show.
struct alignas(16) NearestCube {
    static constexpr int kFew = 4;
    std::array<Pixel, kFew> colours;
};

/// Of up to 64 pixels, those whose cubes have candidates, a bit each. For these, colours writes the nearest candidate
/// with the fourth byte of from, entries the candidate's entry; what is written for the others is undefined. cubes: 32
/// levels of red by 32 of green by 32 of blue. squares: by squared distance, else by the sum of differences.
struct NearestKernels {
    std::uint64_t (*colours)(const Pixel* from, int n, const NearestCube* cubes, bool squares, Pixel* to);
    std::uint64_t (*entries)(const Pixel* from, int n, const NearestCube* cubes, bool squares, std::uint8_t* to);
};
const NearestKernels& nearestKernels();

} // namespace velara
