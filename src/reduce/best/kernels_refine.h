// The nearest of some centres for many colours, each compared with all of them.
#pragma once
#include "pixels/Bits.h"
#include <array>
#include <cstdint>

namespace velara {

/// Whole levels and quarters of them, so that single precision is exact. Distances are compared without the square of
/// the colour itself: half the centre's square less the product of both.
struct Centres {
    static constexpr int kMost = 256;

    int count = 0;
    std::array<std::array<float, kMost>, 3> channels{};
    std::array<float, kMost> half{}; // of the square

    /// Adds one; quarters: blue, green, red, 0 to 1020.
    void add(const std::array<int, 3>& quarters);
};

/// Of n colours the numbers of the nearest centres, ties to the lowest. At least one centre.
void nearestCentres(const Pixel* colours, int n, const Centres& centres, std::uint8_t* numbers);

} // namespace velara
